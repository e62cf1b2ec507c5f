#pragma once

#include <qarn_data/DataService.h>
#include <qarn_data/DataSignals.h>
#include <qarn_data/PersonData.h>

#include <QSignalSpy>

/// Records that tests start from.
namespace samples
{

inline qarn_data::PersonInfo person(const QString& id, const QString& serialNum = QString(),
                                    const QString& name = QString(),
                                    const QString& organizationId = QString())
{
    qarn_data::PersonInfo info;
    info.id = id;
    info.serialNum = serialNum;
    info.name = name.isEmpty() ? id : name;
    info.organizationId = organizationId;
    return info;
}

/// Every member differs from its default.
inline qarn_data::PersonInfo fullPerson(const QString& id, const QString& organizationId)
{
    qarn_data::PersonInfo info = person(id, "SN-" + id, "Ludwig van B.", organizationId);
    info.sex = 2;
    info.email = "ludwig@example.com";
    info.phoneNum = "0049228";
    info.validStartTime = QDateTime(QDate(2024, 2, 29), QTime(8, 30, 15, 123));
    info.validEndTime = QDateTime(QDate(2025, 7, 1), QTime(23, 59, 59, 999));
    info.remarks = "hears little";
    info.faceImage1 = QByteArray("\xff\xd8 one \0 byte", 12);
    info.faceImage2 = "\xff\xd8 two";
    info.faceImage3 = "\xff\xd8 three";
    info.birthDate = QDate(1970, 12, 17);
    info.identityType = 9;
    info.identityId = "L-1770";
    info.job = "Composer";
    info.employDate = QDate(1999, 1, 2);
    info.address = "Bonngasse 20";
    info.customFields = {{"Shoe", "43"}, {"Hat", "58"}};
    return info;
}

inline qarn_data::OrganizationInfo organization(const QString& id, const QString& parentId,
                                                const QString& name)
{
    return {id, parentId, name};
}

inline QString root()
{
    return qarn_data::PersonData::instance().getRootOrganizationId();
}

inline QStringList ids(const qarn_data::PersonList& persons)
{
    QStringList ids;
    for (const qarn_data::PersonInfo& info : persons)
        ids.append(info.id);
    return ids;
}

/// Empty when the store in memory and on disk agree and the database is sound.
inline QString inconsistency()
{
    QString problem;
    qarn_data::DataService::instance().checkConsistency(&problem);
    return problem;
}

/// Watches every notification of the data service.
struct Watch {
    QSignalSpy added{&qarn_data::DataSignals::instance(), &qarn_data::DataSignals::signalAddPersonsToLocalDB};
    QSignalSpy updated{&qarn_data::DataSignals::instance(),
                       &qarn_data::DataSignals::signalUpdatePersonInLocalDB};
    QSignalSpy deleted{&qarn_data::DataSignals::instance(),
                       &qarn_data::DataSignals::signalDeletePersonsFromLocalDB};
    QSignalSpy organizationAdded{&qarn_data::DataSignals::instance(),
                                 &qarn_data::DataSignals::signalAddOrganizationToLocalDB};
    QSignalSpy organizationUpdated{&qarn_data::DataSignals::instance(),
                                   &qarn_data::DataSignals::signalUpdateOrganizationInLocalDB};
    QSignalSpy organizationsDeleted{&qarn_data::DataSignals::instance(),
                                    &qarn_data::DataSignals::signalDeleteOrganizationsFromLocalDB};
    QSignalSpy fieldsReset{&qarn_data::DataSignals::instance(),
                           &qarn_data::DataSignals::signalResetCustomFields};
    QSignalSpy failed{&qarn_data::DataService::instance(), &qarn_data::DataService::signalFailed};

    int changes() const
    {
        return added.count() + updated.count() + deleted.count() + organizationAdded.count() +
               organizationUpdated.count() + organizationsDeleted.count() + fieldsReset.count();
    }
    QString failure() const { return failed.isEmpty() ? QString() : failed.last().first().toString(); }
    void clear()
    {
        for (QSignalSpy* spy : {&added, &updated, &deleted, &organizationAdded, &organizationUpdated,
                                &organizationsDeleted, &fieldsReset, &failed})
            spy->clear();
    }
};

} // namespace samples
