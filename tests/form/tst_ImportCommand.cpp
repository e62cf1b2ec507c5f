#include "TestPictures.h"
#include "TransferFixture.h"

#include "query/PersonMgrWorker.h"

#include <QFile>

using namespace qarn_personMgr;

/// Import as the operator starts it from the tool bar, with real workers and files.
class tst_ImportCommand : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_page = std::make_unique<TransferFixture>(); }
    void cleanup()
    {
        const int pending = m_page->driver.pending();
        m_page.reset();
        QCOMPARE(pending, 0);
    }

    void importsAPersonFile();
    void ignoresChangesDuringAnImport();
    void leavesThePageAloneAfterAFailedImport();
    void importsFaces();
    void asksForAnOrganizationToImportFacesTo();
    void importsNothingWhenCancelled();
    void coversThePage();
    void waitsForAnImportWhenItGoes();

private:
    QString write(const char* name, const QByteArray& bytes) const;
    QString personFile(int count, const char* prefix) const;
    void expectImport(const QString& path);
    void expectFaceImport(const QString& directory);

    std::unique_ptr<TransferFixture> m_page;
};

QString tst_ImportCommand::write(const char* name, const QByteArray& bytes) const
{
    QFile file(m_page->path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

QString tst_ImportCommand::personFile(int count, const char* prefix) const
{
    QByteArray text =
        "*Serial Num,*Person Name,*Organization,*Sex,Phone Num,Email,Valid Time,Invalid Time,\n";
    for (int i = 1; i <= count; ++i)
        text += QByteArray(prefix) + QByteArray::number(i) + ",Imported " + prefix + QByteArray::number(i) +
                ",East,1,,,,,\n";
    return write("persons.csv", text);
}

void tst_ImportCommand::expectImport(const QString& path)
{
    m_page->driver.expect([path](QWidget* window) {
        window->findChild<QLineEdit*>("filePath")->setText(path);
        BulkFixture::press(window, "importBt");
    });
}

void tst_ImportCommand::expectFaceImport(const QString& directory)
{
    m_page->driver.expect([directory](QWidget* window) {
        BulkFixture::button(window, "personFaceChecked")->click();
        window->findChild<QLineEdit*>("filePath")->setText(directory);
        for (const char* box : {"serialNumChecked", "personNameChecked"})
            window->findChild<QCheckBox*>(QLatin1String(box))->setChecked(true);
        window->findChild<QCheckBox*>("sexChecked")->setChecked(false);
        BulkFixture::press(window, "importBt");
    });
}

void tst_ImportCommand::importsAPersonFile()
{
    m_page->addPersons(60, "west", "W");
    m_page->open();
    m_page->click("nextBt");
    m_page->type("name", "Imported");
    expectImport(personFile(5, "N"));
    m_page->click("importPersonsBt");
    QVERIFY(m_page->overlay() != nullptr);
    QCOMPARE(m_page->overlayText("caption"), QStringLiteral("Importing Persons..."));
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(m_page->rows().count(), 5);
    QCOMPARE(m_page->label(0, "serialNum"), QStringLiteral("N1"));
    QCOMPARE(m_page->orderNum(0), QStringLiteral("1"));
    QCOMPARE(m_page->child<QLineEdit>("name")->text(), QStringLiteral("Imported"));
    QTRY_COMPARE(m_page->alertTexts().count(), 1);
}

/// Control does not return to the event loop here, so the import has not ended for the page.
void tst_ImportCommand::ignoresChangesDuringAnImport()
{
    m_page->addPersons(3, "east");
    m_page->open();
    m_page->selectOrganization("east");
    m_page->type("name", "P");
    expectImport(personFile(2, "N"));
    m_page->click("importPersonsBt");
    QVERIFY(m_page->thread() != nullptr);
    QVERIFY(m_page->data().addPersons({makePerson("X", "Extra P", "east")}));
    QVERIFY(m_page->data().updatePerson(makePerson("P1", "Renamed P", "east")));
    QVERIFY(m_page->data().deletePersons({"P2"}));
    QCOMPARE(m_page->ids(), QStringList({"P1", "P2", "P3"}));
    QCOMPARE(m_page->label(0, "name"), QStringLiteral("Person P1"));
    QCOMPARE(m_page->child<QLineEdit>("name")->text(), QStringLiteral("P"));

    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(m_page->ids(), QStringList({"P1", "P3", "X"}));
    QCOMPARE(m_page->label(0, "name"), QStringLiteral("Renamed P"));
    QVERIFY(m_page->data().deletePersons({"P1"}));
    QCOMPARE(m_page->ids(), QStringList({"P3", "X"}));
}

void tst_ImportCommand::leavesThePageAloneAfterAFailedImport()
{
    m_page->addPersons(60, "east");
    m_page->open();
    m_page->click("nextBt");
    const QStringList before = m_page->ids();
    QSignalSpy answers(&PersonMgrWorker::instance(), &PersonMgrWorker::signalCurPagePersons);
    expectImport(m_page->path("no such file.csv"));
    m_page->click("importPersonsBt");
    QTRY_VERIFY(m_page->isIdle());
    QTRY_COMPARE(m_page->alertTexts().count(), 1);
    QCOMPARE(m_page->ids(), before);
    QCOMPARE(answers.count(), 0);
    QVERIFY(m_page->data().deletePersons({"P60"}));
    QVERIFY(!m_page->ids().contains("P60"));
}

void tst_ImportCommand::importsFaces()
{
    write("F1_Grace_Female.jpg", jpeg(Qt::red));
    write("F2_Alan_Male.jpg", jpeg(Qt::blue));
    m_page->open();
    m_page->selectOrganization("west");
    expectFaceImport(m_page->directory());
    m_page->click("importPersonsBt");
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(m_page->rows().count(), 2);
    QCOMPARE(m_page->label(0, "organization"), QStringLiteral("West"));
    QStringList serialNums{m_page->label(0, "serialNum"), m_page->label(1, "serialNum")};
    serialNums.sort();
    QCOMPARE(serialNums, QStringList({"F1", "F2"}));
    QVERIFY(!m_page->rows().first()->getPersonInfo().faceImage1.isEmpty());
}

void tst_ImportCommand::asksForAnOrganizationToImportFacesTo()
{
    write("F1_Grace_Female.jpg", jpeg(Qt::red));
    m_page->open();
    expectFaceImport(m_page->directory());
    m_page->click("importPersonsBt");
    QVERIFY(m_page->isIdle());
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Please select which organization to import persons"));
    QVERIFY(m_page->data().addPersons({makePerson("X", "X", "east")}));
    m_page->selectOrganization("east");
    QVERIFY(m_page->data().addPersons({makePerson("Y", "Y", "east")}));
    QCOMPARE(m_page->ids(), QStringList({"X", "Y"}));
}

void tst_ImportCommand::importsNothingWhenCancelled()
{
    m_page->open();
    m_page->expectPress("cancelBt");
    m_page->click("importPersonsBt");
    QVERIFY(m_page->isIdle());
    QCOMPARE(m_page->alertTexts(), QStringList());
}

void tst_ImportCommand::coversThePage()
{
    m_page->addPersons(3, "east");
    m_page->open();
    expectImport(personFile(1, "N"));
    m_page->click("importPersonsBt");
    QCOMPARE(m_page->overlay()->geometry(), m_page->form->rect());
    const QPoint middle = m_page->child<QWidget>("addPersonBt")->mapTo(m_page->form, QPoint(40, 14));
    QCOMPARE(m_page->form->childAt(middle), static_cast<QWidget*>(m_page->overlay()));
    QTRY_VERIFY(m_page->isIdle());
    QVERIFY(m_page->form->childAt(middle) == m_page->child<QWidget>("addPersonBt"));
}

void tst_ImportCommand::waitsForAnImportWhenItGoes()
{
    m_page->open();
    expectImport(personFile(500, "N"));
    m_page->click("importPersonsBt");
    QPointer<QThread> thread = m_page->thread();
    QVERIFY(thread != nullptr);
    delete m_page->form.data();
    QVERIFY(thread.isNull());
    QCOMPARE(m_page->data().getAllPersons(false).count(), 500);
    QTest::qWait(1);
}

QTEST_MAIN(tst_ImportCommand)
#include "tst_ImportCommand.moc"
