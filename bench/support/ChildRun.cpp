#include "support/ChildRun.h"

#include <QCoreApplication>
#include <QProcess>

#include <cstdio>

namespace qarn_bench
{

double measureInChild(const QStringList& arguments)
{
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), arguments);
    bool ok =
        child.waitForFinished(-1) && child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0;
    const double value = child.readAllStandardOutput().trimmed().toDouble(&ok);
    if (!ok)
        qFatal("the measuring child failed: %s", qPrintable(arguments.join(QLatin1Char(' '))));
    return value;
}

int printMeasure(double value)
{
    std::printf("%.3f\n", value);
    return 0;
}

} // namespace qarn_bench
