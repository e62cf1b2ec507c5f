#include "FaceServer.h"

#include "FaultActions.h"
#include "ScimDocuments.h"

#include <chrono>
#include <thread>

namespace sim
{

namespace
{

constexpr std::size_t MaxRequestBytes = 4 * 1024 * 1024; ///< the largest photograph as Base64, and some
constexpr std::size_t Connections = 128;                 ///< served at the same time
constexpr int KeepAliveSeconds = 30;
constexpr std::size_t KeepAliveRequests = 1000000000;

} // namespace

FaceServer::FaceServer(const Options& options)
    : m_options(options),
      m_faults(options.faults, options.seed),
      m_handlers(m_options, m_channels, m_journal)
{
    for (int number = 1; number <= m_options.channels; ++number)
        m_channels[number] = std::make_unique<FaceChannel>(static_cast<std::size_t>(m_options.capacity));
}

bool FaceServer::start(std::string& error)
{
    if (!m_options.dataFile.empty() && !m_journal.open(m_options.dataFile, m_channels, error))
        return false;
    createServer();
    if (!m_server->is_valid()) {
        error = "the certificate or the key cannot be used";
        return false;
    }
    addRoutes();
    if (m_options.port == 0)
        m_port = m_server->bind_to_any_port(m_options.host);
    else if (m_server->bind_to_port(m_options.host, m_options.port))
        m_port = m_options.port;
    if (m_port <= 0)
        error = "cannot listen at " + m_options.host + ", port " + std::to_string(m_options.port);
    return m_port > 0;
}

void FaceServer::createServer()
{
    if (m_options.tlsCertificate.empty())
        m_server = std::make_unique<httplib::Server>();
    else
        m_server =
            std::make_unique<httplib::SSLServer>(m_options.tlsCertificate.c_str(), m_options.tlsKey.c_str());
    m_server->new_task_queue = [] { return new httplib::ThreadPool(Connections); };
    m_server->set_tcp_nodelay(true);
    m_server->set_keep_alive_timeout(KeepAliveSeconds);
    m_server->set_keep_alive_max_count(KeepAliveRequests);
    m_server->set_payload_max_length(MaxRequestBytes);
}

std::string FaceServer::address() const
{
    return (m_options.tlsCertificate.empty() ? "http://" : "https://") + m_options.host + ":" +
           std::to_string(m_port);
}

void FaceServer::serve()
{
    m_server->listen_after_bind();
}

void FaceServer::addRoutes()
{
    const Method get = &httplib::Server::Get;
    const Method post = &httplib::Server::Post;
    const Method remove = &httplib::Server::Delete;
    const std::string base = R"(/channels/(\d{1,6})/scim/v2)";
    route(get, base + "/ServiceProviderConfig", Operation::Discover, &FaceHandlers::describeService);
    route(get, base + "/ResourceTypes", Operation::Discover, &FaceHandlers::describeTypes);
    route(get, base + "/Schemas", Operation::Discover, &FaceHandlers::describeSchemas);
    route(get, base + "/Schemas/([^/]+)", Operation::Discover, &FaceHandlers::describeSchema);
    route(get, base + "/Faces", Operation::List, &FaceHandlers::listFaces);
    route(post, base + "/Faces", Operation::Add, &FaceHandlers::addFace);
    route(get, base + "/Faces/([^/]+)", Operation::List, &FaceHandlers::getFace);
    route(remove, base + "/Faces/([^/]+)", Operation::Delete, &FaceHandlers::deleteFace);
    m_server->Get("/channels", [this](const httplib::Request& request, httplib::Response& response) {
        if (admits(request, response))
            m_handlers.describeDevice(response);
    });
    m_server->set_error_handler([](const httplib::Request&, httplib::Response& response) {
        if (response.body.empty())
            response.set_content(errorDocument(response.status, "", "no such resource or operation"),
                                 ScimMediaType);
    });
}

void FaceServer::route(Method method, const std::string& path, Operation operation, Handler handler)
{
    const auto serve = [this, operation, handler](const httplib::Request& request,
                                                  httplib::Response& response) {
        std::this_thread::sleep_for(std::chrono::milliseconds(m_options.latencyMs));
        if (!admits(request, response))
            return;
        const int number = std::stoi(request.matches[1]);
        const auto channel = m_channels.find(number);
        if (channel == m_channels.end()) {
            response.status = 404;
            return;
        }
        const FaultRule rule = m_faults.next(operation, number);
        if (replacesAnswer(rule.fault))
            actFault(rule, request, response);
        else
            (m_handlers.*handler)({number, *channel->second, rule.fault, request, response});
    };
    (m_server.get()->*method)(path, serve);
}

bool FaceServer::admits(const httplib::Request& request, httplib::Response& response) const
{
    if (m_options.token.empty() || request.get_header_value("Authorization") == "Bearer " + m_options.token)
        return true;
    response.status = 401;
    response.set_header("WWW-Authenticate", "Bearer");
    response.set_content(errorDocument(401, "", "the token is missing or wrong"), ScimMediaType);
    return false;
}

} // namespace sim
