#include "PathCheck.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

using qarn_worker::checkPath;
using qarn_worker::describe;
using qarn_worker::NeededBytes;
using qarn_worker::PathCheck;
using qarn_worker::PathProblem;

Q_DECLARE_METATYPE(qarn_worker::PathProblem)

class tst_PathCheck : public QObject
{
    Q_OBJECT
private slots:
    void tellsTheProblem_data();
    void tellsTheProblem();
    void leavesNothingBehind();
    void namesPlaceAndNextStep();

private:
    QTemporaryDir m_directory;
};

void tst_PathCheck::tellsTheProblem_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<qint64>("room");
    QTest::addColumn<PathProblem>("problem");
    QTest::addColumn<QString>("place");
    const QString root = m_directory.path();
    const QString file = root + QStringLiteral("/persons.csv");
    QFile existing(file);
    QVERIFY(existing.open(QIODevice::WriteOnly));
    const qint64 much = 1LL << 40;
    QTest::newRow("directory") << root << much << PathProblem::None << QString();
    QTest::newRow("file to be made") << root + "/new.csv" << much << PathProblem::None << QString();
    QTest::newRow("file that is there") << file << much << PathProblem::None << QString();
    QTest::newRow("missing directory")
        << root + "/gone/new.csv" << much << PathProblem::Missing << root + "/gone";
    QTest::newRow("below a file") << file + "/new.csv" << much << PathProblem::NotADirectory << file;
    QTest::newRow("no path") << QString() << much << PathProblem::Missing << QString();
    QTest::newRow("closed to everyone")
        << QStringLiteral("/proc/new.csv") << much << PathProblem::NotWritable << QStringLiteral("/proc");
    QTest::newRow("full") << root << NeededBytes - 1 << PathProblem::NoRoom << root;
    QTest::newRow("just enough") << root << NeededBytes << PathProblem::None << QString();
    QTest::newRow("room unknown") << root << qint64(-1) << PathProblem::None << QString();
}

void tst_PathCheck::tellsTheProblem()
{
    QFETCH(QString, path);
    QFETCH(qint64, room);
    QFETCH(PathProblem, problem);
    QFETCH(QString, place);
    const PathCheck check = checkPath(path, [room](const QString&) { return room; });
    QCOMPARE(check.problem, problem);
    QCOMPARE(check.place, place);
}

void tst_PathCheck::leavesNothingBehind()
{
    QTemporaryDir directory;
    checkPath(directory.path(), qarn_worker::freeBytesOf);
    checkPath(directory.filePath(QStringLiteral("new.csv")), qarn_worker::freeBytesOf);
    QVERIFY(QDir(directory.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

void tst_PathCheck::namesPlaceAndNextStep()
{
    QStringList texts;
    for (const PathProblem problem :
         {PathProblem::Missing, PathProblem::NotADirectory, PathProblem::NotWritable, PathProblem::NoRoom}) {
        const QString text = describe({problem, QStringLiteral("/media/stick")});
        QVERIFY(text.contains(QStringLiteral("/media/stick")));
        QVERIFY(!texts.contains(text));
        texts.append(text);
    }
    QVERIFY(describe({PathProblem::None, QString()}).isEmpty());
}

QTEST_GUILESS_MAIN(tst_PathCheck)
#include "tst_PathCheck.moc"
