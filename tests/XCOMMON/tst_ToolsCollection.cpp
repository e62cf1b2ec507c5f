#include <XCOMMON/OperatorNotice.h>
#include <XCOMMON/ToolsCollection.h>

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

#include <sys/stat.h>

using XCOMMON::OperatorNotice;
using XCOMMON::ToolsCollection;

namespace
{
constexpr qint64 limit = 64 * 1024 * 1024;
}

class tst_ToolsCollection : public QObject
{
    Q_OBJECT
private slots:
    void makesFileNamesLegal_data();
    void makesFileNamesLegal();
    void loadsAFileWhole();
    void tellsWhatItCannotLoad_data();
    void tellsWhatItCannotLoad();

private:
    QTemporaryDir m_directory;
};

void tst_ToolsCollection::makesFileNamesLegal_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("replacement");
    QTest::addColumn<QString>("expected");
    QTest::newRow("legal") << "4711_Anna"
                           << ""
                           << "4711_Anna";
    QTest::newRow("all that is forbidden") << "a\\b/c:d*e?f\"g<h>i|j"
                                           << ""
                                           << "abcdefghij";
    QTest::newRow("replaced") << "a/b:c"
                              << "-"
                              << "a-b-c";
    QTest::newRow("control characters") << QStringLiteral("a\nb\tc\u007fd\u0085e") << ""
                                        << "abcde";
    QTest::newRow("blanks at the end") << "Anna  "
                                       << ""
                                       << "Anna";
    QTest::newRow("dots at the end") << "Anna. .."
                                     << ""
                                     << "Anna";
    QTest::newRow("end replaced") << "Anna. "
                                  << "_"
                                  << "Anna__";
    QTest::newRow("blanks and dots inside") << " Dr. Anna"
                                            << ""
                                            << " Dr. Anna";
    QTest::newRow("nothing left") << "???"
                                  << ""
                                  << "";
    QTest::newRow("a way up") << "../../etc"
                              << ""
                              << "....etc";
    QTest::newRow("only dots") << ".."
                               << ""
                               << "";
    QTest::newRow("other scripts") << QString::fromUtf8("王小明_Thérèse") << ""
                                   << QString::fromUtf8("王小明_Thérèse");
    QTest::newRow("beyond the basic plane")
        << QString::fromUtf8("𠮷野家😀") << "" << QString::fromUtf8("𠮷野家😀");
    QTest::newRow("forbidden before the end") << "Anna .?"
                                              << ""
                                              << "Anna";
    QTest::newRow("empty") << ""
                           << "x"
                           << "";
}

void tst_ToolsCollection::makesFileNamesLegal()
{
    QFETCH(QString, name);
    QFETCH(QString, replacement);
    QFETCH(QString, expected);
    QCOMPARE(ToolsCollection::formatLegalFileName(name, replacement), expected);
    QCOMPARE(name, expected);
}

void tst_ToolsCollection::loadsAFileWhole()
{
    QSignalSpy spy(&OperatorNotice::instance(), &OperatorNotice::signalRefused);
    const QString path = m_directory.filePath(QString::fromUtf8("Gesicht ü.jpg"));
    const QByteArray bytes("\0\xff\n\r\x1a whatever it holds", 24);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    QCOMPARE(ToolsCollection::loadImage(path), bytes);

    QVERIFY(file.resize(limit));
    QCOMPARE(ToolsCollection::loadImage(path).size(), static_cast<int>(limit));
    QVERIFY(file.resize(0));
    QCOMPARE(ToolsCollection::loadImage(path), QByteArray());
    QCOMPARE(spy.count(), 0);
}

void tst_ToolsCollection::tellsWhatItCannotLoad_data()
{
    QTest::addColumn<QString>("path");
    const QString large = m_directory.filePath(QStringLiteral("large.jpg"));
    QFile file(large);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(limit + 1));
    const QString pipe = m_directory.filePath(QStringLiteral("pipe.jpg"));
    QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
    QTest::newRow("too large") << large;
    QTest::newRow("not there") << m_directory.filePath(QStringLiteral("missing.jpg"));
    QTest::newRow("a directory") << m_directory.path();
    QTest::newRow("a pipe that nobody writes to") << pipe;
    QTest::newRow("a device without end") << QStringLiteral("/dev/zero");
    QTest::newRow("no path") << QString();
}

void tst_ToolsCollection::tellsWhatItCannotLoad()
{
    QFETCH(QString, path);
    QSignalSpy spy(&OperatorNotice::instance(), &OperatorNotice::signalRefused);
    QVERIFY(ToolsCollection::loadImage(path).isEmpty());
    QCOMPARE(spy.count(), 1);
    QVERIFY(spy.at(0).at(0).toString().contains(path));
}

QTEST_GUILESS_MAIN(tst_ToolsCollection)
#include "tst_ToolsCollection.moc"
