#include "devices/AddressRules.h"

#include <QCoreApplication>

#include <algorithm>

namespace
{

QString text(const char* source)
{
    return QCoreApplication::translate("AddressRules", source);
}

QString whyNoAddress(const QUrl& url)
{
    if (!url.isValid() || url.host().isEmpty())
        return text(QT_TRANSLATE_NOOP("AddressRules", "Enter an address such as 192.168.1.20 or "
                                                      "https://gate.local:8443"));
    if (url.scheme() != QLatin1String("http") && url.scheme() != QLatin1String("https"))
        return text(QT_TRANSLATE_NOOP("AddressRules", "The address must begin with http:// or https://"));
    if (!url.userInfo().isEmpty() || url.hasQuery() || url.hasFragment())
        return text(QT_TRANSLATE_NOOP("AddressRules", "The address must hold no user name, ? or #"));
    return {};
}

} // namespace

QUrl deviceAddress(const QString& typed, QString* error)
{
    QString trimmed = typed.trimmed();
    if (!trimmed.contains(QLatin1String("://")))
        trimmed.prepend(QLatin1String("http://"));
    QUrl url(trimmed, QUrl::StrictMode);
    url.setScheme(url.scheme().toLower());
    while (url.path().endsWith(QLatin1Char('/')))
        url.setPath(url.path().chopped(1));
    const QString reason = whyNoAddress(url);
    if (error != nullptr)
        *error = reason;
    return reason.isEmpty() ? url : QUrl();
}

QString whyNoToken(const QString& token)
{
    const bool sendable = std::all_of(token.cbegin(), token.cend(),
                                      [](QChar c) { return c.unicode() > 0x20 && c.unicode() < 0x7f; });
    return sendable
               ? QString()
               : text(QT_TRANSLATE_NOOP("AddressRules", "A token has only letters, digits and signs of the "
                                                        "English keyboard, and no blanks"));
}
