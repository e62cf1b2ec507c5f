#include "Consistency.h"

#include "RegisterState.h"
#include "SqlStore.h"

namespace qarn_data
{

namespace
{

qint64 countOf(SqlStore& store, const char* sql)
{
    qint64 count = -1;
    store.forEachRow(sql, {}, [&count](const Row& row) { count = row.number(0); });
    return count;
}

QString compareRecords(const RegisterState& stored, const RegisterState& held)
{
    const QVector<qint64> numbers = stored.persons.recordNumbers();
    if (numbers != held.persons.recordNumbers())
        return QStringLiteral("%1 records are stored, %2 are in memory")
            .arg(numbers.size())
            .arg(held.persons.count());
    for (const qint64 number : numbers) {
        const PersonInfo& info = *stored.persons.record(number);
        if (!sameRecord(info, *held.persons.record(number)) ||
            stored.persons.personOf(number) != held.persons.personOf(number))
            return QStringLiteral("record %1 differs in memory").arg(info.id);
        if (held.persons.recordNumber(info.id) != number)
            return QStringLiteral("record %1 is not found by its id").arg(info.id);
        if (!info.serialNum.isEmpty() &&
            held.persons.personWithSerialNum(info.serialNum) != stored.persons.personOf(number))
            return QStringLiteral("serial number %1 leads to another person").arg(info.serialNum);
        const PersonInfo* namesake = held.persons.byName(info.name);
        if (namesake == nullptr || namesake->id != stored.persons.byName(info.name)->id)
            return QStringLiteral("name %1 does not lead to its first bearer").arg(info.name);
    }
    if (stored.persons.serialNums() != held.persons.serialNums() ||
        stored.persons.names() != held.persons.names())
        return QStringLiteral("serial numbers or names in memory are not those of the persons");
    return {};
}

QString compareOrganizations(const RegisterState& stored, const RegisterState& held)
{
    const QList<OrganizationInfo> organizations = stored.organizations.all();
    if (organizations.size() != stored.organizations.numbers().size())
        return QStringLiteral("not every organization stands below the root");
    if (stored.organizations.numbers() != held.organizations.numbers())
        return QStringLiteral("other organizations are stored than are in memory");
    for (const OrganizationInfo& info : organizations) {
        if (!sameOrganization(info, held.organizations.info(info.id)))
            return QStringLiteral("organization %1 differs in memory").arg(info.id);
    }
    return {};
}

} // namespace

QString findInconsistency(SqlStore& store, const RegisterState& state)
{
    QString finding = store.selfCheck();
    if (!finding.isEmpty())
        return finding;
    if (countOf(store, "SELECT count(*) FROM persons WHERE number NOT IN"
                       " (SELECT person FROM records)") != 0)
        return QStringLiteral("a person has no record");
    if (countOf(store, "SELECT count(*) FROM face_images WHERE hash NOT IN"
                       " (SELECT hash FROM person_faces)") != 0)
        return QStringLiteral("a face image belongs to nobody");
    RegisterState stored;
    if (!stored.load(store))
        return store.cause();
    finding = compareOrganizations(stored, state);
    if (finding.isEmpty())
        finding = compareRecords(stored, state);
    if (finding.isEmpty() && (stored.fields.names() != state.fields.names() ||
                              stored.fields.removedNames() != state.fields.removedNames()))
        finding = QStringLiteral("other custom fields are stored than are in memory");
    return finding;
}

} // namespace qarn_data
