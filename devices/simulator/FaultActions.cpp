#include "FaultActions.h"

#include "ScimDocuments.h"

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <netinet/in.h>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <thread>

namespace sim
{

namespace
{

constexpr std::size_t HugeBytes = std::size_t(4) << 30;
constexpr int DripMs = 20;
constexpr std::size_t DripBytes = 100000; ///< more than half an hour

/// The HTTP library does not hand out the socket of a request; the peer's port tells which one it is.
int socketOf(const httplib::Request& request)
{
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        const int socket = std::stoi(entry.path().filename().string());
        sockaddr_storage peer{};
        socklen_t length = sizeof peer;
        if (getpeername(socket, reinterpret_cast<sockaddr*>(&peer), &length) != 0)
            continue;
        in_port_t port = 0;
        if (peer.ss_family == AF_INET)
            port = reinterpret_cast<sockaddr_in*>(&peer)->sin_port;
        else if (peer.ss_family == AF_INET6)
            port = reinterpret_cast<sockaddr_in6*>(&peer)->sin6_port;
        if (ntohs(port) == request.remote_port)
            return socket;
    }
    return -1;
}

void hang(const httplib::Request& request)
{
    pollfd watched{socketOf(request), POLLRDHUP, 0};
    poll(&watched, 1, -1);
    shutdown(watched.fd, SHUT_RDWR);
}

/// An answer that promises `length` bytes and breaks off after `sent`.
void answerPartly(httplib::Response& response, std::size_t length, std::size_t sent)
{
    response.status = 200;
    response.set_content_provider(
        length, ScimMediaType, [sent](std::size_t offset, std::size_t, httplib::DataSink& sink) {
            const std::string block(std::min<std::size_t>(sent - std::min(offset, sent), 65536), ' ');
            return !block.empty() && sink.write(block.data(), block.size());
        });
}

void drip(httplib::Response& response)
{
    response.status = 200;
    response.set_content_provider(DripBytes, ScimMediaType,
                                  [](std::size_t, std::size_t, httplib::DataSink& sink) {
                                      std::this_thread::sleep_for(std::chrono::milliseconds(DripMs));
                                      return sink.write(" ", 1);
                                  });
}

void refuse(int status, httplib::Response& response)
{
    constexpr int Busy = 503;
    response.status = status;
    response.set_content(errorDocument(status, "", "fault set on the command line"), ScimMediaType);
    if (status == Busy)
        response.set_header("Retry-After", "5");
    if (status < 400)
        response.set_header("Location", "/elsewhere");
}

} // namespace

bool replacesAnswer(Fault fault)
{
    return fault != Fault::None && fault != Fault::Total && fault != Fault::Empty;
}

void actFault(const FaultRule& rule, const httplib::Request& request, httplib::Response& response)
{
    switch (rule.fault) {
    case Fault::Status:
        return refuse(rule.status, response);
    case Fault::Hang:
        return hang(request);
    case Fault::Drop:
        shutdown(socketOf(request), SHUT_RDWR);
        return;
    case Fault::Half:
        return answerPartly(response, 1000, 500);
    case Fault::Rubbish:
        response.status = 200;
        return response.set_content("<html>\xff not JSON</html>", ScimMediaType);
    case Fault::Huge:
        return answerPartly(response, HugeBytes, HugeBytes);
    case Fault::Drip:
        return drip(response);
    case Fault::None:
    case Fault::Total:
    case Fault::Empty:
        break;
    }
}

} // namespace sim
