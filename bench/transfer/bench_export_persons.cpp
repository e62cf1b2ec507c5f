#include "support/ChildRun.h"
#include "support/Figure.h"
#include "support/People.h"
#include "support/StoreFiles.h"
#include "transfer/PersonTable.h"
#include "transfer/Workers.h"

#include <qarn_data/PersonData.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

// All nine columns of every person into a file, against "sqlite3 -csv" of a plain table that already holds
// the nine texts as they are written.

namespace
{

constexpr int Count = 100000;
constexpr int Rounds = 5;
constexpr quint32 Seed = 20240307;
constexpr int OrganizationCount = 50;

QStringList organizationIds()
{
    QStringList ids;
    for (const qarn_data::OrganizationInfo& organization :
         qarn_data::PersonData::instance().getAllOrganizations())
        ids.append(organization.id);
    return ids;
}

int ours(const QString& store, const QString& target)
{
    qarn_bench::openStore(store);
    const QStringList ids = organizationIds();
    const double elapsed = qarn_bench::milliseconds([&] { qarn_bench::exportAllColumns(ids, target); });
    qarn_bench::closeStore();
    return qarn_bench::printMeasure(elapsed);
}

/// Values without what a reader of quoted fields would trip over: the peer's table is filled from the file.
void makeStore(const QString& store)
{
    qarn_bench::openStore(store);
    qarn_data::PersonList persons =
        qarn_bench::People(Seed).make(Count, qarn_bench::addOrganizations(OrganizationCount));
    for (qarn_data::PersonInfo& person : persons)
        person.name.remove(QLatin1Char(',')).remove(QLatin1Char('"'));
    if (!qarn_data::PersonData::instance().addPersons(persons))
        qFatal("the store does not take the persons");
    qarn_bench::closeStore();
}

/// The exported file becomes the peer's table.
void makePeer(const QString& store, const QString& exported)
{
    const QByteArray commands =
        QByteArray(
            "CREATE TABLE persons (serial_num TEXT, name TEXT, organization TEXT, sex TEXT, email TEXT,"
            " phone_num TEXT, identity_id TEXT, valid_start TEXT, valid_end TEXT, rest TEXT);\n") +
        ".separator , \\n\n.import --skip 1 \"" + QFile::encodeName(exported) + "\" persons\n";
    qarn_bench::runProgram("sqlite3", {store}, commands);
}

double peer(const QString& store, const QString& target)
{
    return qarn_bench::milliseconds([&] {
        QProcess process;
        process.setStandardOutputFile(target);
        process.start(
            "sqlite3",
            {"-csv", store,
             "SELECT serial_num, name, organization, sex, email, phone_num, identity_id, valid_start,"
             " valid_end FROM persons"});
        if (!process.waitForFinished(-1) || process.exitCode() != 0)
            qFatal("sqlite3 -csv fails");
    });
}

int lineCount(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().count('\n') : 0;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.count() == 2)
        return ours(arguments[0], arguments[1]);
    const qarn_bench::StoreFiles files;
    const QString store = files.path(QStringLiteral("ours.db"));
    makeStore(store);
    const QString exported = files.path(QStringLiteral("ours.csv"));
    const QString peerStore = files.path(QStringLiteral("peer.db"));
    const QString peerExported = files.path(QStringLiteral("peer.csv"));
    qarn_bench::measureInChild({store, exported});
    makePeer(peerStore, exported);
    qarn_bench::Figure figure{"export 100,000 persons with nine columns, ms"};
    figure.limit = 1.5;
    qarn_bench::measureAlternately(
        figure, Rounds,
        [&] {
            return qarn_bench::measureInChild({store, exported});
        },
        [&] { return peer(peerStore, peerExported); });
    if (lineCount(exported) < Count + 1 || lineCount(peerExported) < Count)
        qFatal("a file is not complete");
    return qarn_bench::report(figure);
}
