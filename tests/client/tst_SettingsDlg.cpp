#include "settings/ClientSettings.h"
#include "settings/SettingsDlg.h"

#include "FileChooser.h"
#include "ModalDriver.h"
#include "TestPersons.h"
#include "TestStore.h"

#include <qarn_base/DisabledWaitingWt.h>
#include <qarn_data/PersonData.h>
#include <qarn_worker/DictDef.h>
#include <qarn_worker/SystemAssistant.h>

#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using qarn_base::DisabledWaitingWt;
using qarn_data::DataService;
using qarn_data::PersonData;
using qarn_worker::DictDef;
using qarn_worker::SystemAssistant;

class tst_SettingsDlg : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void backsUpTheRegister();
    void proposesAFileForTheBackup();
    void tellsWhyThereIsNoBackup();
    void makesNoBackupWhenCancelled();
    void finishesTheBackupWhenItGoes();

private:
    void expectPath(const QString& path);
    void backUp() { QTest::mouseClick(m_dialog->findChild<QPushButton*>("backupBt"), Qt::LeftButton); }
    QString backupFile() const { return m_directory->filePath(QStringLiteral("copy.db")); }
    QString alertText() const { return m_alerts->at(0).at(1).toString(); }
    QString alertTitle() const { return m_alerts->at(0).at(0).toString(); }

    std::unique_ptr<QTemporaryDir> m_directory;
    std::unique_ptr<TestStore> m_store;
    std::unique_ptr<SettingsDlg> m_dialog;
    std::unique_ptr<QSignalSpy> m_alerts;
    ClientSettings m_settings;
    ModalDriver m_driver;
};

void tst_SettingsDlg::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    m_store = std::make_unique<TestStore>();
    m_alerts =
        std::make_unique<QSignalSpy>(&SystemAssistant::instance(), &SystemAssistant::signalMessageAlert);
    QVERIFY(PersonData::instance().addPersons({makePerson("P1", "Ada", QString())}));
    m_dialog = std::make_unique<SettingsDlg>(m_settings, m_store->filePath(), nullptr);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
}

void tst_SettingsDlg::cleanup()
{
    m_dialog.reset();
    m_alerts.reset();
    m_store.reset();
    QCOMPARE(m_driver.pending(), 0);
}

void tst_SettingsDlg::expectPath(const QString& path)
{
    m_driver.expect([path](QWidget* window) { choosePath(window, path); });
}

void tst_SettingsDlg::backsUpTheRegister()
{
    expectPath(m_directory->filePath(QStringLiteral("copy")));
    backUp();
    QVERIFY(m_dialog->findChild<DisabledWaitingWt*>() != nullptr);
    QTRY_COMPARE(m_alerts->count(), 1);
    QCOMPARE(alertTitle(), DictDef::instance().successAlertTitle);
    QCOMPARE(alertText(), QStringLiteral("The person register was backed up to ") + backupFile());
    QTRY_VERIFY(m_dialog->findChild<DisabledWaitingWt*>() == nullptr);
    QTRY_VERIFY(m_dialog->findChild<QThread*>() == nullptr);

    QVERIFY(PersonData::instance().deletePersons({"P1"}));
    DataService::instance().close();
    QVERIFY(DataService::instance().open(backupFile()));
    QCOMPARE(PersonData::instance().getPersonBySerialNum("SP1", true).name, QStringLiteral("Ada"));
}

void tst_SettingsDlg::proposesAFileForTheBackup()
{
    QString proposed;
    m_driver.expect([&proposed](QWidget* window) {
        proposed = window->findChild<QLineEdit*>("fileNameEdit")->text();
        QTest::keyClick(window, Qt::Key_Escape);
    });
    backUp();
    QCOMPARE(proposed, "persons-" + QDate::currentDate().toString(Qt::ISODate) + ".db");
}

void tst_SettingsDlg::tellsWhyThereIsNoBackup()
{
    expectPath(m_store->filePath());
    m_driver.expect(
        [](QWidget* overwrite) { qobject_cast<QMessageBox*>(overwrite)->button(QMessageBox::Yes)->click(); });
    backUp();
    QTRY_COMPARE(m_alerts->count(), 1);
    QCOMPARE(alertTitle(), DictDef::instance().errorAlertTitle);
    QVERIFY2(alertText().contains("It is the open store itself"), qPrintable(alertText()));
    QTRY_VERIFY(m_dialog->findChild<DisabledWaitingWt*>() == nullptr);
    QCOMPARE(PersonData::instance().getPersonBySerialNum("SP1", true).name, QStringLiteral("Ada"));
}

void tst_SettingsDlg::makesNoBackupWhenCancelled()
{
    expectPath(QString());
    backUp();
    QVERIFY(m_dialog->findChild<DisabledWaitingWt*>() == nullptr);
    QVERIFY(m_dialog->findChild<QThread*>() == nullptr);
    QCOMPARE(m_alerts->count(), 0);
}

void tst_SettingsDlg::finishesTheBackupWhenItGoes()
{
    expectPath(backupFile());
    backUp();
    m_dialog.reset();
    QVERIFY(QFile::exists(backupFile()));
    QTRY_COMPARE(m_alerts->count(), 1);
    QCOMPARE(alertTitle(), DictDef::instance().successAlertTitle);
}

QTEST_MAIN(tst_SettingsDlg)
#include "tst_SettingsDlg.moc"
