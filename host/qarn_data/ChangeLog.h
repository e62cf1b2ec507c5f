#pragma once

#include <QString>
#include <QVector>

namespace qarn_data
{

class SqlStore;

/// What a change was about; `subject` in the log names the numbers it touched. Values are stored.
enum class ChangeKind {
    PersonsAdded = 1,         ///< records
    PersonUpdated = 2,        ///< record
    PersonsDeleted = 3,       ///< records
    PersonsMoved = 4,         ///< records as they now are; records that went
    OrganizationsAdded = 5,   ///< organizations
    OrganizationUpdated = 6,  ///< organization
    OrganizationsDeleted = 7, ///< organizations
    CustomFieldsReset = 8,
    DevicesChanged = 9
};

struct Change {
    qint64 number = 0;
    ChangeKind kind = ChangeKind::PersonsAdded;
    QString subject;
};

/// Tells other processes on the same database what was changed, in the order of the transactions. Only the
/// newest changes are kept; who is further behind reads everything anew.
class ChangeLog
{
public:
    explicit ChangeLog(SqlStore& store) : m_store(store) {}

    bool append(const Change& change);
    bool readAfter(qint64 number, QVector<Change>* changes);
    bool lastNumber(qint64* number);

    static constexpr qint64 Kept = 10000;

private:
    SqlStore& m_store;
};

} // namespace qarn_data
