#pragma once

#include <QByteArray>
#include <QString>

namespace qarn_data
{

/// Encrypts device tokens at rest, with a key that lies beside the user's settings and not in the store:
/// a copied store gives no access to devices. The key file is made on first use.
class TokenCipher
{
public:
    static QString keyFilePath();

    /// Empty for an empty token; also empty, with the reason in `error`, when there is no usable key.
    static QByteArray encrypt(const QString& token, QString* error);
    /// Empty when the key does not fit.
    static QString decrypt(const QByteArray& cipherText);
};

} // namespace qarn_data
