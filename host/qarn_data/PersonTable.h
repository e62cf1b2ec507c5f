#pragma once

#include "FaceImageStore.h"
#include "LocalTimes.h"
#include "NumberRanges.h"
#include "PersonIndex.h"
#include "Statement.h"

#include <functional>
#include <optional>

namespace qarn_data
{

class OrganizationIndex;
class SqlStore;

using RecordHandler = std::function<void(StoredRecord&&)>;

/// Persons and their records in the database. A record that is read carries all custom values, also those
/// of removed names.
class PersonTable
{
public:
    PersonTable(SqlStore& store, const OrganizationIndex& organizations);

    bool count(int* records);
    /// The numbers of the first `count` records, or of all when there are fewer.
    bool firstRecords(int count, NumberRange* numbers);

    // All in the order of addition.
    bool readAll(const RecordHandler& handler);
    bool readRecords(const NumberRange& numbers, const RecordHandler& handler);
    bool readPerson(qint64 person, const RecordHandler& handler);

    bool insertPerson(qint64 person, const PersonInfo& info);
    bool insertRecord(const StoredRecord& record);
    bool deleteRecord(qint64 record);
    bool moveRecord(qint64 record, const QString& organizationId);
    /// Writes what differs between `old` and `info`; values of removed custom fields stay.
    bool updatePerson(qint64 person, const PersonInfo& old, const PersonInfo& info);

private:
    struct Selection;

    bool read(const Selection& selection, const Values& values, const RecordHandler& handler);
    bool updateValidity(qint64 person, const PersonInfo& old, const PersonInfo& info);
    bool putFace(qint64 person, int slot, const QByteArray& bytes);
    bool putFields(qint64 person, const QMap<QString, QString>& fields);
    std::optional<qint64> stored(const QDateTime& time);
    std::optional<qint64> place(const QString& organizationId) const;

    SqlStore& m_store;
    const OrganizationIndex& m_organizations;
    FaceImageStore m_faces;
    LocalTimes m_times;
};

} // namespace qarn_data
