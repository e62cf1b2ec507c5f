#pragma once

#include "FaceHandlers.h"
#include "FaultPlan.h"
#include "Journal.h"
#include "Options.h"

#include <httplib.h>

#include <memory>
#include <string>

namespace sim
{

/// The device: its channels behind an HTTP server.
class FaceServer
{
public:
    explicit FaceServer(const Options& options);

    /// Loads the faces and starts to listen; false with `error` when that is not possible.
    bool start(std::string& error);
    std::string address() const; ///< "http://127.0.0.1:PORT"
    void serve();                ///< for ever

private:
    using Method = httplib::Server& (httplib::Server::*)(const std::string&, httplib::Server::Handler);
    using Handler = void (FaceHandlers::*)(const Call& call);

    void createServer();
    void addRoutes();
    void route(Method method, const std::string& path, Operation operation, Handler handler);
    bool admits(const httplib::Request& request, httplib::Response& response) const;

    const Options m_options;
    FaultPlan m_faults;
    Channels m_channels;
    Journal m_journal;
    FaceHandlers m_handlers;
    int m_port = 0;
    std::unique_ptr<httplib::Server> m_server;
};

} // namespace sim
