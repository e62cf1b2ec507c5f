#include "support/SqlLiterals.h"

#include <QtGlobal>

#include <cctype>
#include <cstdlib>
#include <map>

namespace qarn_bench
{

namespace
{

bool isNamePart(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}

std::size_t endOfQuoted(const std::string& text, std::size_t at)
{
    const char quote = text[at];
    for (++at; at < text.size(); ++at) {
        if (text[at] != quote)
            continue;
        if (at + 1 < text.size() && text[at + 1] == quote)
            ++at;
        else
            return at + 1;
    }
    return at;
}

std::string unquoted(const std::string& quoted)
{
    std::string text;
    for (std::size_t i = 1; i + 1 < quoted.size(); ++i) {
        text += quoted[i];
        if (quoted[i] == '\'')
            ++i;
    }
    return text;
}

SqlBlob unhexed(const std::string& literal)
{
    SqlBlob blob;
    for (std::size_t i = 2; i + 2 < literal.size(); i += 2)
        blob.bytes += static_cast<char>(std::stoi(literal.substr(i, 2), nullptr, 16));
    return blob;
}

// Reads one literal at `at` and moves `at` behind it.
SqlValue takeLiteral(const std::string& text, std::size_t& at)
{
    const std::size_t start = at;
    if (text[at] == '\'') {
        at = endOfQuoted(text, at);
        return unquoted(text.substr(start, at - start));
    }
    if (text[at] == 'x' && at + 1 < text.size() && text[at + 1] == '\'') {
        at = endOfQuoted(text, at + 1);
        return unhexed(text.substr(start, at - start));
    }
    while (at < text.size() &&
           (isNamePart(text[at]) || text[at] == '.' || text[at] == '-' || text[at] == '+'))
        ++at;
    const std::string word = text.substr(start, at - start);
    if (word == "NULL")
        return std::monostate();
    if (word.find_first_of(".eE") != std::string::npos)
        return std::strtod(word.c_str(), nullptr);
    return static_cast<std::int64_t>(std::strtoll(word.c_str(), nullptr, 10));
}

std::size_t endOfParameter(const std::string& sql, std::size_t at)
{
    for (++at; at < sql.size() && isNamePart(sql[at]); ++at) {
    }
    return at;
}

// Puts a value where SQLite numbers its parameter: "?" is a new one, a name that came before is not.
void place(const SqlValue& value, const std::string& parameter, std::vector<SqlValue>& values,
           std::map<std::string, std::size_t>& named)
{
    std::size_t index = values.size();
    if (parameter.size() > 1 && parameter[0] == '?')
        index = std::stoul(parameter.substr(1)) - 1;
    else if (parameter != "?")
        index = named.emplace(parameter, index).first->second;
    if (index >= values.size())
        values.resize(index + 1);
    values[index] = value;
}

} // namespace

std::vector<SqlValue> boundValues(const std::string& sql, const std::string& expanded)
{
    std::vector<SqlValue> values;
    std::map<std::string, std::size_t> named;
    std::size_t written = 0;
    for (std::size_t at = 0; at < sql.size();) {
        const char c = sql[at];
        if (c == '?' || c == ':' || c == '@') {
            const std::size_t end = endOfParameter(sql, at);
            place(takeLiteral(expanded, written), sql.substr(at, end - at), values, named);
            at = end;
            continue;
        }
        const std::size_t next = c == '\'' || c == '"' ? endOfQuoted(sql, at) : at + 1;
        if (expanded.compare(written, next - at, sql, at, next - at) != 0)
            qFatal("cannot follow a recorded statement: %s", sql.c_str());
        written += next - at;
        at = next;
    }
    return values;
}

} // namespace qarn_bench
