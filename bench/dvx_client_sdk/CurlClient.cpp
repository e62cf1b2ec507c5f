#include "dvx_client_sdk/CurlClient.h"

namespace qarn_bench
{

namespace
{

std::size_t keep(char* data, std::size_t size, std::size_t count, void* target)
{
    static_cast<QByteArray*>(target)->append(data, static_cast<int>(size * count));
    return size * count;
}

} // namespace

CurlClient::CurlClient(const QUrl& address)
    : m_base(address.toEncoded() + "/channels/1/scim/v2"),
      m_curl(curl_easy_init(), &curl_easy_cleanup),
      m_headers(nullptr, &curl_slist_free_all)
{
    curl_slist* headers = curl_slist_append(nullptr, "Content-Type: application/scim+json");
    m_headers.reset(curl_slist_append(headers, "Expect:")); // no round trip before the body
    curl_easy_setopt(m_curl.get(), CURLOPT_HTTPHEADER, m_headers.get());
    curl_easy_setopt(m_curl.get(), CURLOPT_TCP_NODELAY, 1L);
    curl_easy_setopt(m_curl.get(), CURLOPT_WRITEFUNCTION, &keep);
    curl_easy_setopt(m_curl.get(), CURLOPT_WRITEDATA, &m_answer);
}

void CurlClient::post(const QByteArray& path, const QByteArray& body)
{
    constexpr long Created = 201;
    curl_easy_setopt(m_curl.get(), CURLOPT_POST, 1L);
    curl_easy_setopt(m_curl.get(), CURLOPT_POSTFIELDS, body.constData());
    curl_easy_setopt(m_curl.get(), CURLOPT_POSTFIELDSIZE, static_cast<long>(body.size()));
    if (perform(path) != Created)
        qFatal("the device refuses: %s", m_answer.constData());
}

QByteArray CurlClient::get(const QByteArray& path)
{
    constexpr long Ok = 200;
    curl_easy_setopt(m_curl.get(), CURLOPT_HTTPGET, 1L);
    if (perform(path) != Ok)
        qFatal("the device refuses: %s", m_answer.constData());
    return m_answer;
}

long CurlClient::perform(const QByteArray& path)
{
    m_answer.clear();
    const QByteArray url = m_base + path;
    curl_easy_setopt(m_curl.get(), CURLOPT_URL, url.constData());
    const CURLcode code = curl_easy_perform(m_curl.get());
    if (code != CURLE_OK)
        qFatal("no answer: %s", curl_easy_strerror(code));
    long status = 0;
    curl_easy_getinfo(m_curl.get(), CURLINFO_RESPONSE_CODE, &status);
    return status;
}

} // namespace qarn_bench
