#include "FaceServer.h"

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <thread>
#include <unistd.h>

namespace
{

/// Blocks the ending signals in all threads, so that one thread can wait for them.
sigset_t takeEndingSignals()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigaddset(&signals, SIGINT);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    return signals;
}

void endWithStandardInput()
{
    std::thread([] {
        char byte = 0;
        while (read(STDIN_FILENO, &byte, 1) > 0) {
        }
        kill(getpid(), SIGTERM);
    }).detach();
}

} // namespace

int main(int argc, char** argv)
{
    sim::Options options;
    std::string error;
    if (!sim::parseOptions({argv + 1, argv + argc}, options, error)) {
        std::cerr << "face-device-sim: " << error << std::endl;
        return 2;
    }
    if (options.help) {
        std::cout << sim::usage();
        return 0;
    }
    const sigset_t signals = takeEndingSignals();
    sim::FaceServer server(options);
    if (!server.start(error)) {
        std::cerr << "face-device-sim: " << error << std::endl;
        return 1;
    }
    std::cout << "listening on " << server.address() << std::endl;
    if (options.untilStdinCloses)
        endWithStandardInput();
    std::thread([&server] { server.serve(); }).detach();
    int signal = 0;
    sigwait(&signals, &signal);
    std::quick_exit(0); // like a plug that is pulled; every change is in the file by then
}
