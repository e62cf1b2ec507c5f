#include "FaceImageStore.h"

#include "SqlStore.h"

#include <sodium.h>

namespace qarn_data
{

namespace
{

QByteArray keyOf(const QByteArray& bytes)
{
    QByteArray key(crypto_generichash_BYTES, Qt::Uninitialized);
    crypto_generichash(reinterpret_cast<unsigned char*>(key.data()), std::size_t(key.size()),
                       reinterpret_cast<const unsigned char*>(bytes.constData()),
                       static_cast<unsigned long long>(bytes.size()), nullptr, 0);
    return key;
}

} // namespace

QByteArray FaceImageStore::image(const QByteArray& key)
{
    if (key.isEmpty())
        return {};
    const auto known = m_read.constFind(key);
    if (known != m_read.constEnd())
        return *known;
    QByteArray bytes;
    if (!m_store.forEachRow("SELECT bytes FROM face_images WHERE hash = ?", {key},
                            [&bytes](const Row& row) { bytes = row.bytes(0); }))
        m_hasFailed = true;
    m_read.insert(key, bytes);
    return bytes;
}

void FaceImageStore::readAll()
{
    if (!m_store.forEachRow("SELECT hash, bytes FROM face_images", {},
                            [this](const Row& row) { m_read.insert(row.bytes(0), row.bytes(1)); }))
        m_hasFailed = true;
}

QByteArray FaceImageStore::put(const QByteArray& bytes)
{
    const QByteArray key = keyOf(bytes);
    const bool ok = m_store.run("INSERT INTO face_images (hash, bytes) VALUES (?, ?)"
                                " ON CONFLICT (hash) DO NOTHING",
                                key, bytes);
    return ok ? key : QByteArray();
}

} // namespace qarn_data
