#include "FaultPlan.h"

#include <charconv>
#include <map>
#include <sstream>

namespace sim
{

namespace
{

constexpr int RefusedStatus = 400;

bool toNumber(const std::string& text, int least, int most, int& value)
{
    const char* end = text.data() + text.size();
    const auto [rest, failure] = std::from_chars(text.data(), end, value);
    return failure == std::errc{} && rest == end && value >= least && value <= most;
}

bool parseFault(const std::string& text, FaultRule& rule)
{
    static const std::map<std::string, Fault> words = {
        {"hang", Fault::Hang}, {"drop", Fault::Drop}, {"half", Fault::Half},   {"rubbish", Fault::Rubbish},
        {"huge", Fault::Huge}, {"drip", Fault::Drip}, {"total", Fault::Total}, {"empty", Fault::Empty},
    };
    if (const auto word = words.find(text); word != words.end()) {
        rule.fault = word->second;
        return true;
    }
    rule.fault = Fault::Status;
    rule.status = RefusedStatus;
    return text == "refuse" || toNumber(text, 300, 599, rule.status);
}

bool parseOperation(const std::string& text, Operation& operation)
{
    static const std::map<std::string, Operation> words = {
        {"any", Operation::Any}, {"discover", Operation::Discover}, {"list", Operation::List},
        {"add", Operation::Add}, {"delete", Operation::Delete},
    };
    const auto word = words.find(text);
    if (word == words.end())
        return false;
    operation = word->second;
    return true;
}

bool parseSetting(const std::string& key, const std::string& value, FaultRule& rule)
{
    constexpr int Most = 1000000;
    if (key == "on")
        return parseOperation(value, rule.operation);
    if (key == "channel")
        return toNumber(value, 1, Most, rule.channel);
    if (key == "every")
        return toNumber(value, 1, Most, rule.every);
    if (key == "after")
        return toNumber(value, 0, Most, rule.after);
    return key == "percent" && toNumber(value, 0, 100, rule.percent);
}

} // namespace

bool parseFaultRule(const std::string& text, FaultRule& rule)
{
    std::istringstream parts(text);
    std::string part;
    if (!std::getline(parts, part, ',') || !parseFault(part, rule))
        return false;
    while (std::getline(parts, part, ',')) {
        const auto equals = part.find('=');
        if (equals == std::string::npos ||
            !parseSetting(part.substr(0, equals), part.substr(equals + 1), rule))
            return false;
    }
    return true;
}

FaultPlan::FaultPlan(std::vector<FaultRule> rules, unsigned seed)
    : m_rules(std::move(rules)),
      m_matches(m_rules.size(), 0),
      m_random(seed)
{
}

FaultRule FaultPlan::next(Operation operation, int channel)
{
    const std::lock_guard lock(m_mutex);
    for (std::size_t i = 0; i < m_rules.size(); ++i) {
        const FaultRule& rule = m_rules[i];
        if (rule.operation != Operation::Any && rule.operation != operation)
            continue;
        if (rule.channel != 0 && rule.channel != channel)
            continue;
        const int match = ++m_matches[i] - rule.after;
        if (match <= 0 || match % rule.every != 0)
            continue;
        if (std::uniform_int_distribution<int>(1, 100)(m_random) <= rule.percent)
            return rule;
    }
    return {};
}

} // namespace sim
