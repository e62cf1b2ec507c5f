#pragma once

#include <qarn_data/PersonInfo.h>

#include <QRandomGenerator>
#include <QStringList>

namespace qarn_bench
{

/// Invents persons; the same seed gives the same ones. Names come from names.tsv in the directory that
/// QARN_SAMPLE_DATA names (../shared/data beside the project when unset), or from a short list here.
class People
{
public:
    explicit People(quint32 seed);

    /// All basic data filled, about half of the optional fields, no images.
    qarn_data::PersonInfo next(const QString& organizationId);
    qarn_data::PersonList make(int count, const QStringList& organizationIds);
    /// Bytes that no compressor or page cache can make smaller; they only begin like a JPEG file.
    QByteArray image(int size);

private:
    QString newId();
    QString newName();
    bool oneIn(int chances) { return m_random.bounded(chances) == 0; }
    void addOptionalFields(qarn_data::PersonInfo& person);

    QRandomGenerator m_random;
    QStringList m_names;
    int m_count = 0;
};

} // namespace qarn_bench
