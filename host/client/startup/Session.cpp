#include "startup/Session.h"

#include "demo/DemoDevice.h"
#include "demo/DemoStore.h"
#include "settings/ClientSettings.h"
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
}

Session::Session(const CommandLine& line, ClientSettings& settings) : m_line(line), m_settings(settings) {}

Session::~Session()
{
    m_window.reset();
    m_demoDevice.reset();
    DataService::instance().close();
}

bool Session::openStore()
{
    QString path = m_line.demo ? demoStore::path() : m_line.storePath;
    if (path.isEmpty())
        path = m_settings.storePath();
    if (path.isEmpty())
        path = StoreOpener::defaultPath();
    path = StoreOpener::open(path, !m_line.selfTest && m_line.screenshotPath.isEmpty());
    if (path.isEmpty())
        return false;
    m_storeName = m_line.demo ? MainWindow::tr("Demonstration") : QFileInfo(path).fileName();
    return true;
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
    if (!openStore())
        return false;
    if (m_line.demo)
        openDemo();
    m_window = std::make_unique<MainWindow>(m_settings);
    m_window->setStoreName(m_storeName);
    return true;
}

int Session::run()
{
    m_window->show();
    if (m_line.selfTest)
        QTimer::singleShot(0, m_window.get(), [this] { QCoreApplication::exit(selfTest()); });
    else if (!m_line.screenshotPath.isEmpty())
        QTimer::singleShot(screenshotDelayMs, m_window.get(),
                           [this] { QCoreApplication::exit(screenshot()); });
    return QCoreApplication::exec();
}

int Session::selfTest()
{
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
