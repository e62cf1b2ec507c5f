#include "HttpResponseParser.h"

#include <algorithm>

namespace dvx_sdk
{

namespace
{

constexpr qint64 MaxHeadBytes = 32 * 1024; ///< status line, headers, chunk heads and trailers together
constexpr int MaxChunkDigits = 15;

} // namespace

HttpResponseParser::HttpResponseParser(qint64 bodyLimit) : m_bodyLimit(bodyLimit) {}

void HttpResponseParser::feed(const QByteArray& bytes)
{
    m_input += bytes;
    while (!isDone() && !isBroken() && step()) {
    }
    if (isDone() && !m_input.isEmpty())
        m_keepAlive = false; // more than was asked for: the next answer could not be told apart
}

void HttpResponseParser::finish()
{
    if (m_state == State::UntilClose)
        end();
    else if (!isDone())
        m_state = State::Broken;
    m_keepAlive = false;
}

/// False when more input is needed.
bool HttpResponseParser::step()
{
    if (m_state == State::Length || m_state == State::Chunk || m_state == State::UntilClose)
        return takeBody();
    QByteArray line;
    if (!takeLine(line))
        return false;
    if (m_state == State::Head && m_status == 0)
        readStatusLine(line);
    else if (m_state == State::Head && !line.isEmpty())
        readHeader(line);
    else if (m_state == State::Head)
        endHead();
    else if (m_state == State::ChunkHead)
        readChunkHead(line);
    else if (m_state == State::ChunkTail)
        m_state = line.isEmpty() ? State::ChunkHead : State::Broken;
    else if (line.isEmpty()) // end of the trailer
        end();
    return true;
}

bool HttpResponseParser::takeLine(QByteArray& line)
{
    const int end = m_input.indexOf('\n');
    const qint64 length = end < 0 ? m_input.size() : end + 1;
    if (m_headBytes + length > MaxHeadBytes) {
        m_state = State::Broken;
        return false;
    }
    if (end < 0)
        return false;
    m_headBytes += length;
    line = m_input.left(end);
    m_input.remove(0, end + 1);
    if (line.endsWith('\r'))
        line.chop(1);
    return true;
}

void HttpResponseParser::readStatusLine(const QByteArray& line)
{
    bool number = false;
    m_status = line.mid(9, 3).toInt(&number);
    const bool fits = line.startsWith("HTTP/1.") && line.size() >= 12 && line[8] == ' ' &&
                      (line.size() == 12 || line[12] == ' ') && number && m_status >= 100;
    m_oldProtocol = line.startsWith("HTTP/1.0");
    if (!fits)
        m_state = State::Broken;
}

void HttpResponseParser::readHeader(const QByteArray& line)
{
    const int colon = line.indexOf(':');
    const QByteArray name = line.left(colon).toLower();
    const QByteArray value = line.mid(colon + 1).trimmed();
    const bool conflict =
        name == "content-length" && m_headers.contains(name) && m_headers.value(name) != value;
    if (colon <= 0 || conflict)
        m_state = State::Broken;
    else
        m_headers.insert(name, value);
}

void HttpResponseParser::endHead()
{
    if (m_status < 200) { // "continue" and the like: the answer comes next
        m_status = 0;
        m_headers.clear();
        return;
    }
    const QByteArray connection = header("connection").toLower();
    m_keepAlive = m_oldProtocol ? connection == "keep-alive" : connection != "close";
    const QByteArray encoding = header("content-encoding").toLower();
    const QByteArray transfer = header("transfer-encoding").toLower();
    if (m_status == 204 || m_status == 304) {
        end();
    } else if ((!encoding.isEmpty() && encoding != "identity") ||
               (!transfer.isEmpty() && transfer != "chunked")) {
        m_state = State::Broken; // not asked for
    } else if (!transfer.isEmpty()) {
        m_state = State::ChunkHead;
    } else if (m_headers.contains("content-length")) {
        bool number = false;
        m_remaining = header("content-length").toLongLong(&number);
        m_state = number && m_remaining >= 0 ? State::Length : State::Broken;
        limitBody(m_remaining);
        if (m_state == State::Length)
            m_body.reserve(static_cast<int>(m_remaining));
        if (m_state == State::Length && m_remaining == 0)
            end();
    } else {
        m_state = State::UntilClose;
    }
}

void HttpResponseParser::readChunkHead(const QByteArray& line)
{
    const int end = line.indexOf(';');
    const QByteArray digits = (end < 0 ? line : line.left(end)).trimmed();
    bool number = false;
    m_remaining = digits.toLongLong(&number, 16);
    if (!number || digits.size() > MaxChunkDigits || m_remaining < 0) {
        m_state = State::Broken;
        return;
    }
    m_state = m_remaining == 0 ? State::Trailer : State::Chunk;
    m_headBytes -= std::min<qint64>(m_headBytes, m_remaining); // many chunks are no long head
    limitBody(m_remaining);
}

bool HttpResponseParser::takeBody()
{
    if (m_input.isEmpty())
        return false;
    const bool counted = m_state != State::UntilClose;
    const qint64 count = counted ? std::min<qint64>(m_remaining, m_input.size()) : m_input.size();
    limitBody(count);
    if (isBroken())
        return false;
    m_body.append(m_input.constData(), static_cast<int>(count));
    if (count == m_input.size())
        m_input.clear();
    else
        m_input.remove(0, static_cast<int>(count));
    m_remaining -= counted ? count : 0;
    if (counted && m_remaining == 0) {
        if (m_state == State::Chunk)
            m_state = State::ChunkTail;
        else
            end();
    }
    return true;
}

void HttpResponseParser::limitBody(qint64 more)
{
    if (!isBroken() && m_body.size() + more > m_bodyLimit)
        m_state = State::Broken;
}

void HttpResponseParser::end()
{
    m_state = State::Done;
}

} // namespace dvx_sdk
