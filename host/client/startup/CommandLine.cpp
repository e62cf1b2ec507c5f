#include "startup/CommandLine.h"

#include <QCommandLineParser>

namespace
{
const QString storeOption = QStringLiteral("store");
const QString demoOption = QStringLiteral("demo");
const QString selfTestOption = QStringLiteral("self-test");
const QString screenshotOption = QStringLiteral("screenshot");
const QString fileValue = QStringLiteral("FILE");
} // namespace

CommandLine CommandLine::parse(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Keeps the register of persons for face-recognition devices."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    parser.addOptions({
        {storeOption, QStringLiteral("Use the store in FILE; it is made when there is none."), fileValue},
        {demoOption, QStringLiteral("Work on a demonstration store with invented persons and a "
                                    "simulated device.")},
        {selfTestOption, QStringLiteral("Start without a display, check that the page shows what the store "
                                        "holds, and leave.")},
        {screenshotOption, QStringLiteral("Save a picture of the window to FILE and leave."), fileValue},
    });

    CommandLine line;
    if (!parser.parse(arguments))
        line.error = parser.errorText();
    else if (!parser.positionalArguments().isEmpty())
        line.error =
            QStringLiteral("%1: unknown argument; see --help").arg(parser.positionalArguments().first());
    else if (parser.isSet(storeOption) && parser.isSet(demoOption))
        line.error = QStringLiteral("--demo has a store of its own; leave out --store");
    if (parser.isSet(help))
        line.help = parser.helpText();
    else if (parser.isSet(version))
        line.help = QCoreApplication::applicationName() + QLatin1Char(' ') +
                    QCoreApplication::applicationVersion() + QLatin1Char('\n');
    line.storePath = parser.value(storeOption);
    line.screenshotPath = parser.value(screenshotOption);
    line.demo = parser.isSet(demoOption);
    line.selfTest = parser.isSet(selfTestOption);
    return line;
}
