#include "BulkFixture.h"
#include "TestPictures.h"

#include "query/PersonMgrWorker.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QTemporaryDir>

using namespace qarn_personMgr;

/// Import and export as the operator starts them from the tool bar, with real workers and files.
class tst_TransferCommands : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_page = std::make_unique<BulkFixture>();
        m_files = std::make_unique<QTemporaryDir>();
    }
    void cleanup()
    {
        const int pending = m_page->driver.pending();
        m_page.reset();
        m_files.reset();
        QCOMPARE(pending, 0);
    }

    void asksForAnOrganizationToExport();
    void exportsAPersonFile();
    void exportsFaces();
    void exportsNothingWhenCancelled_data();
    void exportsNothingWhenCancelled();
    void asksForTheTarget();
    void refusesAnEqualsSignInADirectory();
    void refusesATargetThatCannotBeUsed();
    void tellsThatAnExportFailed();

    void importsAPersonFile();
    void ignoresChangesDuringAnImport();
    void leavesThePageAloneAfterAFailedImport();
    void importsFaces();
    void asksForAnOrganizationToImportFacesTo();
    void importsNothingWhenCancelled();
    void coversThePage();
    void waitsForAnImportWhenItGoes();

private:
    QString path(const char* name) const { return m_files->filePath(QLatin1String(name)); }
    QString write(const char* name, const QByteArray& bytes) const;
    QString personFile(int count, const char* prefix) const;
    void expectImport(const QString& path);
    void expectFaceImport(const QString& directory);
    void expectFaceExport();

    std::unique_ptr<BulkFixture> m_page;
    std::unique_ptr<QTemporaryDir> m_files;
};

QString tst_TransferCommands::write(const char* name, const QByteArray& bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(file.fileName()));
    return file.fileName();
}

QString tst_TransferCommands::personFile(int count, const char* prefix) const
{
    QByteArray text =
        "*Serial Num,*Person Name,*Organization,*Sex,Phone Num,Email,Valid Time,Invalid Time,\n";
    for (int i = 1; i <= count; ++i)
        text += QByteArray(prefix) + QByteArray::number(i) + ",Imported " + prefix + QByteArray::number(i) +
                ",East,1,,,,,\n";
    return write("persons.csv", text);
}

void tst_TransferCommands::expectImport(const QString& path)
{
    m_page->driver.expect([path](QWidget* window) {
        window->findChild<QLineEdit*>("filePath")->setText(path);
        BulkFixture::press(window, "importBt");
    });
}

void tst_TransferCommands::expectFaceImport(const QString& directory)
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

void tst_TransferCommands::expectFaceExport()
{
    m_page->driver.expect([](QWidget* window) {
        BulkFixture::button(window, "faceChecked")->click();
        BulkFixture::press(window, "exportBt");
    });
}

void tst_TransferCommands::asksForAnOrganizationToExport()
{
    m_page->addPersons(2, "east");
    m_page->open();
    m_page->click("exportPersonsBt");
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Please select whick organization to export persons"));
    QVERIFY(m_page->isIdle());
}

void tst_TransferCommands::exportsAPersonFile()
{
    m_page->addPersons(3, "east", "E");
    m_page->addPersons(2, "inner", "I");
    m_page->addPersons(2, "west", "W");
    m_page->open();
    m_page->selectOrganization("east");
    QSignalSpy answers(&PersonMgrWorker::instance(), &PersonMgrWorker::signalCurPagePersons);
    QString title;
    m_page->driver.expect([&title](QWidget* window) {
        title = window->findChild<QLabel*>("title")->text();
        window->findChild<QCheckBox*>("exportChildren")->setChecked(true);
        BulkFixture::press(window, "exportBt");
    });
    m_page->expectPath(path("out.csv"));
    m_page->click("exportPersonsBt");
    QCOMPARE(title, QStringLiteral("Export Organization[East]Persons"));
    QVERIFY(m_page->overlay() != nullptr);
    QCOMPARE(m_page->overlayText("caption"), QStringLiteral("Exporting Persons..."));
    QCOMPARE(m_page->overlayText("description"), QString());
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Export persons finished"));
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(answers.count(), 0);

    QFile file(path("out.csv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    for (const char* serialNum : {"SE1", "SE2", "SE3", "SI1", "SI2"})
        QVERIFY2(text.contains(serialNum), serialNum);
    QVERIFY(!text.contains("SW1"));
}

void tst_TransferCommands::exportsFaces()
{
    qarn_data::PersonInfo person = makePerson("P1", "Ada", "east");
    person.faceImage1 = jpeg(Qt::red);
    QVERIFY(m_page->data().addPersons({person}));
    m_page->open();
    m_page->selectOrganization("east");
    expectFaceExport();
    m_page->expectPath(m_files->path());
    m_page->click("exportPersonsBt");
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Export persons finished"));
    QTRY_VERIFY(m_page->isIdle());
    const QStringList files = QDir(m_files->path()).entryList({"*.jpg"});
    QCOMPARE(files.count(), 1);
    QVERIFY2(files.first().contains("SP1") && files.first().contains("Ada"), qPrintable(files.first()));
}

void tst_TransferCommands::exportsNothingWhenCancelled_data()
{
    QTest::addColumn<bool>("faces");
    QTest::addColumn<bool>("choosesDialog");
    QTest::newRow("the dialog") << false << false;
    QTest::newRow("the file") << false << true;
    QTest::newRow("the directory") << true << true;
}

void tst_TransferCommands::exportsNothingWhenCancelled()
{
    QFETCH(bool, faces);
    QFETCH(bool, choosesDialog);
    m_page->addPersons(2, "east");
    m_page->open();
    m_page->selectOrganization("east");
    if (faces)
        expectFaceExport();
    else
        m_page->expectPress(choosesDialog ? "exportBt" : "cancelBt");
    if (choosesDialog)
        m_page->expectPath(QString());
    m_page->click("exportPersonsBt");
    QVERIFY(m_page->isIdle());
    QTest::qWait(1);
    QCOMPARE(m_page->alertTexts(), QStringList());
    QVERIFY(QDir(m_files->path()).isEmpty());
}

void tst_TransferCommands::asksForTheTarget()
{
    const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    QVERIFY(QDir().mkpath(desktop));
    m_page->open();
    m_page->selectOrganization("east");
    for (bool faces : {false, true}) {
        QVariantMap asked;
        if (faces)
            expectFaceExport();
        else
            m_page->expectPress("exportBt");
        m_page->driver.expect([this, &asked](QWidget* window) {
            const auto* dialog = qobject_cast<QFileDialog*>(window);
            asked = {{"parent", dialog->parentWidget() == m_page->form},
                     {"caption", dialog->windowTitle()},
                     {"directory", dialog->directory().path()},
                     {"directories only", dialog->testOption(QFileDialog::ShowDirsOnly)},
                     {"symlinks kept", dialog->testOption(QFileDialog::DontResolveSymlinks)},
                     {"saves", dialog->acceptMode() == QFileDialog::AcceptSave},
                     {"filters", dialog->nameFilters()}};
            QTest::keyClick(window, Qt::Key_Escape);
        });
        m_page->click("exportPersonsBt");
        QCOMPARE(asked.value("parent").toBool(), true);
        QCOMPARE(asked.value("caption").toString(), QString(faces ? "Select Export Path" : "Export Persons"));
        QCOMPARE(asked.value("directory").toString(), desktop);
        QCOMPARE(asked.value("directories only").toBool(), faces);
        QCOMPARE(asked.value("symlinks kept").toBool(), faces);
        QCOMPARE(asked.value("saves").toBool(), !faces);
        if (!faces)
            QCOMPARE(asked.value("filters").toStringList(), QStringList("CSV(*.csv)"));
    }
}

void tst_TransferCommands::refusesAnEqualsSignInADirectory()
{
    m_page->addPersons(2, "east");
    m_page->open();
    m_page->selectOrganization("east");
    QVERIFY(QDir(m_files->path()).mkdir("a=b"));
    expectFaceExport();
    m_page->expectPath(path("a=b"));
    m_page->click("exportPersonsBt");
    QVERIFY(m_page->isIdle());
    QTRY_COMPARE(m_page->alertTexts(), QStringList("path cannot contain="));
    QVERIFY(QDir(path("a=b")).isEmpty());
}

void tst_TransferCommands::refusesATargetThatCannotBeUsed()
{
    m_page->addPersons(2, "east");
    m_page->open();
    m_page->selectOrganization("east");
    m_page->expectPress("exportBt");
    m_page->expectPath(QStringLiteral("/proc/no such place/out.csv"));
    m_page->click("exportPersonsBt");
    QVERIFY(m_page->isIdle());
    QTRY_COMPARE(m_page->alertTexts().count(), 1);
    QVERIFY2(m_page->alertTexts().first().contains("no such place"),
             qPrintable(m_page->alertTexts().first()));
}

void tst_TransferCommands::tellsThatAnExportFailed()
{
    m_page->addPersons(2, "east");
    m_page->open();
    m_page->selectOrganization("east");
    // The disk is full, which is found out only when the worker writes.
    QVERIFY(QFile::link(QStringLiteral("/dev/full"), path("out.csv")));
    m_page->expectPress("exportBt");
    m_page->expectPath(path("out.csv"));
    m_page->driver.expect(
        [](QWidget* overwrite) { qobject_cast<QMessageBox*>(overwrite)->button(QMessageBox::Yes)->click(); });
    m_page->expectNotice();
    m_page->click("exportPersonsBt");
    QTRY_COMPARE(m_page->notice, QStringLiteral("Export persons failed"));
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(m_page->alertTexts(), QStringList());
}

void tst_TransferCommands::importsAPersonFile()
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
void tst_TransferCommands::ignoresChangesDuringAnImport()
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

void tst_TransferCommands::leavesThePageAloneAfterAFailedImport()
{
    m_page->addPersons(60, "east");
    m_page->open();
    m_page->click("nextBt");
    const QStringList before = m_page->ids();
    QSignalSpy answers(&PersonMgrWorker::instance(), &PersonMgrWorker::signalCurPagePersons);
    expectImport(path("no such file.csv"));
    m_page->click("importPersonsBt");
    QTRY_VERIFY(m_page->isIdle());
    QTRY_COMPARE(m_page->alertTexts().count(), 1);
    QCOMPARE(m_page->ids(), before);
    QCOMPARE(answers.count(), 0);
    QVERIFY(m_page->data().deletePersons({"P60"}));
    QVERIFY(!m_page->ids().contains("P60"));
}

void tst_TransferCommands::importsFaces()
{
    write("F1_Grace_Female.jpg", jpeg(Qt::red));
    write("F2_Alan_Male.jpg", jpeg(Qt::blue));
    m_page->open();
    m_page->selectOrganization("west");
    expectFaceImport(m_files->path());
    m_page->click("importPersonsBt");
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(m_page->rows().count(), 2);
    QCOMPARE(m_page->label(0, "organization"), QStringLiteral("West"));
    QStringList serialNums{m_page->label(0, "serialNum"), m_page->label(1, "serialNum")};
    serialNums.sort();
    QCOMPARE(serialNums, QStringList({"F1", "F2"}));
    QVERIFY(!m_page->rows().first()->getPersonInfo().faceImage1.isEmpty());
}

void tst_TransferCommands::asksForAnOrganizationToImportFacesTo()
{
    write("F1_Grace_Female.jpg", jpeg(Qt::red));
    m_page->open();
    expectFaceImport(m_files->path());
    m_page->click("importPersonsBt");
    QVERIFY(m_page->isIdle());
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Please select which organization to import persons"));
    QVERIFY(m_page->data().addPersons({makePerson("X", "X", "east")}));
    m_page->selectOrganization("east");
    QVERIFY(m_page->data().addPersons({makePerson("Y", "Y", "east")}));
    QCOMPARE(m_page->ids(), QStringList({"X", "Y"}));
}

void tst_TransferCommands::importsNothingWhenCancelled()
{
    m_page->open();
    m_page->expectPress("cancelBt");
    m_page->click("importPersonsBt");
    QVERIFY(m_page->isIdle());
    QCOMPARE(m_page->alertTexts(), QStringList());
}

void tst_TransferCommands::coversThePage()
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

void tst_TransferCommands::waitsForAnImportWhenItGoes()
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

QTEST_MAIN(tst_TransferCommands)
#include "tst_TransferCommands.moc"
