#pragma once

#include <qarn_data/OrganizationInfo.h>
#include <qarn_data/PersonInfo.h>

#include <QHash>
#include <QStringList>

/// One change of a register, as a caller of PersonData makes it.
struct Change {
    enum Kind { Add, Update, Move, Delete, AddOrganization, RenameOrganization, ResetFields };

    Kind kind = Add;
    qarn_data::PersonList persons; ///< Add, Update (one), Move
    QStringList ids;               ///< Delete
    QString organizationId;        ///< Move
    qarn_data::OrganizationInfo organization;
    QStringList fields;
};

/// Makes the change in the open store.
bool applyToStore(const Change& change);

/// What a register must hold after a run of changes, kept in the plainest way there is.
class RegisterModel
{
public:
    explicit RegisterModel(const QString& rootOrganizationId) : m_root(rootOrganizationId) {}

    void apply(const Change& change);

    int personCount() const { return m_order.count(); }
    /// Without the values of fields that are not defined now.
    qarn_data::PersonInfo person(int index) const;
    QStringList organizationIds() const { return m_organizations.keys(); }
    qarn_data::OrganizationInfo organization(const QString& id) const { return m_organizations.value(id); }
    QString rootOrganizationId() const { return m_root; }
    QStringList fields() const { return m_fields; }

    /// How the open store differs; empty when it does not.
    QString differenceToStore() const;

private:
    void update(const qarn_data::PersonInfo& person);
    QString personDifference() const;
    QString organizationDifference() const;

    QString m_root;
    QStringList m_order; ///< ids in the order of addition
    QHash<QString, qarn_data::PersonInfo> m_persons;
    QMap<QString, qarn_data::OrganizationInfo> m_organizations; ///< without the root
    QStringList m_fields;
};
