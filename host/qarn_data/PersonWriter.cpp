#include "PersonWriter.h"

#include "Announcing.h"
#include "NumberRanges.h"
#include "PersonRules.h"
#include "PersonTable.h"
#include "WriteSession.h"

#include <qarn_data/DataSignals.h>

#include <QCoreApplication>
#include <QUuid>

#include <algorithm>

namespace qarn_data
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("qarn_data::PersonWriter", text);
}

/// Sorts new persons into those that fit and those that do not, against the store and each other.
class Admission
{
public:
    explicit Admission(const RegisterState& state)
        : m_state(state),
          m_record(state.persons.lastRecord()),
          m_person(state.persons.lastPerson())
    {
    }

    void expect(int count)
    {
        accepted.reserve(count);
        m_ids.reserve(count);
        m_serialNums.reserve(count);
    }

    void consider(const PersonInfo& given)
    {
        StoredRecord record{0, 0, normalised(given)};
        PersonInfo& info = record.info;
        if (info.id.isEmpty())
            info.id = QUuid::createUuid().toString();
        const QString objection = objectionTo(info);
        if (!objection.isEmpty()) {
            refusals.append(objection);
            return;
        }
        m_ids.insert(info.id);
        if (!info.serialNum.isEmpty())
            m_serialNums.insert(info.serialNum);
        record.number = ++m_record;
        record.person = ++m_person;
        accepted.append(std::move(record));
    }

    QVector<StoredRecord> accepted;
    QStringList refusals;

private:
    QString objectionTo(const PersonInfo& info) const
    {
        if (m_ids.contains(info.id) || m_state.persons.recordNumber(info.id) != 0)
            return tr("%1: the id is taken.").arg(caption(info));
        if (m_serialNums.contains(info.serialNum) || m_state.persons.personWithSerialNum(info.serialNum) != 0)
            return tr("%1: the serial number is taken; choose another one.").arg(caption(info));
        if (!info.organizationId.isEmpty() && !m_state.organizations.contains(info.organizationId))
            return tr("%1: the organization does not exist; choose another one.").arg(caption(info));
        return {};
    }

    const RegisterState& m_state;
    qint64 m_record;
    qint64 m_person;
    QSet<QString> m_ids;
    QSet<QString> m_serialNums;
};

bool insertAll(WriteSession& session, const QVector<StoredRecord>& records)
{
    PersonTable table(session.store(), session.state().organizations);
    const auto insertPerson = [&table](const StoredRecord& record) {
        return table.insertPerson(record.person, record.info);
    };
    const auto insertRecord = [&table](const StoredRecord& record) { return table.insertRecord(record); };
    // One table after the other, which keeps the database's page cache warm.
    return std::all_of(records.cbegin(), records.cend(), insertPerson) &&
           std::all_of(records.cbegin(), records.cend(), insertRecord);
}

QString recordRange(const QVector<StoredRecord>& records)
{
    return toRanges({records.first().number}) + u'-' + QString::number(records.last().number);
}

} // namespace

bool addPersons(const PersonList& persons)
{
    if (persons.isEmpty())
        return true;
    PersonList stored;
    QString failure;
    {
        WriteSession session(tr("Persons could not be added"));
        if (session.begin()) {
            Admission admission(session.state());
            admission.expect(persons.size());
            for (const PersonInfo& person : persons)
                admission.consider(person);
            if (!admission.refusals.isEmpty())
                session.refuse(listed(admission.refusals));
            QVector<StoredRecord>& accepted = admission.accepted;
            if (!accepted.isEmpty() && session.check(insertAll(session, accepted)))
                session.commit(ChangeKind::PersonsAdded, recordRange(accepted), [&](RegisterState& state) {
                    state.persons.reserve(state.persons.count() + accepted.size());
                    stored.reserve(accepted.size());
                    for (StoredRecord& record : accepted) {
                        const qint64 number = record.number;
                        state.putRecord(std::move(record));
                        stored.append(*state.persons.record(number));
                    }
                });
        }
        failure = session.failure();
    }
    tellFailure(failure);
    emit DataSignals::instance().signalAddPersonsToLocalDB(stored.isEmpty() ? persons : stored,
                                                           !stored.isEmpty());
    return failure.isEmpty();
}

namespace
{

QString objectionToUpdate(const RegisterState& state, qint64 record, const PersonInfo& info)
{
    if (record == 0)
        return tr("%1 is no longer in the register.").arg(caption(info));
    const qint64 person = state.persons.personOf(record);
    const qint64 bearer = state.persons.personWithSerialNum(info.serialNum);
    if (!info.serialNum.isEmpty() && bearer != 0 && bearer != person)
        return tr("%1: the serial number is taken; choose another one.").arg(caption(info));
    if (!info.organizationId.isEmpty() && !state.organizations.contains(info.organizationId))
        return tr("%1: the organization does not exist; choose another one.").arg(caption(info));
    const QVector<qint64> siblings = state.persons.recordsOf(person);
    for (const qint64 sibling : siblings) {
        if (sibling != record && state.persons.record(sibling)->organizationId == info.organizationId)
            return tr("%1 is in that organization already.").arg(caption(info));
    }
    return {};
}

bool writeUpdate(WriteSession& session, qint64 record, const PersonInfo& info)
{
    const RegisterState& state = session.state();
    PersonTable table(session.store(), state.organizations);
    const PersonInfo& old = *state.persons.record(record);
    return table.updatePerson(state.persons.personOf(record), old, info) &&
           (old.organizationId == info.organizationId || table.moveRecord(record, info.organizationId));
}

QStringList enterUpdate(RegisterState& state, qint64 record, const PersonInfo& info)
{
    const qint64 person = state.persons.personOf(record);
    FieldValues all = state.fields.hidden(person);
    for (auto field = info.customFields.cbegin(); field != info.customFields.cend(); ++field)
        all.insert(field.key(), field.value());
    PersonInfo shown = info;
    shown.customFields = state.fields.show(person, all);
    state.persons.setOrganization(record, info.organizationId);
    state.persons.updatePerson(person, shown);
    QStringList ids;
    const QVector<qint64> records = state.persons.recordsOf(person);
    for (const qint64 number : records)
        ids.append(state.persons.record(number)->id);
    return ids;
}

} // namespace

bool updatePerson(const PersonInfo& person)
{
    PersonInfo stored = normalised(person);
    QStringList ids;
    QString failure;
    {
        WriteSession session(tr("The person could not be updated"));
        if (session.begin()) {
            const qint64 record = session.state().persons.recordNumber(stored.id);
            const QString objection = objectionToUpdate(session.state(), record, stored);
            if (!objection.isEmpty())
                session.refuse(objection);
            else if (session.check(writeUpdate(session, record, stored)))
                session.commit(ChangeKind::PersonUpdated, QString::number(record), [&](RegisterState& state) {
                    ids = enterUpdate(state, record, stored);
                    stored = *state.persons.record(record);
                });
        }
        failure = session.failure();
    }
    tellFailure(failure);
    const bool ok = failure.isEmpty();
    emit DataSignals::instance().signalUpdatePersonInLocalDB(ok ? stored : person,
                                                             ok ? ids : QStringList(person.id), ok);
    return ok;
}

bool deletePersons(const QStringList& ids)
{
    QStringList removed;
    QString failure;
    {
        WriteSession session(tr("Persons could not be deleted"));
        if (session.begin()) {
            QVector<qint64> numbers;
            for (const QString& id : ids) {
                const qint64 number = session.state().persons.recordNumber(id);
                if (number != 0)
                    numbers.append(number);
            }
            PersonTable table(session.store(), session.state().organizations);
            const auto deleteRecord = [&table](qint64 number) { return table.deleteRecord(number); };
            if (!numbers.isEmpty() &&
                session.check(std::all_of(numbers.cbegin(), numbers.cend(), deleteRecord)))
                session.commit(ChangeKind::PersonsDeleted, toRanges(numbers),
                               [&](RegisterState& state) { removed = state.removeRecords(numbers); });
        }
        failure = session.failure();
    }
    tellFailure(failure);
    if (!failure.isEmpty() || !removed.isEmpty())
        emit DataSignals::instance().signalDeletePersonsFromLocalDB(failure.isEmpty() ? removed : ids,
                                                                    failure.isEmpty());
    return failure.isEmpty();
}

} // namespace qarn_data
