#include "settings/ClientSettings.h"
#include "startup/SelfTest.h"
#include "window/MainWindow.h"

#include "ModalDriver.h"
#include "TestStore.h"

#include <XCOMMON/XThread.h>
#include <qarn_contact/SystemMsg.h>
#include <qarn_data/PersonData.h>
#include <qarn_worker/DictDef.h>
#include <qarn_worker/SystemAssistant.h>

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSemaphore>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTableWidget>
#include <QtTest>

namespace
{

/// Works until it is released.
class SlowThread : public XCOMMON::XThread
{
public:
    using XThread::XThread;
    QSemaphore release;

protected:
    void run() override { release.acquire(); }
};

qarn_data::PersonList persons(int count)
{
    qarn_data::PersonList list;
    for (int number = 0; number < count; ++number) {
        qarn_data::PersonInfo person;
        person.id = QStringLiteral("id%1").arg(number);
        person.serialNum = QStringLiteral("S%1").arg(number);
        person.name = QStringLiteral("Person %1").arg(number);
        list.append(person);
    }
    return list;
}

} // namespace

class tst_MainWindow : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void showsWhatTheStoreHolds_data();
    void showsWhatTheStoreHolds();
    void remembersSizePageAndRows();
    void theBellCountsAndListsAlerts();
    void settingsAreKept();
    void doesNotQuitUnderRunningWork();

private:
    std::unique_ptr<TestStore> m_store;
};

void tst_MainWindow::init()
{
    QFile::remove(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + "/settings.ini");
    m_store = std::make_unique<TestStore>();
}

void tst_MainWindow::cleanup()
{
    m_store.reset();
}

void tst_MainWindow::showsWhatTheStoreHolds_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("nobody") << 0;
    QTest::newRow("three") << 3;
    QTest::newRow("more than a page") << 120;
}

void tst_MainWindow::showsWhatTheStoreHolds()
{
    QFETCH(int, count);
    QVERIFY(qarn_data::PersonData::instance().addPersons(persons(count)));
    ClientSettings settings;
    MainWindow window(settings);
    QCOMPARE(selfTestFindings(window), QString());
}

void tst_MainWindow::remembersSizePageAndRows()
{
    ClientSettings settings;
    {
        MainWindow window(settings);
        window.show();
        window.resize(1000, 700);
        window.findChild<QComboBox*>("pageSize")->setCurrentText("20");
        window.close();
    }
    ClientSettings again;
    QCOMPARE(again.pageSize(), 20);
    MainWindow window(again);
    QCOMPARE(window.size(), QSize(1000, 700));
    QCOMPARE(window.findChild<QComboBox*>("pageSize")->currentText(), QString("20"));
}

void tst_MainWindow::theBellCountsAndListsAlerts()
{
    ClientSettings settings;
    MainWindow window(settings);
    window.show();
    auto* bell = window.findChild<QPushButton*>("alertsBt");
    qarn_worker::SystemAssistant::instance().messageAlert(qarn_worker::DictDef::instance().warningAlertTitle,
                                                          "disk nearly full");
    QTRY_COMPARE(bell->text(), QString("1"));
    ModalDriver driver;
    driver.expect([](QWidget* dialog) {
        auto* table = dialog->findChild<QTableWidget*>("alertTable");
        QVERIFY(table != nullptr);
        QCOMPARE(table->item(0, 2)->text(), QString("disk nearly full"));
        QTest::keyClick(dialog, Qt::Key_Escape);
    });
    QTest::mouseClick(bell, Qt::LeftButton);
    QCOMPARE(driver.pending(), 0);
    QVERIFY(bell->text().isEmpty());
}

void tst_MainWindow::settingsAreKept()
{
    ClientSettings settings;
    MainWindow window(settings);
    window.show();
    ModalDriver driver;
    driver.expect([](QWidget* dialog) {
        auto* language = dialog->findChild<QComboBox*>("language");
        language->setCurrentIndex(language->findData("de"));
        dialog->findChild<QComboBox*>("pageSize")->setCurrentText("100");
        QTest::mouseClick(dialog->findChild<QPushButton*>("okBt"), Qt::LeftButton);
    });
    QTest::mouseClick(window.findChild<QPushButton*>("settingsBt"), Qt::LeftButton);
    QCOMPARE(driver.pending(), 0);
    QCOMPARE(ClientSettings().language(), QString("de"));
    QCOMPARE(ClientSettings().pageSize(), 100);
    QCOMPARE(window.personsPage()->findChild<QComboBox*>("pageSize")->currentText(), QString("100"));
}

void tst_MainWindow::doesNotQuitUnderRunningWork()
{
    ClientSettings settings;
    MainWindow window(settings);
    window.show();
    SlowThread work;
    work.start();
    QSignalSpy announced(&qarn_contact::SystemMsg::instance(),
                         &qarn_contact::SystemMsg::signalPrepareQuitSystem);
    QVERIFY(!window.close());
    QVERIFY(window.isVisible());
    QCOMPARE(announced.count(), 1);
    auto* caption = window.findChild<QLabel*>("caption");
    QVERIFY(caption != nullptr && caption->isVisible());
    QVERIFY(!window.close());
    QCOMPARE(announced.count(), 1);
    work.release.release();
    QTRY_VERIFY(!window.isVisible());
}

QTEST_MAIN(tst_MainWindow)
#include "tst_MainWindow.moc"
