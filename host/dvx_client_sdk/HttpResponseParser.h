#pragma once

#include <QByteArray>
#include <QMap>

#include <string_view>

class QIODevice;

namespace dvx_sdk
{

/// Reads one HTTP/1.1 answer piece by piece (RFC 9112) and takes no more of it than the limits allow.
class HttpResponseParser
{
public:
    /// `space` is an empty array with memory for the body.
    explicit HttpResponseParser(qint64 bodyLimit, QByteArray space = {});

    void feed(const char* bytes, qint64 count);
    void feed(const QByteArray& bytes) { feed(bytes.constData(), bytes.size()); }
    /// Reads once from the device, the body without a copy. Gives what QIODevice::read() gave.
    qint64 feedFrom(QIODevice& device);
    void finish(); ///< the connection was closed

    bool isDone() const { return m_state == State::Done; }
    bool isBroken() const { return m_state == State::Broken; }
    int status() const { return m_status; }
    QByteArray header(const QByteArray& lowerCaseName) const { return m_headers.value(lowerCaseName); }
    const QByteArray& body() const { return m_body; }
    QByteArray takeBody() { return std::move(m_body); }
    /// Whether the connection can carry another request. Only when done.
    bool canKeepAlive() const { return m_keepAlive; }

private:
    enum class State { Head, Length, ChunkHead, Chunk, ChunkTail, Trailer, UntilClose, Done, Broken };

    bool step();
    bool takeLine(QByteArray& line);
    void readStatusLine(const QByteArray& line);
    void readHeader(const QByteArray& line);
    void endHead();
    void readChunkHead(const QByteArray& line);
    bool readBody();
    qint64 readBodyFrom(QIODevice& device);
    void limitBody(qint64 more);
    void end();

    State m_state = State::Head;
    const qint64 m_bodyLimit;
    qint64 m_remaining = 0; ///< bytes of the body, or of the chunk, still to come
    qint64 m_headBytes = 0;
    int m_status = 0;
    bool m_oldProtocol = false;
    bool m_keepAlive = false;
    QMap<QByteArray, QByteArray> m_headers;
    std::string_view m_input; ///< not read yet, of the bytes being fed
    QByteArray m_line;        ///< begun in the pieces before
    QByteArray m_body;
};

} // namespace dvx_sdk
