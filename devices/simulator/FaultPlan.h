#pragma once

#include <mutex>
#include <random>
#include <string>
#include <vector>

namespace sim
{

enum class Operation { Any, Discover, List, Add, Delete };

enum class Fault {
    None,
    Status,  ///< an error answer with a given HTTP status
    Hang,    ///< no answer until the client goes
    Drop,    ///< the connection is closed without an answer
    Half,    ///< the connection is closed in the middle of an answer
    Rubbish, ///< success, with a body that is no JSON
    Huge,    ///< success, with a body of 4 GiB
    Drip,    ///< an answer that comes a byte at a time
    Total,   ///< a list that promises more faces than there are
    Empty,   ///< a list without the faces that it promises
};

/// One --fail of the command line: which requests meet which fault.
struct FaultRule {
    Fault fault = Fault::None;
    int status = 0;
    Operation operation = Operation::Any;
    int channel = 0; ///< 0: all
    int every = 1;   ///< each n-th of the requests that match
    int after = 0;   ///< so many matching requests go well first
    int percent = 100;
};

/// "FAULT[,key=value]..." as the usage text explains it.
bool parseFaultRule(const std::string& text, FaultRule& rule);

/// Decides for every request whether it meets a fault. Any thread.
class FaultPlan
{
public:
    FaultPlan(std::vector<FaultRule> rules, unsigned seed);

    /// The first rule that strikes; one with Fault::None otherwise.
    FaultRule next(Operation operation, int channel);

private:
    std::mutex m_mutex;
    std::vector<FaultRule> m_rules;
    std::vector<int> m_matches;
    std::mt19937 m_random;
};

} // namespace sim
