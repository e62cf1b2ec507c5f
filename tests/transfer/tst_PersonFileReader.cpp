#include "TransferFiles.h"

#include "transfer/PersonFileReader.h"
#include "transfer/PersonFileWriter.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextCodec>

#include <sys/resource.h>
#include <sys/stat.h>

using namespace qarn_personMgr;

namespace
{

const QString title = QStringLiteral("*Serial Num");
const QByteArray rowTail = ",,,,,,,\n"; // makes any first field a row

/// Most memory this program has had so far, in megabytes.
long peakMegabytes()
{
    rusage usage;
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

} // namespace

class tst_PersonFileReader : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void boundsMemoryForALineOfSeparators(); // first: it looks at the most memory ever used
    void readsTheRows_data();
    void readsTheRows();
    void readsNamesOfAllScripts();
    void readsAByteOrderMark();
    void refusesWhatIsNoFile_data();
    void refusesWhatIsNoFile();
    void tellsAFailingMedium();
    void readsTheTemplateAsNothing();
    void takesALongLine_data();
    void takesALongLine();
    void keepsFieldsAcrossPieces_data();
    void keepsFieldsAcrossPieces();
    void survivesHostileTables();

private:
    QList<QStringList> rows(const QByteArray& bytes);

    QTemporaryDir m_directory;
};

void tst_PersonFileReader::initTestCase()
{
    // Where the locale knows ASCII only, the client has chosen UTF-8 before any file is read.
    if (!QTextCodec::codecForLocale()->canEncode(QChar(0x5de5)))
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

QList<QStringList> tst_PersonFileReader::rows(const QByteArray& bytes)
{
    PersonFileReader reader(transferFiles::write(m_directory.filePath("rows.csv"), bytes), title);
    if (!reader.open())
        qFatal("cannot open the rows");
    QList<QStringList> result;
    for (QStringList fields; reader.readRow(fields);)
        result.append(fields);
    return result;
}

void tst_PersonFileReader::readsTheRows_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("firstFields");
    const QByteArray header = transferFiles::header();
    QTest::newRow("empty file") << QByteArray() << QStringList{};
    QTest::newRow("header only") << header << QStringList{};
    QTest::newRow("no header") << "1" + rowTail << QStringList{};
    QTest::newRow("a row") << header + "1" + rowTail << QStringList{"1"};
    QTest::newRow("without a last line end") << header + "1,,,,,,," << QStringList{"1"};
    QTest::newRow("Windows line ends") << header + "1,,,,,,,\r\n2,,,,,,,\r\n\r\n3,,,,,,,\r\n"
                                       << QStringList{"1", "2"};
    QTest::newRow("lines before the header")
        << "0" + rowTail + "Rules:,\n" + header + "1" + rowTail << QStringList{"1"};
    QTest::newRow("header again") << header + "1" + rowTail + header + "2" + rowTail << QStringList{"1", "2"};
    QTest::newRow("short header") << "*Serial Num,*Person Name,\n1" + rowTail << QStringList{};
    QTest::newRow("other titles do not count")
        << "*Serial Num,a,b,c,d,e,f,g\n1" + rowTail << QStringList{"1"};
    QTest::newRow("header of the export") << "*Serail Num,*Person Name,,,,,,,\n1" + rowTail << QStringList{};
    QTest::newRow("blank before the title") << " *Serial Num,,,,,,,\n1" + rowTail << QStringList{};
    QTest::newRow("short row") << header + "1,2,3,4,5,6,7\n2" + rowTail << QStringList{"2"};
    QTest::newRow("empty line ends it") << header + "1" + rowTail + "\n2" + rowTail << QStringList{"1"};
    QTest::newRow("empty line before the header") << "\n" + header + "1" + rowTail << QStringList{};
    QTest::newRow("a blank is no empty line") << header + " \n2" + rowTail << QStringList{"2"};
    QTest::newRow("NUL byte") << header + QByteArray("A\0B", 3) + rowTail
                              << QStringList{QString("A") + QChar(0) + "B"};
    QTest::newRow("old Mac line ends") << QByteArray(header).replace('\n', '\r') << QStringList{};
}

void tst_PersonFileReader::readsTheRows()
{
    QFETCH(QByteArray, bytes);
    QStringList firstFields;
    for (const QStringList& row : rows(bytes)) {
        QCOMPARE(row.count(), 8);
        firstFields.append(row.first());
    }
    QTEST(firstFields, "firstFields");
}

void tst_PersonFileReader::readsNamesOfAllScripts()
{
    const QString name =
        QString::fromUtf8("\u5f20\u4e09 \u0391\u03b8\u03b7\u03bd\u03ac \u05e0\u05d5\u05e2\u05d4");
    const QString path = m_directory.filePath(name + ".csv");
    PersonFileWriter writer(path);
    QVERIFY(writer.open());
    writer.writeRow({title, "", "", "", "", "", "", ""});
    writer.writeRow({"1", name, "", "", "", "", "", ""});
    QVERIFY(writer.finish());
    QVERIFY(transferFiles::read(path).contains(name.toUtf8()));
    PersonFileReader reader(path, title);
    QVERIFY(reader.open());
    QStringList fields;
    QVERIFY(reader.readRow(fields));
    QCOMPARE(fields[1], name);
}

void tst_PersonFileReader::readsAByteOrderMark()
{
    QCOMPARE(rows("\xEF\xBB\xBF" + transferFiles::header() + "1" + rowTail).count(), 1);
}

void tst_PersonFileReader::refusesWhatIsNoFile_data()
{
    QTest::addColumn<QString>("path");
    const QString pipe = m_directory.filePath("pipe.csv");
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QTest::newRow("missing") << m_directory.filePath("missing.csv");
    QTest::newRow("empty path") << "";
    QTest::newRow("directory") << m_directory.path();
    QTest::newRow("pipe") << pipe; // opening it would wait for a writer
    QTest::newRow("device without end") << "/dev/zero";
}

void tst_PersonFileReader::refusesWhatIsNoFile()
{
    QFETCH(QString, path);
    PersonFileReader reader(path, title);
    QVERIFY(!reader.open());
}

void tst_PersonFileReader::tellsAFailingMedium()
{
    QString error;
    PersonFileReader good(transferFiles::write(m_directory.filePath("good.csv"), "a\n"), title);
    QVERIFY(good.open());
    QStringList fields;
    QVERIFY(!good.readRow(fields));
    QVERIFY(!good.hasFailed(&error));

    const QString unreadable = QStringLiteral("/proc/self/mem"); // opens, then gives an input error
    if (!QFile::exists(unreadable))
        QSKIP("no file here that fails while it is read");
    PersonFileReader bad(unreadable, title);
    QVERIFY(bad.open());
    QVERIFY(!bad.readRow(fields));
    QVERIFY(bad.hasFailed(&error));
    QVERIFY(!error.isEmpty());
}

void tst_PersonFileReader::readsTheTemplateAsNothing()
{
    PersonFileReader reader(QFINDTESTDATA("data/template.csv"), title);
    QVERIFY(reader.open());
    QStringList fields;
    QVERIFY(!reader.readRow(fields));
}

void tst_PersonFileReader::takesALongLine_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<int>("rowCount");
    constexpr int length = 100 * 1000 * 1000;
    QTest::newRow("without separators") << QByteArray(length, 'x') << 1;
    QTest::newRow("separators only") << QByteArray(length, ',') << 2;
    QTest::newRow("long ninth field") << "1,,,,,,,," + QByteArray(length, 'x') << 2;
}

void tst_PersonFileReader::takesALongLine()
{
    QFETCH(QByteArray, line);
    QElapsedTimer timer;
    timer.start();
    const QList<QStringList> found = rows(transferFiles::header() + line + "\nlast" + rowTail);
    QTEST(found.count(), "rowCount");
    QCOMPARE(found.last().first(), QString("last"));
    QVERIFY2(timer.elapsed() < 60000, "time must grow with the length, not with its square");
}

void tst_PersonFileReader::keepsFieldsAcrossPieces_data()
{
    QTest::addColumn<int>("length");
    for (const int length : {65527, 65528, 65529, 65535, 65536, 65537, 131071, 131072, 131073, 300000})
        QTest::addRow("%d", length) << length;
}

void tst_PersonFileReader::keepsFieldsAcrossPieces()
{
    QFETCH(int, length);
    const QByteArray name(length, 'n');
    for (const QByteArray& lineEnd : {QByteArray("\n"), QByteArray("\r\n"), QByteArray()}) {
        QList<QStringList> found = rows(transferFiles::header() + "1," + name + ",,,,,p,q" + lineEnd);
        QCOMPARE(found.count(), 1);
        QCOMPARE(found[0][1].length(), length);
        QCOMPARE(found[0][7], QString("q"));
        found = rows(transferFiles::header() + "1,,,,,,," + name + lineEnd + "2" + rowTail);
        QCOMPARE(found.first()[7].length(), lineEnd.isEmpty() ? length + 1 : length);
        QCOMPARE(found.count(), lineEnd.isEmpty() ? 1 : 2);
    }
    // A line of exactly one piece, then the empty line that ends the reading.
    const QByteArray exact = "1,,,,,,," + QByteArray(65536 - 8, 'x');
    QCOMPARE(rows(transferFiles::header() + exact + "\n\n2" + rowTail).count(), 1);
}

void tst_PersonFileReader::boundsMemoryForALineOfSeparators()
{
    if (transferFiles::sanitized)
        QSKIP("the sanitizer's memory would be measured too");
    const QString path = m_directory.filePath("sparse.csv");
    transferFiles::write(path, transferFiles::header() + "1,,,,,,,,");
    QFile file(path);
    QVERIFY(file.resize(128 << 20)); // one line, nearly all of it behind the last field
    PersonFileReader reader(path, title);
    QVERIFY(reader.open());
    QStringList fields;
    const long before = peakMegabytes();
    QVERIFY(reader.readRow(fields));
    QVERIFY(!reader.readRow(fields));
    QVERIFY2(peakMegabytes() - before < 64, "what is not needed must not be kept");
}

void tst_PersonFileReader::survivesHostileTables()
{
    const QString folder = transferFiles::sample("csv");
    if (folder.isEmpty())
        QSKIP("no sample data here; set QARN_SAMPLE_DATA");
    int files = 0;
    for (QDirIterator each(folder, QDir::Files, QDirIterator::Subdirectories); each.hasNext(); ++files) {
        PersonFileReader reader(each.next(), title);
        QVERIFY2(reader.open(), qPrintable(each.filePath()));
        QStringList fields;
        while (reader.readRow(fields))
            QCOMPARE(fields.count(), 8);
    }
    QVERIFY(files > 100);
}

QTEST_GUILESS_MAIN(tst_PersonFileReader)
#include "tst_PersonFileReader.moc"
