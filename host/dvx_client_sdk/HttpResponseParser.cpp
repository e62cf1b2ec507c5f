#include "HttpResponseParser.h"

#include <QIODevice>

#include <algorithm>
#include <array>
#include <utility>

namespace dvx_sdk
{

namespace
{

constexpr qint64 MaxHeadBytes = 32 * 1024; ///< status line, headers, chunk heads and trailers together
constexpr int MaxChunkDigits = 15;
constexpr int PieceBytes = 64 * 1024;

} // namespace

HttpResponseParser::HttpResponseParser(qint64 bodyLimit, QByteArray space)
    : m_bodyLimit(bodyLimit),
      m_body(std::move(space))
{
}

void HttpResponseParser::feed(const char* bytes, qint64 count)
{
    m_input = {bytes, static_cast<std::size_t>(count)};
    while (!isDone() && !isBroken() && step()) {
    }
    if (isDone() && !m_input.empty())
        m_keepAlive = false; // more than was asked for: the next answer could not be told apart
    m_input = {};
}

qint64 HttpResponseParser::feedFrom(QIODevice& device)
{
    if (m_state == State::Length)
        return readBodyFrom(device);
    std::array<char, PieceBytes> bytes;
    const qint64 count = device.read(bytes.data(), PieceBytes);
    if (count > 0)
        feed(bytes.data(), count);
    return count;
}

qint64 HttpResponseParser::readBodyFrom(QIODevice& device)
{
    const int before = m_body.size();
    m_body.resize(before + static_cast<int>(m_remaining) + 1); // one more than is asked for, as in feed()
    const qint64 count = device.read(m_body.data() + before, m_remaining + 1);
    const qint64 taken = std::clamp<qint64>(count, 0, m_remaining);
    m_body.resize(before + static_cast<int>(taken));
    m_remaining -= taken;
    if (count > taken)
        m_keepAlive = false;
    if (m_remaining == 0)
        end();
    return count;
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
        return readBody();
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
    const std::size_t end = m_input.find('\n');
    const bool whole = end != std::string_view::npos;
    const std::string_view piece = m_input.substr(0, whole ? end + 1 : end);
    m_headBytes += static_cast<qint64>(piece.size());
    if (m_headBytes > MaxHeadBytes) {
        m_state = State::Broken;
        return false;
    }
    m_line.append(piece.data(), static_cast<int>(piece.size()));
    m_input.remove_prefix(piece.size());
    if (!whole)
        return false;
    m_line.chop(m_line.endsWith("\r\n") ? 2 : 1);
    line = std::move(m_line);
    m_line.clear();
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
            m_body.reserve(static_cast<int>(m_remaining) + 1);
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

bool HttpResponseParser::readBody()
{
    if (m_input.empty())
        return false;
    const bool counted = m_state != State::UntilClose;
    const auto available = static_cast<qint64>(m_input.size());
    const qint64 count = counted ? std::min(m_remaining, available) : available;
    limitBody(count);
    if (isBroken())
        return false;
    m_body.append(m_input.data(), static_cast<int>(count));
    m_input.remove_prefix(static_cast<std::size_t>(count));
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
