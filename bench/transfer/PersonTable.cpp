#include "transfer/PersonTable.h"

#include "support/People.h"

#include <qarn_data/PersonInfo.h>

#include <QFile>
#include <QTextStream>

namespace qarn_bench
{

namespace
{

constexpr quint32 Seed = 20240307;
constexpr int OrganizationCount = 50;

QString organizationPath(int number)
{
    return QStringLiteral("Site %1/Department %2").arg(number / 10).arg(number);
}

QString date(const QDateTime& moment)
{
    return moment.date().toString(Qt::ISODate);
}

} // namespace

void writePersonTable(const QString& path, int count, int skipped)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(path));
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    stream << "Rules:,\n1,\n2,\n3,\n4,\n"
           << "*Serial Num,*Person Name,*Organization,*Sex,Phone Num,Email,Valid Time,Invalid Time,\n";
    People people(Seed);
    for (int i = 0; i < skipped; ++i)
        people.next(QString());
    for (int i = 0; i < count; ++i) {
        qarn_data::PersonInfo person = people.next(QString());
        person.name.remove(QLatin1Char(',')).remove(QLatin1Char('"'));
        stream << person.serialNum << ',' << person.name << ',' << organizationPath(i % OrganizationCount)
               << ',' << person.sex << ',' << person.phoneNum << ',' << person.email << ','
               << date(person.validStartTime) << ',' << date(person.validEndTime) << ',' << person.id
               << ",\n";
    }
}

} // namespace qarn_bench
