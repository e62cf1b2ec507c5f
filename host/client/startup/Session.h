#pragma once

#include "startup/CommandLine.h"

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

    bool start(); ///< false: there is no store to work on
    int run();    ///< until the operator quits; the exit code

private:
    bool openStore();
    void openDemo();
    int selfTest();
    int screenshot();

    const CommandLine& m_line;
    ClientSettings& m_settings;
    QString m_storeName;
    std::unique_ptr<DemoDevice> m_demoDevice;
    std::unique_ptr<MainWindow> m_window;
};
