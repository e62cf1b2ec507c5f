#include "Workload.h"

using qarn_data::PersonInfo;

namespace
{

constexpr int MostPersons = 800;
constexpr int BatchSize = 20;
constexpr int LargestImage = 2000; // in words of four bytes

QStringList allFields()
{
    return {QStringLiteral("Badge"), QStringLiteral("Locker"), QStringLiteral("Größe"),
            QStringLiteral("车牌"), QStringLiteral("Shift")};
}

} // namespace

Workload::Workload(quint32 seed, const QString& rootOrganizationId)
    : m_random(seed),
      m_model(rootOrganizationId)
{
}

Change Workload::next()
{
    const Change change = choose();
    m_model.apply(change);
    ++m_count;
    return change;
}

Change Workload::choose()
{
    if (m_count < 3)
        return addOrganization();
    if (m_model.personCount() < BatchSize)
        return addPersons(BatchSize);
    if (m_model.personCount() > MostPersons)
        return deletePersons(MostPersons / 4);
    const int dice = m_random.bounded(100);
    if (dice < 30)
        return addPersons(1);
    if (dice < 40)
        return addPersons(BatchSize);
    if (dice < 70)
        return updatePerson();
    if (dice < 80)
        return movePersons();
    if (dice < 92)
        return deletePersons(1 + m_random.bounded(4));
    if (dice < 94 && m_model.organizationIds().count() < 200)
        return addOrganization();
    return dice < 97 ? renameOrganization() : resetFields();
}

Change Workload::addPersons(int count)
{
    Change change;
    for (int i = 0; i < count; ++i) {
        PersonInfo person = newPerson();
        person.id = QStringLiteral("{person-%1-%2}").arg(m_count).arg(i);
        person.serialNum = QStringLiteral("S%1-%2").arg(m_count).arg(i);
        change.persons.append(person);
    }
    return change;
}

Change Workload::updatePerson()
{
    Change change;
    change.kind = Change::Update;
    PersonInfo person = anyPerson();
    fill(person);
    change.persons.append(person);
    return change;
}

Change Workload::movePersons()
{
    Change change;
    change.kind = Change::Move;
    change.organizationId = anyOrganization();
    const PersonInfo person = anyPerson();
    if (person.organizationId == change.organizationId)
        return updatePerson();
    change.persons.append(person);
    return change;
}

Change Workload::deletePersons(int count)
{
    Change change;
    change.kind = Change::Delete;
    for (int i = 0; i < count; ++i) {
        const QString id = anyPerson().id;
        if (!change.ids.contains(id))
            change.ids.append(id);
    }
    return change;
}

Change Workload::addOrganization()
{
    Change change;
    change.kind = Change::AddOrganization;
    const QStringList parents = m_model.organizationIds();
    const int parent = m_random.bounded(parents.count() + 1);
    change.organization = {QStringLiteral("{organization-%1}").arg(m_count),
                           parent < parents.count() ? parents.at(parent) : m_model.rootOrganizationId(),
                           QStringLiteral("Office %1").arg(m_count)};
    return change;
}

Change Workload::renameOrganization()
{
    Change change = addOrganization();
    change.kind = Change::RenameOrganization;
    change.organization = m_model.organization(anyOrganization());
    change.organization.name = QStringLiteral("Renamed %1").arg(m_count);
    return change;
}

Change Workload::resetFields()
{
    Change change;
    change.kind = Change::ResetFields;
    for (const QString& field : allFields()) {
        if (m_random.bounded(3) != 0)
            change.fields.insert(m_random.bounded(change.fields.count() + 1), field);
    }
    return change;
}

PersonInfo Workload::newPerson()
{
    PersonInfo person;
    person.organizationId = anyOrganization();
    fill(person);
    return person;
}

void Workload::fill(PersonInfo& person)
{
    person.name = QStringLiteral("Étienne 王 %1 🙂").arg(m_random.bounded(100000));
    person.sex = 1 + m_random.bounded(2);
    person.email = QStringLiteral("p%1@example").arg(m_random.bounded(1000));
    person.validStartTime = QDateTime::fromMSecsSinceEpoch(1600000000000 + qint64(m_random.generate()));
    person.validEndTime = person.validStartTime.addSecs(m_random.bounded(94608000));
    person.birthDate = QDate(1950, 1, 1).addDays(m_random.bounded(20000));
    person.employDate = QDate(2000, 1, 1).addDays(m_random.bounded(8000));
    person.remarks = QStringLiteral("change %1").arg(m_count);
    person.identityType = m_random.bounded(10);
    person.faceImage1 = image();
    person.faceImage3 = image();
    for (const QString& field : m_model.fields()) {
        if (m_random.bounded(2) == 0)
            person.customFields.insert(field, QString::number(m_random.bounded(1000)));
        else
            person.customFields.remove(field);
    }
}

QByteArray Workload::image()
{
    if (m_random.bounded(8) != 0)
        return {};
    QVector<quint32> words(m_random.bounded(1, LargestImage));
    m_random.fillRange(words.data(), words.count());
    return QByteArray(reinterpret_cast<const char*>(words.constData()), words.count() * int(sizeof(quint32)));
}

QString Workload::anyOrganization()
{
    const QStringList ids = m_model.organizationIds();
    return ids.at(m_random.bounded(ids.count()));
}
