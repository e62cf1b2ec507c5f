#include "support/People.h"

#include <QFile>
#include <QUuid>

namespace qarn_bench
{

namespace
{

constexpr int MaxNameLength = 20; // what the editor lets an operator type

QStringList inventedNames()
{
    return {QStringLiteral("Ada Berg"),   QStringLiteral("Jan Novák"),    QStringLiteral("Mia Sørensen"),
            QStringLiteral("李小龙"),     QStringLiteral("Ольга Лебедь"), QStringLiteral("Noor Haddad"),
            QStringLiteral("佐藤花子"),   QStringLiteral("Kofi Mensah"),  QStringLiteral("Ana Ibáñez"),
            QStringLiteral("Priya Nair"), QStringLiteral("김민준"),       QStringLiteral("Zoë Vandamme")};
}

QStringList sampleNames()
{
    const QString directory =
        qEnvironmentVariable("QARN_SAMPLE_DATA", QStringLiteral(QARN_SOURCE_DIR "/../shared/data"));
    QFile file(directory + QStringLiteral("/names.tsv"));
    QStringList names;
    if (file.open(QIODevice::ReadOnly)) {
        file.readLine(); // column titles
        while (!file.atEnd()) {
            const QString name =
                QString::fromUtf8(file.readLine()).section(QLatin1Char('\t'), 1, 1).trimmed();
            if (!name.isEmpty())
                names.append(name);
        }
    }
    return names.isEmpty() ? inventedNames() : names;
}

} // namespace

People::People(quint32 seed) : m_random(seed), m_names(sampleNames()) {}

QString People::newId()
{
    const quint64 high = m_random.generate64();
    const quint64 low = m_random.generate64();
    return QUuid(quint32(high >> 32), ushort(high >> 16), ushort(high), uchar(low >> 56), uchar(low >> 48),
                 uchar(low >> 40), uchar(low >> 32), uchar(low >> 24), uchar(low >> 16), uchar(low >> 8),
                 uchar(low))
        .toString();
}

QString People::newName()
{
    const QString first = m_names.at(m_random.bounded(m_names.count()));
    const QString second = m_names.at(m_random.bounded(m_names.count()));
    QString name = (first + QLatin1Char(' ') + second).left(MaxNameLength);
    if (name.at(name.size() - 1).isHighSurrogate())
        name.chop(1);
    return name.trimmed();
}

void People::addOptionalFields(qarn_data::PersonInfo& person)
{
    if (oneIn(2))
        person.email = QStringLiteral("p%1@register.example").arg(m_count);
    if (oneIn(4))
        person.remarks = QStringLiteral("Badge renewed, see desk %1").arg(m_random.bounded(90));
    if (oneIn(2)) {
        person.identityType = m_random.bounded(10);
        person.identityId = QString::number(100000000000000000LL + qint64(m_random.generate()));
    }
    if (oneIn(2))
        person.job = QStringLiteral("Technician %1").arg(m_random.bounded(40));
    if (oneIn(2))
        person.address =
            QStringLiteral("%1 Harbour Street, Block %2").arg(m_random.bounded(900)).arg(m_count % 7);
}

qarn_data::PersonInfo People::next(const QString& organizationId)
{
    ++m_count;
    qarn_data::PersonInfo person;
    person.id = newId();
    person.organizationId = organizationId;
    person.serialNum = QStringLiteral("P%1").arg(m_count, 7, 10, QLatin1Char('0'));
    person.name = newName();
    person.sex = 1 + m_random.bounded(2);
    person.phoneNum = QString::number(10000000000LL + qint64(m_random.generate()));
    const QDate today = QDate::currentDate();
    person.validStartTime = QDateTime(today.addDays(-m_random.bounded(700)),
                                      QTime::fromMSecsSinceStartOfDay(m_random.bounded(86400000)));
    person.validEndTime = person.validStartTime.addDays(365);
    person.birthDate = QDate(1950, 1, 1).addDays(m_random.bounded(20000));
    person.employDate = today.addDays(-m_random.bounded(9000));
    addOptionalFields(person);
    return person;
}

qarn_data::PersonList People::make(int count, const QStringList& organizationIds)
{
    qarn_data::PersonList persons;
    persons.reserve(count);
    for (int i = 0; i < count; ++i)
        persons.append(next(organizationIds.at(m_random.bounded(organizationIds.count()))));
    return persons;
}

QByteArray People::image(int size)
{
    QByteArray bytes(size + 3, Qt::Uninitialized);
    m_random.fillRange(reinterpret_cast<quint32*>(bytes.data()), size / 4);
    bytes.resize(size);
    return bytes.replace(0, 3, QByteArrayLiteral("\xff\xd8\xff"));
}

} // namespace qarn_bench
