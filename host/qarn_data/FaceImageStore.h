#pragma once

#include <QByteArray>
#include <QHash>

namespace qarn_data
{

class SqlStore;

/// Where the bytes of face images are kept: equal images once, found by a key made from their bytes. What
/// it has read it hands out again without a copy while it lives.
class FaceImageStore
{
public:
    explicit FaceImageStore(SqlStore& store) : m_store(store) {}

    QByteArray image(const QByteArray& key); ///< empty when there is none, or when reading failed
    /// Reads every image in the order of the file, for whoever will ask for most of them.
    void readAll();
    QByteArray put(const QByteArray& bytes); ///< the key; empty when the store refuses
    /// Whether any image could not be read.
    bool hasFailed() const { return m_hasFailed; }

private:
    SqlStore& m_store;
    bool m_hasFailed = false;
    QHash<QByteArray, QByteArray> m_read;
};

} // namespace qarn_data
