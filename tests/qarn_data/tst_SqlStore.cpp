#include "PersonTable.h"
#include "QueryStatement.h"
#include "RegisterState.h"
#include "Samples.h"
#include "SqlStore.h"
#include "SqliteDialect.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

using namespace qarn_data;

namespace
{

/// SQLite through nothing but QtSql, as an engine without a short cut would be used.
class PlainDialect : public SqliteDialect
{
public:
    std::unique_ptr<Statement> statement(const QSqlDatabase& database, const char* sql,
                                         QSqlError* error) const override
    {
        return SqlDialect::statement(database, sql, error);
    }
};

/// The same schema as if a later version had been there.
class NewerDialect : public SqliteDialect
{
public:
    int newestSchema() const override { return SqliteDialect::newestSchema() + 1; }
    QStringList schemaSteps(int version) const override
    {
        return version == newestSchema() ? steps : SqliteDialect::schemaSteps(version);
    }
    QStringList steps;
};

std::unique_ptr<SqlStore> opened(const QString& location, std::unique_ptr<SqlDialect> dialect)
{
    auto store = std::make_unique<SqlStore>(std::move(dialect));
    QString reason;
    if (!store->open(location, &reason))
        qFatal("%s", qPrintable(reason));
    return store;
}

std::unique_ptr<SqlStore> opened()
{
    return opened(":memory:", std::make_unique<SqliteDialect>());
}

} // namespace

class tst_SqlStore : public QObject
{
    Q_OBJECT
private slots:
    void schemaGuardsItself_data();
    void schemaGuardsItself();
    void everyStatementRunsThroughQtSqlToo();
    void migratesForwardInOneTransaction();
    void leavesTheFileWhenAMigrationFails();
    void passesFromThreadToThread();
    void noticesForeignChanges();
    void tellsWhatIsWrong();
};

void tst_SqlStore::schemaGuardsItself_data()
{
    QTest::addColumn<QString>("sql");
    QTest::addColumn<bool>("isTaken");
    const auto refused = [](const char* row, const char* sql) {
        QTest::newRow(row) << QString(sql) << false;
    };
    const auto taken = [](const char* row, const char* sql) { QTest::newRow(row) << QString(sql) << true; };
    taken("another organization", "INSERT INTO organizations VALUES (9, 'z', 1, 'Z')");
    refused("second root", "INSERT INTO organizations VALUES (9, 'z', NULL, 'Z')");
    refused("organization id twice", "INSERT INTO organizations VALUES (9, 'x', 1, 'Z')");
    refused("organization without id", "INSERT INTO organizations VALUES (9, '', 1, 'Z')");
    refused("unknown parent", "INSERT INTO organizations VALUES (9, 'z', 99, 'Z')");
    refused("below itself", "UPDATE organizations SET parent = 2 WHERE number = 2");
    refused("below its child", "UPDATE organizations SET parent = 3 WHERE number = 2");
    refused("root below its child", "UPDATE organizations SET parent = 2 WHERE number = 1");
    refused("child to the top", "UPDATE organizations SET parent = NULL WHERE number = 2");
    taken("child under the root", "UPDATE organizations SET parent = 1 WHERE number = 3");
    refused("deleting the root", "DELETE FROM organizations WHERE number = 1");
    refused("deleting a parent", "DELETE FROM organizations WHERE number = 2");
    refused("deleting where persons are", "DELETE FROM organizations WHERE number = 3");
    refused("serial number twice", "UPDATE persons SET serial_num = 'A' WHERE number = 2");
    taken("empty serial number twice", "UPDATE persons SET serial_num = ''");
    refused("record id twice", "INSERT INTO records VALUES (9, 'a', 2, 2)");
    refused("record of nobody", "INSERT INTO records VALUES (9, 'z', 99, NULL)");
    refused("record in no known organization", "INSERT INTO records VALUES (9, 'z', 2, 99)");
    refused("two records in one organization", "INSERT INTO records VALUES (9, 'z', 1, 3)");
    refused("two records without organization", "INSERT INTO records VALUES (9, 'z', 2, NULL)");
    taken("a further record elsewhere", "INSERT INTO records VALUES (9, 'z', 1, 2)");
    refused("record of another person", "UPDATE records SET person = 2 WHERE number = 1");
    refused("value of nobody", "INSERT INTO custom_values VALUES (99, 'f', 'v')");
    refused("fourth image", "INSERT INTO person_faces VALUES (1, 4, x'00')");
    refused("image that is not kept", "INSERT INTO person_faces VALUES (1, 2, x'00')");
    refused("channel of no device", "INSERT INTO device_channels VALUES ('z', 0, 1, 'n', 16)");
}

void tst_SqlStore::schemaGuardsItself()
{
    QFETCH(QString, sql);
    QFETCH(bool, isTaken);
    const auto store = opened();
    const char* person = "INSERT INTO persons (number, serial_num, name, sex, email, phone_num, remarks,"
                         " identity_type, identity_id, job, address)"
                         " VALUES (?, ?, '', 1, '', '', '', 0, '', '', '')";
    QVERIFY(store->run("INSERT INTO organizations VALUES (2, 'x', 1, 'X'), (3, 'y', 2, 'Y')"));
    QVERIFY(store->run(person, 1, QString("A")) && store->run(person, 2, QString("B")));
    QVERIFY(store->run("INSERT INTO records VALUES (1, 'a', 1, 3), (2, 'b', 2, NULL)"));
    const QByteArray statement = sql.toUtf8();
    QCOMPARE(store->run(statement.constData()), isTaken);
    QCOMPARE(store->selfCheck(), QString());
}

// What a second engine will use: QtSql's own statements, on the same tables with the same outcome.
void tst_SqlStore::everyStatementRunsThroughQtSqlToo()
{
    QTemporaryDir directory;
    const QString location = directory.filePath("store.db");
    const PersonInfo full = samples::fullPerson("full", QString());
    PersonInfo bare(PersonInfo::Blank::Record);
    bare.id = "bare";
    {
        const auto store = opened(location, std::make_unique<PlainDialect>());
        const OrganizationIndex organizations;
        PersonTable table(*store, organizations);
        QVERIFY(store->beginWrite());
        QVERIFY(table.insertPerson(1, full) && table.insertRecord({1, 1, full}));
        QVERIFY(table.insertPerson(2, bare) && table.insertRecord({2, 2, bare}));
        QVERIFY(store->commit());
        QVERIFY(!table.insertPerson(2, bare));
    }
    for (int round = 0; round < 2; ++round) {
        auto dialect = round == 0 ? std::make_unique<SqliteDialect>() : std::make_unique<PlainDialect>();
        const auto store = opened(location, std::move(dialect));
        RegisterState state;
        QVERIFY(state.load(*store));
        QVERIFY(sameRecord(*state.persons.record(state.persons.recordNumber("full")), full));
        QVERIFY(sameRecord(*state.persons.record(state.persons.recordNumber("bare")), bare));
        QVERIFY(!store->forEachRow("SELECT nothing", {}, {}));
    }
}

void tst_SqlStore::migratesForwardInOneTransaction()
{
    QTemporaryDir directory;
    const QString location = directory.filePath("store.db");
    QString rootBefore;
    {
        const auto store = opened(location, std::make_unique<SqliteDialect>());
        store->forEachRow("SELECT id FROM organizations", {},
                          [&](const Row& row) { rootBefore = row.text(0); });
    }
    {
        auto dialect = std::make_unique<NewerDialect>();
        dialect->steps = QStringList{"ALTER TABLE persons ADD COLUMN nickname TEXT NOT NULL DEFAULT ''"};
        const auto store = opened(location, std::move(dialect));
        QVERIFY(store->forEachRow("SELECT nickname FROM persons", {}, {}));
        QString root;
        store->forEachRow("SELECT id FROM organizations", {}, [&](const Row& row) { root = row.text(0); });
        QCOMPARE(root, rootBefore);
    }
    SqlStore older(std::make_unique<SqliteDialect>());
    QString reason;
    QVERIFY(!older.open(location, &reason));
    QVERIFY2(reason.contains("newer version"), qPrintable(reason));
}

void tst_SqlStore::leavesTheFileWhenAMigrationFails()
{
    QTemporaryDir directory;
    const QString location = directory.filePath("store.db");
    opened(location, std::make_unique<SqliteDialect>());
    QFile file(location);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    auto dialect = std::make_unique<NewerDialect>();
    dialect->steps = QStringList{"CREATE TABLE extra (a INTEGER)", "this is no SQL"};
    SqlStore store(std::move(dialect));
    QString reason;
    QVERIFY(!store.open(location, &reason));
    QVERIFY(!reason.isEmpty());
    file.seek(0);
    QCOMPARE(file.readAll(), before);
    opened(location, std::make_unique<SqliteDialect>()); // and it still opens
}

void tst_SqlStore::passesFromThreadToThread()
{
    const auto store = opened();
    store->handOver();
    bool ok = false;
    const std::unique_ptr<QThread> thread(QThread::create([&] {
        store->takeOver();
        ok = store->run("INSERT INTO organizations VALUES (2, 'x', 1, 'X')");
        store->handOver();
    }));
    thread->start();
    QVERIFY(thread->wait());
    QVERIFY(ok);
    store->takeOver();
    int count = 0;
    store->forEachRow("SELECT id FROM organizations", {}, [&count](const Row&) { ++count; });
    QCOMPARE(count, 2);
}

void tst_SqlStore::noticesForeignChanges()
{
    QTemporaryDir directory;
    const QString location = directory.filePath("store.db");
    const auto ours = opened(location, std::make_unique<SqliteDialect>());
    const auto theirs = std::make_unique<SqlStore>(std::make_unique<SqliteDialect>());
    QString reason;
    QVERIFY(theirs->openBeside(location, &reason));
    QVERIFY(!ours->hasForeignChanges());
    QVERIFY(ours->run("INSERT INTO organizations VALUES (2, 'x', 1, 'X')"));
    QVERIFY(!ours->hasForeignChanges());
    QVERIFY(theirs->run("INSERT INTO organizations VALUES (3, 'y', 1, 'Y')"));
    QVERIFY(ours->hasForeignChanges());
    QVERIFY(!ours->hasForeignChanges());
    QVERIFY(theirs->hasForeignChanges());
}

void tst_SqlStore::tellsWhatIsWrong()
{
    const SqliteDialect dialect;
    const auto cause = [&dialect](const char* code) {
        return dialect.cause(
            QSqlError(QString(), "the words of the database", QSqlError::StatementError, code));
    };
    QVERIFY(cause("5").contains("Another program"));
    QVERIFY(cause("8").contains("read-only"));
    QVERIFY(cause("13").contains("disk is full"));
    QVERIFY(cause("778").contains("disk")); // an extended code of a write failure
    QVERIFY(cause("11").contains("damaged"));
    QVERIFY(cause("26").contains("not a person register"));
    QVERIFY(cause("14").contains("cannot be opened"));
    QVERIFY(cause("19").contains("the words of the database"));
}

QTEST_GUILESS_MAIN(tst_SqlStore)
#include "tst_SqlStore.moc"
