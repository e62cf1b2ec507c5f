#pragma once

#include <qarn_data/Export.h>
#include <qarn_data/OrganizationInfo.h>
#include <qarn_data/PersonInfo.h>

#include <QSet>
#include <QStringList>

namespace qarn_data
{

/// The register of persons and organizations. Every operation may be called from any thread and returns
/// when it is done. Reads are answered from memory and give empty values while no store is open. Writes
/// return false and change nothing when the store refuses them; the operator is then told by the service
/// itself. Every change is announced by DataSignals.
///
/// Persons come in the order in which they were added. The flag `withoutImages` leaves the face images
/// out of the returned records.
class QARN_DATA_EXPORT PersonData
{
public:
    static PersonData& instance();

    QList<PersonInfo> getAllPersons(bool withoutImages) const;
    /// While the store is still being read after the start, the first `count` persons and how many there are
    /// in all, without waiting as the other reads do. False, and nothing given, once everything is there.
    bool getFirstPersons(int count, QList<PersonInfo>* persons, int* total) const;
    QList<PersonInfo> getPersons(const QStringList& organizationIds, bool withoutImages) const;
    /// A record with an empty id when there is no such person.
    PersonInfo getPersonBySerialNum(const QString& serialNum, bool withoutImages) const;
    /// The one added first, where several have the name; a record with an empty id when nobody has it.
    PersonInfo getPersonByName(const QString& name, bool withoutImages) const;
    QSet<QString> getAllPersonsSerialNum() const; ///< without the empty ones
    QSet<QString> getAllPersonsName() const;
    bool isPersonSerialNumExist(const QString& serialNum) const;

    bool addPerson(const PersonInfo& person);
    /// Stores what can be stored in one transaction; false when any entry was refused.
    bool addPersons(const QList<PersonInfo>& persons);
    /// Replaces the shared fields in all records of the person and the organization of this record.
    bool updatePerson(const PersonInfo& person);
    /// Removes these records; unknown ids are ignored. A person goes with the last record.
    bool deletePersons(const QStringList& ids);
    /// Moves the records, or with `retain` adds further records in the organization beside them.
    bool changePersonsOrganization(const QList<PersonInfo>& persons, const QString& organizationId,
                                   bool retain);

    QString getOrganizationName(const QString& organizationId) const;
    /// The names from the root down to the organization, joined with " > ".
    QString getOrganizationNameRecursively(const QString& organizationId) const;
    /// The names from the root down to the organization, one level an entry.
    QStringList getHierarchicalOrganizationNames(const QString& organizationId) const;
    /// Makes the missing levels of a path below the root; the id of the innermost organization, empty
    /// when the store refuses.
    QString createOrganization(const QStringList& path);
    bool addOrganization(const OrganizationInfo& organization);
    bool updateOrganization(const OrganizationInfo& organization);
    /// All or nothing: refuses the root, organizations that hold persons, and a parent without its children.
    bool deleteOrganizations(const QStringList& ids);
    bool isRootOrganization(const QString& organizationId) const;
    bool isOrganizationsHasPersons(const QStringList& ids) const;
    QList<OrganizationInfo> getAllOrganizations() const; ///< parents before children
    QString getRootOrganizationId() const;

    QStringList getCustomFields() const; ///< in display order
    void resetCustomFields(const QStringList& names);

private:
    PersonData() = default;
    ~PersonData() = default;
    Q_DISABLE_COPY(PersonData)
};

} // namespace qarn_data
