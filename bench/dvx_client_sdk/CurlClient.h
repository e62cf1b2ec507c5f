#pragma once

#include <QByteArray>
#include <QUrl>

#include <curl/curl.h>

#include <memory>

namespace qarn_bench
{

/// The least that a client can be: one kept-alive connection, bytes out, bytes in.
class CurlClient
{
public:
    explicit CurlClient(const QUrl& address);

    void post(const QByteArray& path, const QByteArray& body); ///< ends the program unless it is created
    QByteArray get(const QByteArray& path);                    ///< ends the program unless it is found

private:
    long perform(const QByteArray& path);

    const QByteArray m_base;
    std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> m_curl;
    std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)> m_headers;
    QByteArray m_answer;
};

} // namespace qarn_bench
