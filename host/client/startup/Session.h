#pragma once

#include "startup/CommandLine.h"

#include <QObject>

#include <memory>

class ClientSettings;
class DemoDevice;
class MainWindow;

/// One run of the client from the opened store to the closed one.
class Session
{
public:
    Session(const CommandLine& line, ClientSettings& settings);
    ~Session();

    static constexpr int noStore = 3; ///< exit code

    bool start(); ///< false: there is no store to work on
    int run();    ///< until the operator quits; the exit code

private:
    bool openStore(const QString& failure);
    bool openWindow(const QString& failure);
    void startAgain(const QString& failure);
    void openDemo();
    int selfTest();
    int screenshot();

    const CommandLine& m_line;
    ClientSettings& m_settings;
    QObject m_receiver; ///< of what other threads tell
    QString m_storePath;
    std::unique_ptr<DemoDevice> m_demoDevice;
    std::unique_ptr<MainWindow> m_window;
};
