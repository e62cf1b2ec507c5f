#include "settings/ClientSettings.h"
#include "startup/CommandLine.h"
#include "startup/Display.h"
#include "startup/Language.h"
#include "startup/Session.h"
#include "startup/TextFiles.h"
#include "style/DarkStyle.h"

#include <QApplication>

#include <cstdio>

namespace
{

constexpr int usageError = 2;

/// Without TZ every conversion to local time looks at the system's zone file again, which makes loading a
/// large register several times slower.
void readTheTimeZoneOnce()
{
    if (!qEnvironmentVariableIsSet("TZ"))
        qputenv("TZ", ":/etc/localtime");
}

QStringList argumentList(int argc, char** argv)
{
    QStringList arguments;
    for (int index = 0; index < argc; ++index)
        arguments.append(QString::fromLocal8Bit(argv[index]));
    return arguments;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setApplicationName(QStringLiteral("qarn-client"));
    QCoreApplication::setApplicationVersion(QStringLiteral(QARN_VERSION));
    const CommandLine line = CommandLine::parse(argumentList(argc, argv));
    if (!line.error.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(line.error));
        return usageError;
    }
    if (!line.help.isEmpty()) {
        std::fputs(qPrintable(line.help), stdout);
        return 0;
    }

    readTheTimeZoneOnce();
    if (line.selfTest)
        display::useNone();
    display::useHighDpi();
    display::enterGuard();
    QApplication application(argc, argv);
    display::leaveGuard();

    useUnicodeTextFiles();
    ClientSettings settings;
    useLanguage(settings.language());
    applyDarkStyle(application);
    QApplication::setQuitOnLastWindowClosed(false); // until there is the main window
    Session session(line, settings);
    if (!session.start())
        return Session::noStore;
    QApplication::setQuitOnLastWindowClosed(true);
    return session.run();
}
