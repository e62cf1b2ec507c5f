#include "PersonTable.h"

#include "OrganizationIndex.h"
#include "SqlStore.h"

#include <array>

namespace qarn_data
{

namespace
{

enum Column {
    NumberColumn,
    PersonColumn,
    IdColumn,
    OrganizationColumn,
    SerialNumColumn,
    NameColumn,
    SexColumn,
    EmailColumn,
    PhoneNumColumn,
    ValidStartColumn,
    ValidEndColumn,
    RemarksColumn,
    BirthDateColumn,
    IdentityTypeColumn,
    IdentityIdColumn,
    JobColumn,
    EmployDateColumn,
    AddressColumn
};

constexpr int faceSlots = 3;

QByteArray recordsWhere(const char* condition)
{
    return QByteArray("SELECT r.number, r.person, r.id, r.organization, p.serial_num, p.name, p.sex,"
                      " p.email, p.phone_num, p.valid_start, p.valid_end, p.remarks, p.birth_date,"
                      " p.identity_type, p.identity_id, p.job, p.employ_date, p.address"
                      " FROM records r JOIN persons p ON p.number = r.person ") +
           condition + " ORDER BY r.number";
}

QByteArray valuesWhere(const char* condition)
{
    return QByteArray("SELECT person, field, value FROM custom_values ") + condition +
           " ORDER BY person, field";
}

QByteArray facesWhere(const char* condition)
{
    return QByteArray("SELECT person, slot, hash FROM person_faces ") + condition + " ORDER BY person, slot";
}

const char* const inRange = "WHERE person IN (SELECT person FROM records WHERE number BETWEEN ? AND ?)";

std::optional<qint64> toStored(const QDate& date)
{
    return date.isValid() ? std::optional<qint64>(date.toJulianDay()) : std::nullopt;
}

// To QDateTime an invalid time is equal to the start of 1970.
bool sameTime(const QDateTime& a, const QDateTime& b)
{
    return a.isValid() == b.isValid() && a == b;
}

QDate dateAt(const Row& row, int column)
{
    return row.isNull(column) ? QDate() : QDate::fromJulianDay(row.number(column));
}

using Faces = std::array<QByteArray, faceSlots>;

} // namespace

struct PersonTable::Selection {
    QByteArray records;
    QByteArray values;
    QByteArray faces;
};

PersonTable::PersonTable(SqlStore& store, const OrganizationIndex& organizations)
    : m_store(store),
      m_organizations(organizations),
      m_faces(store)
{
}

bool PersonTable::count(int* records)
{
    return m_store.forEachRow("SELECT count(*) FROM records", {},
                              [records](const Row& row) { *records = int(row.number(0)); });
}

bool PersonTable::firstRecords(int count, NumberRange* numbers)
{
    return m_store.forEachRow("SELECT max(number) FROM (SELECT number FROM records ORDER BY number LIMIT ?)",
                              {Value(count)}, [numbers](const Row& row) {
                                  *numbers = {0, row.number(0)};
                              });
}

bool PersonTable::readAll(const RecordHandler& handler)
{
    static const Selection all{recordsWhere(""), valuesWhere(""), facesWhere("")};
    m_faces.readAll();
    return read(all, {}, handler);
}

bool PersonTable::readRecords(const NumberRange& numbers, const RecordHandler& handler)
{
    static const Selection range{recordsWhere("WHERE r.number BETWEEN ? AND ?"), valuesWhere(inRange),
                                 facesWhere(inRange)};
    return read(range, {numbers.first, numbers.last}, handler);
}

bool PersonTable::readPerson(qint64 person, const RecordHandler& handler)
{
    static const Selection one{recordsWhere("WHERE r.person = ?"), valuesWhere("WHERE person = ?"),
                               facesWhere("WHERE person = ?")};
    return read(one, {person}, handler);
}

bool PersonTable::read(const Selection& selection, const Values& values, const RecordHandler& handler)
{
    QHash<qint64, QMap<QString, QString>> fields;
    const auto takeField = [&fields](const Row& row) {
        fields[row.number(0)].insert(row.text(1), row.text(2));
    };
    QHash<qint64, Faces> faces;
    const auto takeFace = [&faces](const Row& row) {
        const auto slot = std::size_t(row.number(1) - 1);
        if (slot < faceSlots)
            faces[row.number(0)][slot] = row.bytes(2);
    };
    const auto takeRecord = [&](const Row& row) {
        StoredRecord record;
        record.number = row.number(NumberColumn);
        record.person = row.number(PersonColumn);
        PersonInfo& info = record.info;
        info.id = row.text(IdColumn);
        if (!row.isNull(OrganizationColumn))
            info.organizationId = m_organizations.info(row.number(OrganizationColumn)).id;
        info.serialNum = row.text(SerialNumColumn);
        info.name = row.text(NameColumn);
        info.sex = int(row.number(SexColumn));
        info.email = row.text(EmailColumn);
        info.phoneNum = row.text(PhoneNumColumn);
        if (!row.isNull(ValidStartColumn))
            info.validStartTime = m_times.fromMSecs(row.number(ValidStartColumn));
        if (!row.isNull(ValidEndColumn))
            info.validEndTime = m_times.fromMSecs(row.number(ValidEndColumn));
        info.remarks = row.text(RemarksColumn);
        info.birthDate = dateAt(row, BirthDateColumn);
        info.identityType = int(row.number(IdentityTypeColumn));
        info.identityId = row.text(IdentityIdColumn);
        info.job = row.text(JobColumn);
        info.employDate = dateAt(row, EmployDateColumn);
        info.address = row.text(AddressColumn);
        if (!fields.isEmpty())
            info.customFields = fields.value(record.person);
        const auto images = faces.constFind(record.person);
        if (images != faces.constEnd()) {
            info.faceImage1 = m_faces.image((*images)[0]);
            info.faceImage2 = m_faces.image((*images)[1]);
            info.faceImage3 = m_faces.image((*images)[2]);
        }
        handler(std::move(record));
    };
    return m_store.forEachRow(selection.values.constData(), values, takeField) &&
           m_store.forEachRow(selection.faces.constData(), values, takeFace) &&
           m_store.forEachRow(selection.records.constData(), values, takeRecord) && !m_faces.hasFailed();
}

std::optional<qint64> PersonTable::stored(const QDateTime& time)
{
    return time.isValid() ? std::optional<qint64>(m_times.toMSecs(time)) : std::nullopt;
}

std::optional<qint64> PersonTable::place(const QString& organizationId) const
{
    const qint64 number = m_organizations.number(organizationId);
    return number == 0 ? std::nullopt : std::optional<qint64>(number);
}

bool PersonTable::insertPerson(qint64 person, const PersonInfo& info)
{
    return m_store.run("INSERT INTO persons (number, serial_num, name, sex, email, phone_num, valid_start,"
                       " valid_end, remarks, birth_date, identity_type, identity_id, job, employ_date,"
                       " address) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
                       person, info.serialNum, info.name, info.sex, info.email, info.phoneNum,
                       stored(info.validStartTime), stored(info.validEndTime), info.remarks,
                       toStored(info.birthDate), info.identityType, info.identityId, info.job,
                       toStored(info.employDate), info.address) &&
           (info.faceImage1.isEmpty() || putFace(person, 1, info.faceImage1)) &&
           (info.faceImage2.isEmpty() || putFace(person, 2, info.faceImage2)) &&
           (info.faceImage3.isEmpty() || putFace(person, 3, info.faceImage3)) &&
           putFields(person, info.customFields);
}

bool PersonTable::insertRecord(const StoredRecord& record)
{
    return m_store.run("INSERT INTO records (number, id, person, organization) VALUES (?, ?, ?, ?)",
                       record.number, record.info.id, record.person, place(record.info.organizationId));
}

bool PersonTable::deleteRecord(qint64 record)
{
    return m_store.run("DELETE FROM records WHERE number = ?", record);
}

bool PersonTable::moveRecord(qint64 record, const QString& organizationId)
{
    return m_store.run("UPDATE records SET organization = ? WHERE number = ?", place(organizationId), record);
}

bool PersonTable::updatePerson(qint64 person, const PersonInfo& old, const PersonInfo& info)
{
    const bool ok =
        m_store.run("UPDATE persons SET serial_num = ?, name = ?, sex = ?, email = ?, phone_num = ?,"
                    " remarks = ?, birth_date = ?, identity_type = ?, identity_id = ?, job = ?,"
                    " employ_date = ?, address = ? WHERE number = ?",
                    info.serialNum, info.name, info.sex, info.email, info.phoneNum, info.remarks,
                    toStored(info.birthDate), info.identityType, info.identityId, info.job,
                    toStored(info.employDate), info.address, person) &&
        updateValidity(person, old, info) &&
        (old.faceImage1 == info.faceImage1 || putFace(person, 1, info.faceImage1)) &&
        (old.faceImage2 == info.faceImage2 || putFace(person, 2, info.faceImage2)) &&
        (old.faceImage3 == info.faceImage3 || putFace(person, 3, info.faceImage3));
    if (!ok || old.customFields == info.customFields)
        return ok;
    for (auto field = old.customFields.cbegin(); field != old.customFields.cend(); ++field) {
        if (!info.customFields.contains(field.key()) &&
            !m_store.run("DELETE FROM custom_values WHERE person = ? AND field = ?", person, field.key()))
            return false;
    }
    return putFields(person, info.customFields);
}

// Apart, since asking what moment a local time stands for takes longer than the rest of an update.
bool PersonTable::updateValidity(qint64 person, const PersonInfo& old, const PersonInfo& info)
{
    return (sameTime(old.validStartTime, info.validStartTime) &&
            sameTime(old.validEndTime, info.validEndTime)) ||
           m_store.run("UPDATE persons SET valid_start = ?, valid_end = ? WHERE number = ?",
                       stored(info.validStartTime), stored(info.validEndTime), person);
}

bool PersonTable::putFace(qint64 person, int slot, const QByteArray& bytes)
{
    if (!m_store.run("DELETE FROM person_faces WHERE person = ? AND slot = ?", person, slot))
        return false;
    if (bytes.isEmpty())
        return true;
    const QByteArray key = m_faces.put(bytes);
    return !key.isEmpty() &&
           m_store.run("INSERT INTO person_faces (person, slot, hash) VALUES (?, ?, ?)", person, slot, key);
}

bool PersonTable::putFields(qint64 person, const QMap<QString, QString>& fields)
{
    for (auto field = fields.cbegin(); field != fields.cend(); ++field) {
        if (!m_store.run("INSERT INTO custom_values (person, field, value) VALUES (?, ?, ?)"
                         " ON CONFLICT (person, field) DO UPDATE SET value = excluded.value",
                         person, field.key(), field.value()))
            return false;
    }
    return true;
}

} // namespace qarn_data
