#include "TokenCipher.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

#include <sodium.h>

namespace qarn_data
{

namespace
{

constexpr int keySize = crypto_secretbox_KEYBYTES;
constexpr int nonceSize = crypto_secretbox_NONCEBYTES;
constexpr int tagSize = crypto_secretbox_MACBYTES;

QString tr(const char* text)
{
    return QCoreApplication::translate("qarn_data::TokenCipher", text);
}

unsigned char* raw(QByteArray& bytes)
{
    return reinterpret_cast<unsigned char*>(bytes.data());
}

const unsigned char* raw(const QByteArray& bytes)
{
    return reinterpret_cast<const unsigned char*>(bytes.constData());
}

// Written whole under another name first and never over an existing file, so that two processes that start
// together end with one key.
bool makeKeyFile(const QString& filePath)
{
    if (!QDir().mkpath(QFileInfo(filePath).absolutePath()))
        return false;
    QTemporaryFile file(filePath + QStringLiteral(".XXXXXX"));
    QByteArray key(keySize, Qt::Uninitialized);
    randombytes_buf(key.data(), std::size_t(key.size()));
    const bool written = file.open() && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner) &&
                         file.write(key) == key.size() && file.flush();
    sodium_memzero(key.data(), std::size_t(key.size()));
    return written && (QFile::rename(file.fileName(), filePath) || QFile::exists(filePath));
}

QByteArray readKey(QString* error, bool makeMissing)
{
    const QString filePath = TokenCipher::keyFilePath();
    if (sodium_init() < 0) {
        *error = tr("The system gives no random numbers.");
        return {};
    }
    if (makeMissing && !QFile::exists(filePath) && !makeKeyFile(filePath)) {
        *error = tr("The key file %1 cannot be made. Check your rights in its folder.").arg(filePath);
        return {};
    }
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly) || file.size() != keySize) {
        *error = tr("The key file %1 cannot be read or is damaged. Restore it from a backup.").arg(filePath);
        return {};
    }
    return file.readAll();
}

} // namespace

QString TokenCipher::keyFilePath()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
           QStringLiteral("/device-key");
}

QByteArray TokenCipher::encrypt(const QString& token, QString* error)
{
    if (token.isEmpty())
        return {};
    QByteArray key = readKey(error, true);
    if (key.isEmpty())
        return {};
    const QByteArray clear = token.toUtf8();
    QByteArray nonce(nonceSize, Qt::Uninitialized);
    randombytes_buf(nonce.data(), std::size_t(nonce.size()));
    QByteArray box(tagSize + clear.size(), Qt::Uninitialized);
    crypto_secretbox_easy(raw(box), raw(clear), static_cast<unsigned long long>(clear.size()),
                          raw(qAsConst(nonce)), raw(qAsConst(key)));
    sodium_memzero(key.data(), std::size_t(key.size()));
    return nonce + box;
}

QString TokenCipher::decrypt(const QByteArray& cipherText)
{
    if (cipherText.size() < nonceSize + tagSize)
        return {};
    QString ignored;
    QByteArray key = readKey(&ignored, false);
    if (key.isEmpty())
        return {};
    const QByteArray nonce = cipherText.left(nonceSize);
    const QByteArray box = cipherText.mid(nonceSize);
    QByteArray clear(box.size() - tagSize, Qt::Uninitialized);
    const int opened = crypto_secretbox_open_easy(
        raw(clear), raw(box), static_cast<unsigned long long>(box.size()), raw(nonce), raw(qAsConst(key)));
    sodium_memzero(key.data(), std::size_t(key.size()));
    return opened == 0 ? QString::fromUtf8(clear) : QString();
}

} // namespace qarn_data
