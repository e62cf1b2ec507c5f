#include "startup/StoreOpener.h"

#include "FileChooser.h"
#include "ModalDriver.h"

#include <qarn_data/DataService.h>

#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QtTest>

using qarn_data::DataService;

class tst_StoreOpener : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void makesTheDirectoryOfANewStore();
    void tellsTheReasonAndQuits();
    void triesAgain();
    void takesAnotherFile();
    void withoutAskingItGivesUp();

private:
    QString damagedFile() const;
    static void press(QWidget* dialog, const char* button);

    QTemporaryDir m_directory;
};

void tst_StoreOpener::init()
{
    QFile file(damagedFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(8192, 'x'));
}

void tst_StoreOpener::cleanup()
{
    DataService::instance().close();
}

QString tst_StoreOpener::damagedFile() const
{
    return m_directory.filePath("damaged.db");
}

void tst_StoreOpener::press(QWidget* dialog, const char* button)
{
    auto* found = dialog->findChild<QPushButton*>(button);
    QVERIFY2(found != nullptr, button);
    QTest::mouseClick(found, Qt::LeftButton);
}

void tst_StoreOpener::makesTheDirectoryOfANewStore()
{
    const QString path = m_directory.filePath("a/b/new.db");
    QCOMPARE(StoreOpener::open(path, false), path);
    QVERIFY(QFile::exists(path));
}

void tst_StoreOpener::tellsTheReasonAndQuits()
{
    ModalDriver driver;
    driver.expect([this](QWidget* dialog) {
        const QString reason = dialog->findChild<QLabel*>("reason")->text();
        QVERIFY2(reason.contains(damagedFile()), qPrintable(reason));
        press(dialog, "quitBt");
    });
    QCOMPARE(StoreOpener::open(damagedFile(), true), QString());
    QCOMPARE(driver.pending(), 0);
    QFile file(damagedFile());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray(8192, 'x'));
}

void tst_StoreOpener::triesAgain()
{
    ModalDriver driver;
    driver.expect([this](QWidget* dialog) {
        QVERIFY(QFile::remove(damagedFile()));
        press(dialog, "retryBt");
    });
    QCOMPARE(StoreOpener::open(damagedFile(), true), damagedFile());
    QVERIFY(DataService::instance().isOpen());
}

void tst_StoreOpener::takesAnotherFile()
{
    const QString other = m_directory.filePath("other.db");
    ModalDriver driver;
    driver.expect([](QWidget* dialog) { press(dialog, "otherFileBt"); });
    driver.expect([other](QWidget* dialog) { choosePath(dialog, other); });
    QCOMPARE(StoreOpener::open(damagedFile(), true), other);
    QCOMPARE(driver.pending(), 0);
}

void tst_StoreOpener::withoutAskingItGivesUp()
{
    QCOMPARE(StoreOpener::open(damagedFile(), false), QString());
    QVERIFY(!DataService::instance().isOpen());
}

QTEST_MAIN(tst_StoreOpener)
#include "tst_StoreOpener.moc"
