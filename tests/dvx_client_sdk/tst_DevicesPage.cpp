#include "ModalDriver.h"
#include "SimulatedDevice.h"
#include "TestCertificate.h"
#include "TestStore.h"
#include "devices/DevicesModel.h"
#include "devices/DevicesPage.h"
#include "style/DarkStyle.h"
#include "sync/SynchronizeFacesToDevsDlg.h"

#include <qarn_base/AbilityDevsSelFromTreeDlg.h>

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QtTest>

using qarn_data::Device;
using qarn_data::DeviceRegistry;

/// With QARN_SCREENSHOTS=<directory> every state is kept as a picture, too.
class tst_DevicesPage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void emptyState();
    void addsADeviceThatAnswers();
    void refusesWhatCannotBeADevice();
    void wrongTokenIsShownAtItsField();
    void sameAddressTwice();
    void certificateIsAskedForAndPinned();
    void certificateThatIsNotTrusted();
    void testRenameEditRemove();
    void showsWhichAreReachable();
    void worksByKeyboard();
    void dialogsWithDevices();

private:
    static void type(QWidget* dialog, const char* field, const QString& text)
    {
        dialog->findChild<QLineEdit*>(QLatin1String(field))->setText(text);
    }
    static void press(QWidget* window, const char* button)
    {
        window->findChild<QPushButton*>(QLatin1String(button))->click();
    }
    static QString problem(QWidget* dialog)
    {
        return dialog->findChild<QLabel*>(QStringLiteral("problem"))->text();
    }
    static QString cell(QWidget* page, int row, int column)
    {
        const auto* model = page->findChild<QTableView*>()->model();
        return model->index(row, column).data().toString();
    }
    static void keep(QWidget* window, const char* name)
    {
        const QString directory = qEnvironmentVariable("QARN_SCREENSHOTS");
        if (directory.isEmpty())
            return;
        QTest::qWait(300);
        window->grab().save(directory + QLatin1Char('/') + QLatin1String(name) + QStringLiteral(".png"));
    }
    void add(const SimulatedDevice& sim, const QString& name)
    {
        Device device = sim.device();
        device.name = name;
        QVERIFY(DeviceRegistry::instance().saveDevice(device));
    }

    TestStore m_store;
    std::unique_ptr<DevicesPage> m_page;
};

void tst_DevicesPage::initTestCase()
{
    applyDarkStyle(*qApp);
}

void tst_DevicesPage::init()
{
    const auto devices = DeviceRegistry::instance().devices();
    for (const Device& device : devices)
        DeviceRegistry::instance().removeDevice(device.id);
    m_page = std::make_unique<DevicesPage>();
    m_page->resize(1000, 560);
    new QAbstractItemModelTester(m_page->findChild<QTableView*>()->model(), m_page.get());
    m_page->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_page.get()));
}

void tst_DevicesPage::emptyState()
{
    QVERIFY(m_page->findChild<QLabel*>("emptyState")->isVisible());
    QVERIFY(!m_page->findChild<QTableView*>()->isVisible());
    QVERIFY(m_page->findChild<QPushButton*>("addDeviceBt")->isEnabled());
    for (const char* button : {"editDeviceBt", "renameDeviceBt", "testDeviceBt", "removeDeviceBt"})
        QVERIFY(!m_page->findChild<QPushButton*>(button)->isEnabled());
    keep(m_page.get(), "devices-empty");
}

void tst_DevicesPage::addsADeviceThatAnswers()
{
    SimulatedDevice sim({"--channels", "3", "--name", "North gate", "--token", "secret"});
    ModalDriver driver;
    driver.expect([&](QWidget* dialog) {
        keep(dialog, "device-add");
        type(dialog, "addressEt", sim.address().authority());
        type(dialog, "tokenEt", "secret");
        press(dialog, "okBt");
    });
    press(m_page.get(), "addDeviceBt");
    QCOMPARE(driver.pending(), 0);
    const auto devices = DeviceRegistry::instance().devices();
    QCOMPARE(devices.count(), 1);
    QCOMPARE(devices.first().name, QString("North gate"));
    QCOMPARE(devices.first().token, QString("secret"));
    QCOMPARE(devices.first().channels.count(), 3);
    QCOMPARE(cell(m_page.get(), 0, DevicesModel::NameColumn), QString("North gate"));
    QCOMPARE(cell(m_page.get(), 0, DevicesModel::ChannelsColumn), QString("3"));
    QCOMPARE(cell(m_page.get(), 0, DevicesModel::StateColumn), QString("Online"));
    QVERIFY(m_page->findChild<QPushButton*>("removeDeviceBt")->isEnabled());
}

void tst_DevicesPage::refusesWhatCannotBeADevice()
{
    SimulatedDevice gone;
    gone.stop();
    ModalDriver driver;
    driver.expect([&](QWidget* dialog) {
        press(dialog, "okBt");
        QVERIFY(problem(dialog).startsWith("Enter an address"));
        type(dialog, "addressEt", gone.address().authority());
        press(dialog, "okBt");
        QTRY_VERIFY(problem(dialog).startsWith("Nothing answers"));
        keep(dialog, "device-add-failed");
        press(dialog, "cancelBt");
    });
    press(m_page.get(), "addDeviceBt");
    QCOMPARE(DeviceRegistry::instance().devices().count(), 0);
}

void tst_DevicesPage::wrongTokenIsShownAtItsField()
{
    SimulatedDevice sim({"--token", "right"});
    ModalDriver driver;
    driver.expect([&](QWidget* dialog) {
        type(dialog, "addressEt", sim.address().toString());
        type(dialog, "tokenEt", "wrong");
        press(dialog, "okBt");
        QTRY_VERIFY(problem(dialog).contains("token"));
        QVERIFY(dialog->findChild<QLineEdit*>("tokenEt")->isEnabled());
        type(dialog, "tokenEt", "right");
        press(dialog, "okBt");
    });
    press(m_page.get(), "addDeviceBt");
    QCOMPARE(DeviceRegistry::instance().devices().count(), 1);
}

void tst_DevicesPage::sameAddressTwice()
{
    SimulatedDevice sim;
    add(sim, "South gate");
    ModalDriver driver;
    driver.expect([&](QWidget* dialog) {
        type(dialog, "addressEt", sim.address().toString() + "/");
        press(dialog, "okBt");
        QVERIFY(problem(dialog).startsWith("South gate has this address"));
        press(dialog, "cancelBt");
    });
    press(m_page.get(), "addDeviceBt");
    QCOMPARE(DeviceRegistry::instance().devices().count(), 1);
}

void tst_DevicesPage::certificateIsAskedForAndPinned()
{
    TestCertificate certificate;
    SimulatedDevice sim(certificate.options());
    ModalDriver driver;
    driver.expect([&](QWidget* dialog) {
        driver.expect([](QWidget* question) {
            QCOMPARE(question->objectName(), QString("CertificateDlg"));
            QCOMPARE(question->findChild<QLabel*>("subject")->text(), QString("face-device"));
            QVERIFY(question->findChild<QPushButton*>("cancelBt")->isDefault());
            keep(question, "device-certificate");
            press(question, "trustBt");
        });
        type(dialog, "addressEt", sim.address().toString());
        press(dialog, "okBt");
    });
    press(m_page.get(), "addDeviceBt");
    QCOMPARE(driver.pending(), 0);
    const auto devices = DeviceRegistry::instance().devices();
    QCOMPARE(devices.count(), 1);
    QCOMPARE(devices.first().pinnedCertificate.size(), 32);
}

void tst_DevicesPage::certificateThatIsNotTrusted()
{
    TestCertificate certificate;
    SimulatedDevice sim(certificate.options());
    add(sim, "West gate");
    QTRY_COMPARE(m_page->findChild<QTableView*>()->model()->rowCount(), 1);
    m_page->findChild<QTableView*>()->selectRow(0);
    ModalDriver driver;
    driver.expect([](QWidget* question) { press(question, "cancelBt"); });
    press(m_page.get(), "testDeviceBt");
    QTRY_COMPARE(driver.pending(), 0);
    QTRY_COMPARE(cell(m_page.get(), 0, DevicesModel::StateColumn), QString("Certificate not trusted"));
    QVERIFY(DeviceRegistry::instance().devices().first().pinnedCertificate.isEmpty());
}

void tst_DevicesPage::testRenameEditRemove()
{
    SimulatedDevice sim({"--channels", "2"});
    add(sim, "West gate");
    auto* table = m_page->findChild<QTableView*>();
    table->selectRow(0);
    auto* status = m_page->findChild<QLabel*>("status");
    press(m_page.get(), "testDeviceBt");
    QTRY_VERIFY(status->text().startsWith("West gate answered within"));

    press(m_page.get(), "renameDeviceBt");
    auto* editor = table->findChild<QLineEdit*>();
    QVERIFY(editor != nullptr);
    editor->setText("  East gate ");
    QTest::keyClick(editor, Qt::Key_Return);
    QTRY_COMPARE(DeviceRegistry::instance().device(sim.id()).name, QString("East gate"));
    QVERIFY(m_page->findChild<QPushButton*>("renameDeviceBt")->isEnabled()); // still selected
    QVERIFY(!table->model()->setData(table->model()->index(0, 0), "  "));

    ModalDriver driver;
    driver.expect([](QWidget* dialog) {
        type(dialog, "nameEt", "Third name");
        press(dialog, "okBt");
    });
    press(m_page.get(), "editDeviceBt");
    QCOMPARE(DeviceRegistry::instance().device(sim.id()).name, QString("Third name"));
    driver.expect([](QWidget* box) { press(box, "cancelBt"); });
    press(m_page.get(), "removeDeviceBt");
    QCOMPARE(DeviceRegistry::instance().devices().count(), 1);
    driver.expect([](QWidget* box) {
        QVERIFY(box->findChild<QLabel*>("text")->text().contains("Third name"));
        press(box, "okBt");
    });
    press(m_page.get(), "removeDeviceBt");
    QCOMPARE(DeviceRegistry::instance().devices().count(), 0);
    QVERIFY(m_page->findChild<QLabel*>("emptyState")->isVisible());
}

void tst_DevicesPage::showsWhichAreReachable()
{
    SimulatedDevice sim({"--channels", "4"});
    SimulatedDevice gone;
    SimulatedDevice refusing({"--token", "other"});
    add(sim, "Main entrance");
    add(gone, "Car park");
    Device device = refusing.device();
    device.name = "Ladenburger Straße, Lieferanteneingang";
    device.token = "mine";
    DeviceRegistry::instance().saveDevice(device);
    gone.stop();
    m_page->hide();
    m_page->show(); // looks after them
    QTRY_COMPARE(cell(m_page.get(), 0, DevicesModel::StateColumn), QString("Online"));
    QTRY_COMPARE(cell(m_page.get(), 1, DevicesModel::StateColumn), QString("Offline"));
    QTRY_COMPARE(cell(m_page.get(), 2, DevicesModel::StateColumn), QString("Token refused"));
    m_page->findChild<QTableView*>()->selectRow(1);
    press(m_page.get(), "testDeviceBt");
    QTRY_VERIFY(m_page->findChild<QLabel*>("status")->text().startsWith("Car park: Nothing answers"));
    keep(m_page.get(), "devices");
}

void tst_DevicesPage::worksByKeyboard()
{
    SimulatedDevice sim;
    add(sim, "Gate");
    m_page->activateWindow();
    m_page->findChild<QPushButton*>("addDeviceBt")->setFocus();
    auto* table = m_page->findChild<QTableView*>();
    for (int tabs = 0; tabs < 8 && !table->hasFocus(); ++tabs)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QVERIFY(table->hasFocus());
    QTest::keyClick(table, Qt::Key_Down);
    table->selectRow(0);
    QTest::keyClick(table, Qt::Key_F2);
    QVERIFY(table->findChild<QLineEdit*>() != nullptr);
    QTest::keyClick(table->findChild<QLineEdit*>(), Qt::Key_Escape);
    QTest::keyClick(table, Qt::Key_Tab);
    QVERIFY(!table->hasFocus());
}

void tst_DevicesPage::dialogsWithDevices()
{
    SimulatedDevice sim({"--channels", "3"});
    SimulatedDevice other({"--channels", "2"});
    add(sim, "Main entrance");
    add(other, "Car park");
    qarn_personMgr::SynchronizeFacesToDevsDlg toDevices(nullptr);
    toDevices.show();
    keep(&toDevices, "synchronize-to-devices");
    qarn_base::AbilityDevsSelFromTreeDlg fromDevices(nullptr, 16, 0, true, "Synchronize faces from Devs",
                                                     "Please Check whick devs synchronize faces from",
                                                     "Synchronize");
    fromDevices.show();
    keep(&fromDevices, "synchronize-from-devices");
    QVERIFY(toDevices.isVisible() && fromDevices.isVisible());
}

QTEST_MAIN(tst_DevicesPage)
#include "tst_DevicesPage.moc"
