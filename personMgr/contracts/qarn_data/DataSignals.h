#pragma once

#include <qarn_data/Export.h>
#include <qarn_data/OrganizationInfo.h>
#include <qarn_data/PersonInfo.h>

#include <QObject>
#include <QStringList>

namespace qarn_data
{

/// Announces every change to the register, after reads give the new state. Emitted in the thread that
/// made the change, or in the GUI thread for a change that another process made. `success` is false when
/// the store refused the change. Only the data service emits these signals.
class QARN_DATA_EXPORT DataSignals : public QObject
{
    Q_OBJECT
public:
    static DataSignals& instance();

signals:
    void signalAddPersonsToLocalDB(const qarn_data::PersonList& persons, bool success);
    /// personIds: the ids of all records of the person.
    void signalUpdatePersonInLocalDB(const qarn_data::PersonInfo& info, const QStringList& personIds,
                                     bool success);
    void signalDeletePersonsFromLocalDB(const QStringList& ids, bool success);
    void signalAddOrganizationToLocalDB(const qarn_data::OrganizationInfo& info, bool success);
    void signalUpdateOrganizationInLocalDB(const qarn_data::OrganizationInfo& info, bool success);
    void signalDeleteOrganizationsFromLocalDB(const QStringList& ids, bool success);
    void signalResetCustomFields(const QStringList& names);

private:
    DataSignals();
};

} // namespace qarn_data
