#include "startup/Display.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>

namespace display
{
namespace
{

QtMessageHandler previousHandler = nullptr;

void guard(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtFatalMsg) {
        std::fputs("No display can be reached: start the client in a desktop session, set DISPLAY, or use "
                   "\"xvfb-run qarn-client\" (\"--self-test\" needs none).\n",
                   stderr);
        std::_Exit(2);
    }
    const bool aboutDisplay =
        qstrcmp(context.category, "default") == 0 || qstrncmp(context.category, "qt.qpa", 6) == 0;
    if (!aboutDisplay && previousHandler != nullptr)
        previousHandler(type, context, text);
}

} // namespace

void enterGuard()
{
    previousHandler = qInstallMessageHandler(guard);
}

void leaveGuard()
{
    qInstallMessageHandler(previousHandler);
}

void useNone()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

void useHighDpi()
{
    QGuiApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QGuiApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
}

} // namespace display
