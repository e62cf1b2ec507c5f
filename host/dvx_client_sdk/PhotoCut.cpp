#include "PhotoCut.h"

#include <cstring>
#include <string_view>

namespace dvx_sdk
{

namespace
{

using Text = std::string_view;

/// Whether a byte is a control character or no ASCII. Eight bytes at a time: photographs are long.
bool hasOddByte(const char* bytes, std::size_t count)
{
    constexpr quint64 Highest = 0x8080808080808080;
    constexpr quint64 Spaces = 0x2020202020202020;
    quint64 odd = 0;
    const auto look = [&odd](quint64 eight) { odd |= (eight - Spaces) | eight; };
    std::size_t at = 0;
    for (; at + sizeof(quint64) <= count; at += sizeof(quint64)) {
        quint64 eight = 0;
        std::memcpy(&eight, bytes + at, sizeof eight);
        look(eight);
    }
    quint64 rest = Spaces;
    std::memcpy(&rest, bytes + at, count - at);
    look(rest);
    return (odd & Highest) != 0;
}

/// Position of the quotation mark that ends the JSON text that begins at `at`; npos when none does.
std::size_t endOfText(Text json, std::size_t at, bool& escaped)
{
    escaped = false;
    for (;;) {
        const std::size_t end = json.find('"', at);
        if (end == Text::npos)
            return end;
        const std::size_t backslash = json.substr(0, end).find('\\', at);
        if (backslash == Text::npos)
            return end;
        escaped = true;
        at = backslash + 2; // behind the character that it escapes
    }
}

std::size_t skipSpace(Text json, std::size_t at)
{
    return std::min(json.find_first_not_of(" \t\r\n", at), json.size());
}

bool isPhotoKey(Text key)
{
    return key.size() == 5 && qstrnicmp(key.data(), "photo", 5) == 0;
}

/// Walks from one JSON text to the next.
class Cutter
{
public:
    explicit Cutter(const QByteArray& body) : m_json(body.constData(), static_cast<std::size_t>(body.size()))
    {
    }

    /// False when the body has to stay as it is.
    bool cut()
    {
        for (std::size_t quote = m_json.find('"'); quote != Text::npos; quote = m_json.find('"', m_at)) {
            bool escaped = false;
            const std::size_t end = endOfText(m_json, quote + 1, escaped);
            if (end == Text::npos)
                return false;
            m_at = end + 1;
            const std::size_t colon = skipSpace(m_json, m_at);
            const bool isKey = colon < m_json.size() && m_json[colon] == ':';
            if (isKey && escaped)
                return false; // might be the photograph's
            if (isKey && isPhotoKey(m_json.substr(quote + 1, end - quote - 1)) && !cutValue(colon + 1))
                return false;
        }
        keepUntil(m_json.size());
        return true;
    }

    PhotoCut result;

private:
    bool cutValue(std::size_t at)
    {
        const std::size_t quote = skipSpace(m_json, at);
        if (quote >= m_json.size() || m_json[quote] != '"')
            return false;
        const std::size_t end = m_json.find('"', quote + 1);
        if (end == Text::npos)
            return false;
        const Text photo = m_json.substr(quote + 1, end - quote - 1);
        if (hasOddByte(photo.data(), photo.size()) || photo.find('\\') != Text::npos)
            return false;
        keepUntil(quote + 1);
        result.body += QByteArray::number(result.photos.count());
        result.photos.append(QByteArray(photo.data(), static_cast<int>(photo.size())));
        m_kept = end;
        m_at = end + 1;
        return true;
    }

    void keepUntil(std::size_t end)
    {
        result.body.append(m_json.data() + m_kept, static_cast<int>(end - m_kept));
        m_kept = end;
    }

    const Text m_json;
    std::size_t m_at = 0;   ///< behind the last text
    std::size_t m_kept = 0; ///< up to here all is in the result
};

} // namespace

PhotoCut cutPhotos(const QByteArray& body)
{
    Cutter cutter(body);
    if (!cutter.cut() || cutter.result.photos.isEmpty())
        return {body, {}};
    return std::move(cutter.result);
}

bool isPlainText(const char* text, qint64 length)
{
    const auto size = static_cast<std::size_t>(length);
    return !hasOddByte(text, size) && std::memchr(text, '"', size) == nullptr &&
           std::memchr(text, '\\', size) == nullptr;
}

QByteArray toStandardAlphabet(QByteArray base64)
{
    const auto has = [&base64](char c) {
        return std::memchr(base64.constData(), c, static_cast<std::size_t>(base64.size())) != nullptr;
    };
    if (has('-'))
        base64.replace('-', '+');
    if (has('_'))
        base64.replace('_', '/');
    return base64;
}

} // namespace dvx_sdk
