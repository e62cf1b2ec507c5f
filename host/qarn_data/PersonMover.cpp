#include "PersonWriter.h"

#include "Announcing.h"
#include "NumberRanges.h"
#include "PersonRules.h"
#include "PersonTable.h"
#include "WriteSession.h"

#include <qarn_data/DataSignals.h>

#include <QCoreApplication>
#include <QHash>
#include <QUuid>

namespace qarn_data
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("qarn_data::PersonMover", text);
}

/// What moving records to an organization comes to, found out before anything is written.
class Move
{
public:
    Move(const RegisterState& state, const QString& organizationId, bool retain)
        : m_state(state),
          m_organizationId(organizationId),
          m_retain(retain),
          m_lastRecord(state.persons.lastRecord())
    {
    }

    void consider(const PersonInfo& given)
    {
        const qint64 record = m_state.persons.recordNumber(given.id);
        if (record == 0) {
            refusals.append(tr("%1 is no longer in the register.").arg(caption(given)));
            return;
        }
        const qint64 person = m_state.persons.personOf(record);
        qint64& there = m_recordThere[person];
        if (there == 0)
            there = recordOfPersonThere(person);
        if (there == 0 && m_retain)
            there = addBeside(record, person);
        else if (there == 0)
            moved.append(there = record);
        else if (there != record && !m_retain)
            dropped.append(record);
        if (!m_isShown.contains(there)) {
            m_isShown.insert(there);
            shown.append(there);
        }
    }

    QVector<qint64> moved;
    QVector<qint64> dropped;
    QVector<StoredRecord> added;
    QVector<qint64> shown; ///< the records in the organization, in the order given
    QStringList refusals;

private:
    qint64 recordOfPersonThere(qint64 person) const
    {
        const QVector<qint64> records = m_state.persons.recordsOf(person);
        for (const qint64 record : records) {
            if (m_state.persons.record(record)->organizationId == m_organizationId)
                return record;
        }
        return 0;
    }

    qint64 addBeside(qint64 record, qint64 person)
    {
        StoredRecord beside{++m_lastRecord, person, *m_state.persons.record(record)};
        beside.info.id = QUuid::createUuid().toString();
        beside.info.organizationId = m_organizationId;
        added.append(beside);
        return beside.number;
    }

    const RegisterState& m_state;
    const QString m_organizationId;
    const bool m_retain;
    qint64 m_lastRecord;
    QHash<qint64, qint64> m_recordThere; ///< by person
    QSet<qint64> m_isShown;
};

bool write(WriteSession& session, const Move& move, const QString& organizationId)
{
    PersonTable table(session.store(), session.state().organizations);
    for (const qint64 record : move.dropped) {
        if (!table.deleteRecord(record))
            return false;
    }
    for (const qint64 record : move.moved) {
        if (!table.moveRecord(record, organizationId))
            return false;
    }
    for (const StoredRecord& record : move.added) {
        if (!table.insertRecord(record))
            return false;
    }
    return true;
}

void enter(RegisterState& state, const Move& move, const QString& organizationId)
{
    state.removeRecords(move.dropped);
    for (const qint64 record : move.moved)
        state.persons.setOrganization(record, organizationId);
    for (const StoredRecord& record : move.added)
        state.persons.put(record);
}

} // namespace

bool movePersons(const PersonList& persons, const QString& organizationId, bool retain)
{
    if (persons.isEmpty())
        return true;
    PersonList now;
    QString failure;
    {
        WriteSession session(tr("Persons could not be moved"));
        if (session.begin()) {
            Move move(session.state(), organizationId, retain);
            if (!organizationId.isEmpty() && !session.state().organizations.contains(organizationId)) {
                session.refuse(tr("The organization does not exist. Choose another one."));
            } else {
                for (const PersonInfo& person : persons)
                    move.consider(person);
                if (!move.refusals.isEmpty())
                    session.refuse(listed(move.refusals));
            }
            const QString subject = toRanges(move.shown) + u';' + toRanges(move.dropped);
            if (!move.shown.isEmpty() && session.check(write(session, move, organizationId)))
                session.commit(ChangeKind::PersonsMoved, subject, [&](RegisterState& state) {
                    enter(state, move, organizationId);
                    for (const qint64 record : qAsConst(move.shown))
                        now.append(*state.persons.record(record));
                });
        }
        failure = session.failure();
    }
    tellFailure(failure);
    emit DataSignals::instance().signalAddPersonsToLocalDB(now.isEmpty() ? persons : now, !now.isEmpty());
    return failure.isEmpty();
}

} // namespace qarn_data
