#include "TestPictures.h"
#include "TransferFixture.h"

#include "query/PersonMgrWorker.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QStandardPaths>

using namespace qarn_personMgr;

/// Export as the operator starts it from the tool bar, with real workers and files.
class tst_ExportCommand : public QObject
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

    void asksForAnOrganizationToExport();
    void exportsAPersonFile();
    void exportsFaces();
    void exportsNothingWhenCancelled_data();
    void exportsNothingWhenCancelled();
    void asksForTheTarget_data();
    void asksForTheTarget();
    void refusesAnEqualsSignInADirectory();
    void refusesATargetThatCannotBeUsed();
    void tellsThatAnExportFailed();

private:
    void expectFaceExport();

    std::unique_ptr<TransferFixture> m_page;
};

void tst_ExportCommand::expectFaceExport()
{
    m_page->driver.expect([](QWidget* window) {
        BulkFixture::button(window, "faceChecked")->click();
        BulkFixture::press(window, "exportBt");
    });
}

void tst_ExportCommand::asksForAnOrganizationToExport()
{
    m_page->addPersons(2, "east");
    m_page->open();
    m_page->click("exportPersonsBt");
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Please select whick organization to export persons"));
    QVERIFY(m_page->isIdle());
}

void tst_ExportCommand::exportsAPersonFile()
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
    m_page->expectPath(m_page->path("out.csv"));
    m_page->click("exportPersonsBt");
    QCOMPARE(title, QStringLiteral("Export Organization[East]Persons"));
    QVERIFY(m_page->overlay() != nullptr);
    QCOMPARE(m_page->overlayText("caption"), QStringLiteral("Exporting Persons..."));
    QCOMPARE(m_page->overlayText("description"), QString());
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Export persons finished"));
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(answers.count(), 0);

    QFile file(m_page->path("out.csv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    for (const char* serialNum : {"SE1", "SE2", "SE3", "SI1", "SI2"})
        QVERIFY2(text.contains(serialNum), serialNum);
    QVERIFY(!text.contains("SW1"));
}

void tst_ExportCommand::exportsFaces()
{
    qarn_data::PersonInfo person = makePerson("P1", "Ada", "east");
    person.faceImage1 = jpeg(Qt::red);
    QVERIFY(m_page->data().addPersons({person}));
    m_page->open();
    m_page->selectOrganization("east");
    expectFaceExport();
    m_page->expectPath(m_page->directory());
    m_page->click("exportPersonsBt");
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Export persons finished"));
    QTRY_VERIFY(m_page->isIdle());
    const QStringList files = QDir(m_page->directory()).entryList({"*.jpg"});
    QCOMPARE(files.count(), 1);
    QVERIFY2(files.first().contains("SP1") && files.first().contains("Ada"), qPrintable(files.first()));
}

void tst_ExportCommand::exportsNothingWhenCancelled_data()
{
    QTest::addColumn<bool>("faces");
    QTest::addColumn<bool>("choosesDialog");
    QTest::newRow("the dialog") << false << false;
    QTest::newRow("the file") << false << true;
    QTest::newRow("the directory") << true << true;
}

void tst_ExportCommand::exportsNothingWhenCancelled()
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
    QVERIFY(QDir(m_page->directory()).isEmpty());
}

void tst_ExportCommand::asksForTheTarget_data()
{
    QTest::addColumn<bool>("faces");
    QTest::addColumn<QString>("caption");
    QTest::newRow("a file") << false << "Export Persons";
    QTest::newRow("a directory") << true << "Select Export Path";
}

void tst_ExportCommand::asksForTheTarget()
{
    QFETCH(bool, faces);
    const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    QVERIFY(QDir().mkpath(desktop));
    m_page->open();
    m_page->selectOrganization("east");
    if (faces)
        expectFaceExport();
    else
        m_page->expectPress("exportBt");
    QVariantMap asked;
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
    QTEST(asked.value("caption").toString(), "caption");
    QCOMPARE(asked.value("directory").toString(), desktop);
    QCOMPARE(asked.value("directories only").toBool(), faces);
    QCOMPARE(asked.value("symlinks kept").toBool(), faces);
    QCOMPARE(asked.value("saves").toBool(), !faces);
    if (!faces)
        QCOMPARE(asked.value("filters").toStringList(), QStringList("CSV(*.csv)"));
}

void tst_ExportCommand::refusesAnEqualsSignInADirectory()
{
    m_page->addPersons(2, "east");
    m_page->open();
    m_page->selectOrganization("east");
    QVERIFY(QDir(m_page->directory()).mkdir("a=b"));
    expectFaceExport();
    m_page->expectPath(m_page->path("a=b"));
    m_page->click("exportPersonsBt");
    QVERIFY(m_page->isIdle());
    QTRY_COMPARE(m_page->alertTexts(), QStringList("path cannot contain="));
    QVERIFY(QDir(m_page->path("a=b")).isEmpty());
}

void tst_ExportCommand::refusesATargetThatCannotBeUsed()
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

void tst_ExportCommand::tellsThatAnExportFailed()
{
    m_page->addPersons(2, "east");
    m_page->open();
    m_page->selectOrganization("east");
    // The disk is full, which is found out only when the worker writes.
    const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    QVERIFY(QDir().mkpath(desktop));
    const QString target = desktop + QStringLiteral("/full.csv");
    QFile::remove(target);
    QVERIFY(QFile::link(QStringLiteral("/dev/full"), target));
    m_page->expectPress("exportBt");
    m_page->expectPath(QStringLiteral("full.csv"));
    m_page->driver.expect(
        [](QWidget* overwrite) { qobject_cast<QMessageBox*>(overwrite)->button(QMessageBox::Yes)->click(); });
    m_page->expectNotice();
    m_page->click("exportPersonsBt");
    QTRY_COMPARE(m_page->notice, QStringLiteral("Export persons failed"));
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(m_page->alertTexts(), QStringList());
}

QTEST_MAIN(tst_ExportCommand)
#include "tst_ExportCommand.moc"
