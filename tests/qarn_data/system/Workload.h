#pragma once

#include "RegisterModel.h"

#include <QRandomGenerator>

/// An endless run of changes: the same seed and root give the same run, so that two processes agree on
/// what the n-th change is without telling each other.
class Workload
{
public:
    Workload(quint32 seed, const QString& rootOrganizationId);

    /// Decides the next change and applies it to the model.
    Change next();
    int count() const { return m_count; } ///< changes so far
    const RegisterModel& model() const { return m_model; }

private:
    Change choose();
    Change addPersons(int count);
    Change updatePerson();
    Change movePersons();
    Change deletePersons(int count);
    Change addOrganization();
    Change renameOrganization();
    Change resetFields();

    qarn_data::PersonInfo newPerson();
    void fill(qarn_data::PersonInfo& person);
    QByteArray image();
    QString anyOrganization();
    qarn_data::PersonInfo anyPerson() { return m_model.person(m_random.bounded(m_model.personCount())); }

    QRandomGenerator m_random;
    RegisterModel m_model;
    int m_count = 0;
};
