#include "TestStore.h"
#include "ThreadRun.h"
#include "TransferFiles.h"

#include <memory>

using qarn_data::PersonData;
using qarn_data::PersonInfo;
using qarn_personMgr::ImportPersonsThread;

namespace
{

const QList<int> serialNameSex{0, 1, 2};

} // namespace

class tst_ImportFaces : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void addsOnePersonPerImage();
    void keepsTheBytesOfTheFile();
    void replacesARefusedSerialNumber();
    void updatesKnownPersons();
    void keepsSexWithoutSuchAnElement();
    void addsAnImageThatTellsNothing();
    void readsTheBaseNameUpToItsFirstDot();
    void looksAtOrdinaryJpgFilesOnly();
    void failsWithoutImages_data();
    void failsWithoutImages();
    void keepsAPictureThatCannotBeReplaced();
    void importsTheSampleDirectory();

private:
    QStringList import(const QList<int>& rule = serialNameSex);
    void put(const QString& name, const QByteArray& bytes = "jpeg")
    {
        transferFiles::write(m_directory->filePath(name), bytes);
    }

    std::unique_ptr<TestStore> m_store;
    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_organizationId;
};

void tst_ImportFaces::init()
{
    m_store = std::make_unique<TestStore>();
    m_directory = std::make_unique<QTemporaryDir>();
    m_organizationId = PersonData::instance().createOrganization({"Staff"});
}

void tst_ImportFaces::cleanup()
{
    m_store.reset();
    m_directory.reset();
}

QStringList tst_ImportFaces::import(const QList<int>& rule)
{
    ImportPersonsThread thread(m_directory->path(), m_organizationId, rule, nullptr);
    return ThreadRun(thread).events();
}

void tst_ImportFaces::addsOnePersonPerImage()
{
    put("a1_Anna_Female.jpg");
    put("B2_Tom_Male.jpg");
    QCOMPARE(import(), (QStringList{"stored 2", "result true", importOutcome::finished}));
    QCOMPARE(personOf("A1").name, QString("Anna"));
    QCOMPARE(personOf("A1").sex, 2);
    QCOMPARE(personOf("B2").sex, 1);
    QCOMPARE(personOf("A1").organizationId, m_organizationId);
    QVERIFY(!QUuid::fromString(personOf("A1").id).isNull());
}

void tst_ImportFaces::keepsTheBytesOfTheFile()
{
    QByteArray bytes(200 * 1024 + 1, 'x'); // neither size nor format is checked
    bytes[0] = '\0';
    put("A1_Anna.jpg", bytes);
    import();
    QCOMPARE(personOf("A1").faceImage1, bytes);
    QVERIFY(personOf("A1").faceImage2.isEmpty());
}

void tst_ImportFaces::replacesARefusedSerialNumber()
{
    put("A-001_Anna_Male.jpg");
    import();
    const PersonInfo anna = PersonData::instance().getPersonByName("Anna", false);
    QVERIFY(QRegularExpression("\\A\\{[0-9a-f]{8}-\\z").match(anna.serialNum).hasMatch());
    QCOMPARE(anna.sex, 1);
}

void tst_ImportFaces::updatesKnownPersons()
{
    const QString other = PersonData::instance().createOrganization({"Other"});
    const PersonInfo anna = addPerson("A1", "Anna", other);
    addPerson("B2", "Tom");
    put("A1_Annabel_Female.jpg", "one");
    put("_Tom_Male.jpg", "two");
    QCOMPARE(import(), (QStringList{"updated", "updated", "result true", importOutcome::finished}));
    QCOMPARE(personOf("A1").id, anna.id);
    QCOMPARE(personOf("A1").name, QString("Annabel"));
    QCOMPARE(personOf("A1").organizationId, other);
    QCOMPARE(personOf("A1").faceImage1, QByteArray("one"));
    QCOMPARE(personOf("B2").faceImage1, QByteArray("two"));
    QVERIFY(personOf("B2").organizationId.isEmpty());
}

void tst_ImportFaces::keepsSexWithoutSuchAnElement()
{
    PersonInfo anna = addPerson("A1", "Anna");
    anna.sex = 2;
    PersonData::instance().updatePerson(anna);
    put("A1_Anna.jpg");
    put("B2_Tom.jpg");
    import();
    QCOMPARE(personOf("A1").sex, 2);
    QCOMPARE(personOf("B2").sex, 1);
}

void tst_ImportFaces::addsAnImageThatTellsNothing()
{
    put("_.jpg", "x");
    import();
    const QList<PersonInfo> persons = PersonData::instance().getAllPersons(false);
    QCOMPARE(persons.count(), 1);
    QCOMPARE(persons[0].serialNum.length(), 10);
    QVERIFY(persons[0].name.isEmpty());
    QCOMPARE(persons[0].faceImage1, QByteArray("x"));
}

void tst_ImportFaces::readsTheBaseNameUpToItsFirstDot()
{
    put("A1_J. Doe_Male.jpg");
    import();
    QCOMPARE(personOf("A1").name, QString("J"));
    QCOMPARE(personOf("A1").sex, 1); // not told: the default
}

void tst_ImportFaces::looksAtOrdinaryJpgFilesOnly()
{
    put("A1_Anna.jpg");
    put("B2_Tom.jpeg");
    put("C3_Cleo.png");
    put("D4_Dan.jpg.txt");
    QDir(m_directory->path()).mkdir("E5_Eve.jpg");
    put("E5_Eve.jpg/F6_Fay.jpg");
    import();
    QCOMPARE(PersonData::instance().getAllPersonsSerialNum(), QSet<QString>{"A1"});
}

void tst_ImportFaces::failsWithoutImages_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << "/no/such/directory";
    QTest::newRow("a file") << QStringLiteral(TRANSFER_TEST_DATA "/template.csv");
    QTest::newRow("no image in it") << TRANSFER_TEST_DATA;
}

void tst_ImportFaces::failsWithoutImages()
{
    QFETCH(QString, path);
    ImportPersonsThread thread(path, m_organizationId, serialNameSex, nullptr);
    QCOMPARE(ThreadRun(thread).events(), (QStringList{"result false", importOutcome::noImages}));
    QVERIFY(PersonData::instance().getAllPersons(false).isEmpty());
}

void tst_ImportFaces::keepsAPictureThatCannotBeReplaced()
{
    PersonInfo anna = addPerson("A1", "Anna");
    anna.faceImage1 = "good";
    PersonData::instance().updatePerson(anna);
    put("A1_Anna.jpg");
    QFile huge(m_directory->filePath("A1_Anna.jpg"));
    QVERIFY(huge.resize(5LL << 30)); // takes no room
    const QStringList events = import();
    QCOMPARE(events.last(), importOutcome::finished);
    QVERIFY2(!events.filter("A1_Anna.jpg").isEmpty(), "the operator is told which file");
    QCOMPARE(personOf("A1").faceImage1, QByteArray("good"));
}

void tst_ImportFaces::importsTheSampleDirectory()
{
    const QString folder = transferFiles::sample("face-directory");
    if (folder.isEmpty())
        QSKIP("no sample data here; set QARN_SAMPLE_DATA");
    const QStringList files = QDir(folder).entryList({"*.jpg"}, QDir::Files);
    ImportPersonsThread thread(folder, m_organizationId, {0, 1}, nullptr);
    QCOMPARE(ThreadRun(thread).events().last(), importOutcome::finished);
    QCOMPARE(PersonData::instance().getAllPersons(true).count(), files.count());
    const PersonInfo person = personOf("UK0001");
    QCOMPARE(person.name, QString::fromUtf8("Th\u00e9r\u00e8se Coffey"));
    QCOMPARE(person.faceImage1,
             transferFiles::read(folder + QString::fromUtf8("/UK0001_Th\u00e9r\u00e8se Coffey.jpg")));
}

QTEST_GUILESS_MAIN(tst_ImportFaces)
#include "tst_ImportFaces.moc"
