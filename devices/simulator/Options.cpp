#include "Options.h"

#include <charconv>
#include <functional>
#include <map>

namespace sim
{

namespace
{

using Setter = std::function<bool(const std::string& value)>;

Setter number(int& target, int least, int most)
{
    return [&target, least, most](const std::string& text) {
        int value = 0;
        const char* end = text.data() + text.size();
        const auto [rest, failure] = std::from_chars(text.data(), end, value);
        if (failure != std::errc{} || rest != end || value < least || value > most)
            return false;
        target = value;
        return true;
    };
}

Setter text(std::string& target)
{
    return [&target](const std::string& value) {
        target = value;
        return !value.empty();
    };
}

std::map<std::string, Setter> setters(Options& options, int& seed)
{
    return {
        {"--host", text(options.host)},
        {"--port", number(options.port, 0, 65535)},
        {"--channels", number(options.channels, 1, 10000)},
        {"--capacity", number(options.capacity, 0, 10000000)},
        {"--page-limit", number(options.pageLimit, 1, 100000)},
        {"--latency-ms", number(options.latencyMs, 0, 600000)},
        {"--seed", number(seed, 0, 1 << 30)},
        {"--name", text(options.name)},
        {"--token", text(options.token)},
        {"--data", text(options.dataFile)},
        {"--tls-cert", text(options.tlsCertificate)},
        {"--tls-key", text(options.tlsKey)},
        {"--schema-urn", text(options.schemaUrn)},
        {"--fail",
         [&options](const std::string& value) {
             FaultRule rule;
             const bool good = parseFaultRule(value, rule);
             options.faults.push_back(rule);
             return good;
         }},
    };
}

} // namespace

bool parseOptions(const std::vector<std::string>& arguments, Options& options, std::string& error)
{
    int seed = 1;
    const auto known = setters(options, seed);
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& name = arguments[i];
        if (name == "--help") {
            options.help = true;
            continue;
        }
        if (name == "--until-stdin-closes") {
            options.untilStdinCloses = true;
            continue;
        }
        const auto setter = known.find(name);
        if (setter == known.end()) {
            error = "unknown option " + name + "; --help lists them";
            return false;
        }
        if (i + 1 == arguments.size() || !setter->second(arguments[i + 1])) {
            error = name + " needs a fitting value; --help tells which";
            return false;
        }
        ++i;
    }
    options.seed = static_cast<unsigned>(seed);
    if (options.tlsCertificate.empty() != options.tlsKey.empty()) {
        error = "--tls-cert and --tls-key go together";
        return false;
    }
    return true;
}

std::string usage()
{
    return R"(face-device-sim: behaves like a face-recognition device on the network

  --port P              port to listen at; 0 (default) takes a free one
  --host ADDRESS        address to listen at (default 127.0.0.1)
  --channels N          number of channels (default 1)
  --name TEXT           name that the device tells
  --token T             bearer token that every request must carry
  --capacity N          faces a channel (default 50000)
  --page-limit N        most faces in one answer (default 1000)
  --data FILE           keeps the faces in FILE (JSON lines) and starts with what it holds
  --tls-cert F --tls-key F   serve https with this certificate and key (PEM)
  --schema-urn URN      schema of the Face resource
  --latency-ms L        wait so long before each answer
  --fail FAULT[,on=discover|list|add|delete|any][,channel=N][,every=N][,after=N][,percent=P]
                        misbehave; may be given several times. FAULT is an HTTP status (400 ... 599, 302)
                        or one of: refuse hang drop half rubbish huge drip total empty
  --seed N              of the faults with percent=
  --until-stdin-closes  ends when the program that started it goes

The first line of the output tells where it listens. SIGTERM and SIGINT end it.
)";
}

} // namespace sim
