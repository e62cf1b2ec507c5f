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

    QByteArray image(const QByteArray& key); ///< empty when there is none
    QByteArray put(const QByteArray& bytes); ///< the key; empty when the store refuses

private:
    SqlStore& m_store;
    QHash<QByteArray, QByteArray> m_read;
};

} // namespace qarn_data
