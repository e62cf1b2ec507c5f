#include "transfer/PersonTable.h"

#include "support/People.h"

#include <qarn_data/PersonInfo.h>

#include <QFile>
#include <QProcess>
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

void writePersonTable(const QString& path, int count)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(path));
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    stream << "Rules:,\n1,\n2,\n3,\n4,\n"
           << "*Serial Num,*Person Name,*Organization,*Sex,Phone Num,Email,Valid Time,Invalid Time,\n";
    People people(Seed);
    for (int i = 0; i < count; ++i) {
        qarn_data::PersonInfo person = people.next(QString());
        person.name.remove(QLatin1Char(',')).remove(QLatin1Char('"'));
        stream << person.serialNum << ',' << person.name << ',' << organizationPath(i % OrganizationCount)
               << ',' << person.sex << ',' << person.phoneNum << ',' << person.email << ','
               << date(person.validStartTime) << ',' << date(person.validEndTime) << ',' << person.id
               << ",\n";
    }
}

std::string personTableSchema()
{
    return "CREATE TABLE persons (serial_num TEXT, name TEXT, organization TEXT, sex INTEGER, phone_num TEXT,"
           " email TEXT, valid_start TEXT, valid_end TEXT, id TEXT, rest TEXT);"
           "CREATE UNIQUE INDEX persons_serial_num ON persons (serial_num);"
           "CREATE UNIQUE INDEX records_id ON persons (id);"
           "CREATE UNIQUE INDEX records_place ON persons (organization, serial_num);";
}

std::string journalSettings()
{
    return "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL;";
}

void runProgram(const QString& program, const QStringList& arguments, const QByteArray& input)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        qFatal("%s %s fails", qPrintable(program), qPrintable(arguments.join(QLatin1Char(' '))));
}

} // namespace qarn_bench
