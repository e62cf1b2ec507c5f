#include "startup/Session.h"

#include "demo/DemoDevice.h"
#include "demo/DemoStore.h"
#include "settings/ClientSettings.h"
#include "startup/FirstPaint.h"
#include "startup/SelfTest.h"
#include "startup/StoreOpener.h"
#include "window/MainWindow.h"

#include <qarn_data/DataService.h>
#include <qarn_worker/DictDef.h>
#include <qarn_worker/SystemAssistant.h>

#include <QApplication>
#include <QFileInfo>
#include <QPixmap>
#include <QTimer>

#include <cstdio>

using qarn_data::DataService;
using qarn_worker::DictDef;
using qarn_worker::SystemAssistant;

namespace
{
constexpr int screenshotDelayMs = 700; // for fonts, icons and the first answers of devices
constexpr int modalRetryMs = 200;
} // namespace

Session::Session(const CommandLine& line, ClientSettings& settings) : m_line(line), m_settings(settings) {}

Session::~Session()
{
    m_window.reset();
    m_demoDevice.reset();
    DataService::instance().close();
}

bool Session::openStore(const QString& failure)
{
    for (const QString& path : {m_line.demo ? demoStore::path() : m_line.storePath, m_settings.storePath(),
                                StoreOpener::defaultPath()}) {
        if (m_storePath.isEmpty())
            m_storePath = path;
    }
    m_storePath =
        StoreOpener::open(m_storePath, !m_line.selfTest && m_line.screenshotPath.isEmpty(), failure);
    return !m_storePath.isEmpty();
}

void Session::openDemo()
{
    demoStore::fill();
    m_demoDevice = std::make_unique<DemoDevice>(QFileInfo(demoStore::path()).absolutePath());
}

bool Session::start()
{
    // A refused write is told in the service's own words, whichever thread it happened in.
    QObject::connect(&DataService::instance(), &DataService::signalFailed, &SystemAssistant::instance(),
                     [](const QString& text) {
                         SystemAssistant::instance().messageAlert(DictDef::instance().errorAlertTitle, text);
                     });
    QObject::connect(&DataService::instance(), &DataService::signalLoadingFailed, &m_receiver,
                     [this](const QString& reason) { startAgain(reason); });
    return openWindow(QString());
}

bool Session::openWindow(const QString& failure)
{
    if (!openStore(failure))
        return false;
    if (m_line.demo)
        openDemo();
    m_window = std::make_unique<MainWindow>(m_settings);
    m_window->setStoreName(m_line.demo ? MainWindow::tr("Demonstration") : QFileInfo(m_storePath).fileName());
    return true;
}

// The store has turned out to be damaged while its first page was shown already.
void Session::startAgain(const QString& failure)
{
    if (QApplication::activeModalWidget() != nullptr) { // belongs to the window that is to go
        QTimer::singleShot(modalRetryMs, &m_receiver, [this, failure] { startAgain(failure); });
        return;
    }
    QApplication::setQuitOnLastWindowClosed(false);
    m_window.reset();
    m_demoDevice.reset();
    if (!openWindow(failure)) {
        QCoreApplication::exit(noStore);
        return;
    }
    QApplication::setQuitOnLastWindowClosed(true);
    m_window->show();
}

int Session::run()
{
    if (m_line.selfTest)
        QObject::connect(new FirstPaint(m_window.get()), &FirstPaint::signalPainted, m_window.get(),
                         [this] { QCoreApplication::exit(selfTest()); });
    m_window->show();
    if (!m_line.screenshotPath.isEmpty())
        QTimer::singleShot(screenshotDelayMs, m_window.get(),
                           [this] { QCoreApplication::exit(screenshot()); });
    return QCoreApplication::exec();
}

int Session::selfTest()
{
    std::puts("first page shown");
    std::fflush(stdout);
    const QString findings = selfTestFindings(*m_window);
    if (findings.isEmpty()) {
        std::puts("self-test passed");
        return 0;
    }
    std::fprintf(stderr, "self-test failed: %s\n", qPrintable(findings));
    return 1;
}

int Session::screenshot()
{
    if (m_window->grab().save(m_line.screenshotPath))
        return 0;
    std::fprintf(stderr, "%s cannot be written: does its directory exist?\n",
                 qPrintable(m_line.screenshotPath));
    return 1;
}
