#include "BulkFixture.h"
#include "LinkListener.h"
#include "SimulatedDevice.h"

#include "query/PersonMgrWorker.h"
#include "sync/SynchronizeFacesThread.h"

#include <qarn_base/AbilityDevsTree.h>
#include <qarn_contact/SystemMsg.h>

using namespace qarn_personMgr;
using qarn_base::AbilityDevsTree;

/// Faces to and from devices as the operator starts it from the tool bar, with a simulated device on the
/// network.
class tst_SyncCommands : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_page = std::make_unique<BulkFixture>(); }
    void cleanup()
    {
        const int pending = m_page->driver.pending();
        m_page.reset();
        m_device.reset();
        QCOMPARE(pending, 0);
    }

    void asksForPersonsToSend();
    void asksForAnOrganizationToSend();
    void sendsNothingWhenCancelled();
    void sendsTheCheckedPersons();
    void sendsOrganizations_data();
    void sendsOrganizations();
    void followsChangesWhileItSends();
    void tellsWhatADeviceRefused();
    void givesUpASilentDevice();
    void asksForAnOrganizationToFetchTo();
    void asksForChannelsToFetchFrom();
    void fetchesFaces();
    void showsFetchedPersonsAtTheEndOnly();
    void showsThePageAsItWasAfterATimeOut();
    void uncoversThePageWhenTheClientQuits();
    void goesWhileADeviceIsSilent();

private:
    void startDevice(const QStringList& options = {});
    void addPersonsWithFaces(int count, const QString& organizationId, const QString& prefix);
    static void checkAllChannels(QWidget* window);
    void expectSend(bool checkedPersons, bool children);
    void expectFetch();
    SynchronizeFacesThread* thread() const { return m_page->form->findChild<SynchronizeFacesThread*>(); }
    QStringList facesOnDevice() const;

    std::unique_ptr<BulkFixture> m_page;
    std::unique_ptr<SimulatedDevice> m_device;
};

void tst_SyncCommands::startDevice(const QStringList& options)
{
    m_device = std::make_unique<SimulatedDevice>(options);
    m_device->addToRegistry();
}

void tst_SyncCommands::addPersonsWithFaces(int count, const QString& organizationId, const QString& prefix)
{
    QList<qarn_data::PersonInfo> persons;
    for (int i = 1; i <= count; ++i) {
        const QString id = prefix + QString::number(i);
        persons.append(makePerson(id, QStringLiteral("Person ") + id, organizationId));
        persons.last().faceImage1 = testPhoto(2000, quint32(i));
    }
    QVERIFY(m_page->data().addPersons(persons));
}

void tst_SyncCommands::checkAllChannels(QWidget* window)
{
    auto* tree = window->findChild<AbilityDevsTree*>("treeWt");
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        for (int k = 0; k < tree->topLevelItem(i)->childCount(); ++k)
            tree->topLevelItem(i)->child(k)->setCheckState(0, Qt::Checked);
    }
}

void tst_SyncCommands::expectSend(bool checkedPersons, bool children)
{
    m_page->driver.expect([checkedPersons, children](QWidget* window) {
        window->findChild<QCheckBox*>("syncChildrenChecked")->setChecked(children);
        if (checkedPersons)
            BulkFixture::button(window, "personsChecked")->click();
        checkAllChannels(window);
        BulkFixture::press(window, "synchronizeBt");
    });
}

void tst_SyncCommands::expectFetch()
{
    m_page->driver.expect([](QWidget* window) {
        checkAllChannels(window);
        BulkFixture::press(window, "okBt");
    });
}

QStringList tst_SyncCommands::facesOnDevice() const
{
    LinkListener listener;
    QStringList serialNums;
    for (const dvx_sdk::FaceInfo& face : listener.list(m_device->id(), 1, 1, 200).faces)
        serialNums.append(face.serialNum);
    serialNums.sort();
    return serialNums;
}

void tst_SyncCommands::asksForPersonsToSend()
{
    startDevice();
    addPersonsWithFaces(2, "east", "E");
    m_page->open();
    m_page->selectOrganization("east");
    expectSend(true, true);
    m_page->click("synchronizeToDevBt");
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Please check persons to synchronize"));
    QVERIFY(m_page->isIdle());
}

void tst_SyncCommands::asksForAnOrganizationToSend()
{
    startDevice();
    addPersonsWithFaces(2, "east", "E");
    m_page->open();
    m_page->check("selAll");
    expectSend(false, true);
    m_page->click("synchronizeToDevBt");
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Please select organization to synchronize"));
    QVERIFY(m_page->isIdle());
}

void tst_SyncCommands::sendsNothingWhenCancelled()
{
    startDevice();
    m_page->open();
    m_page->expectPress("cancelBt");
    m_page->click("synchronizeToDevBt");
    m_page->selectOrganization("east");
    m_page->expectPress("cancelBt");
    m_page->click("synchronizeFromDevBt");
    QVERIFY(m_page->isIdle());
    QCOMPARE(m_page->alertTexts(), QStringList());
}

void tst_SyncCommands::sendsTheCheckedPersons()
{
    startDevice();
    addPersonsWithFaces(3, "east", "E");
    m_page->open();
    m_page->checkRow(0);
    m_page->checkRow(2);
    expectSend(true, true);
    m_page->click("synchronizeToDevBt");
    QVERIFY(m_page->overlay() != nullptr);
    QCOMPARE(m_page->overlayText("caption"), QStringLiteral("Exporting Persons..."));
    QCOMPARE(m_page->overlayText("description"), QString());
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Synchronize persons to devs finished"));
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(facesOnDevice(), QStringList({"SE1", "SE3"}));
}

void tst_SyncCommands::sendsOrganizations_data()
{
    QTest::addColumn<bool>("children");
    QTest::addColumn<QStringList>("sent");
    QTest::newRow("alone") << false << QStringList({"SE1", "SE2"});
    QTest::newRow("with those below") << true << QStringList({"SE1", "SE2", "SI1"});
}

void tst_SyncCommands::sendsOrganizations()
{
    QFETCH(bool, children);
    startDevice();
    addPersonsWithFaces(2, "east", "E");
    addPersonsWithFaces(1, "inner", "I");
    addPersonsWithFaces(1, "west", "W");
    m_page->open();
    m_page->selectOrganization("east");
    expectSend(false, children);
    m_page->click("synchronizeToDevBt");
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Synchronize persons to devs finished"));
    QTEST(facesOnDevice(), "sent");
}

void tst_SyncCommands::followsChangesWhileItSends()
{
    startDevice();
    addPersonsWithFaces(2, "east", "E");
    m_page->open();
    m_page->selectOrganization("east");
    expectSend(false, true);
    m_page->click("synchronizeToDevBt");
    QVERIFY(m_page->data().addPersons({makePerson("X", "X", "east")}));
    QCOMPARE(m_page->ids(), QStringList({"E1", "E2", "X"}));
    QTRY_VERIFY(m_page->isIdle());
}

void tst_SyncCommands::tellsWhatADeviceRefused()
{
    startDevice({"--fail", "400,on=add,every=2"});
    addPersonsWithFaces(3, "east", "E");
    m_page->open();
    m_page->selectOrganization("east");
    expectSend(false, true);
    m_page->click("synchronizeToDevBt");
    QTRY_COMPARE(m_page->alertTexts().count(), 2);
    QCOMPARE(m_page->alertTexts().first(), QStringLiteral("add Person E2 face to Gate-Channel 1 failed"));
    QCOMPARE(m_page->alerts.first().first().toString(), QStringLiteral("Error"));
    QCOMPARE(m_page->alertTexts().last(), QStringLiteral("Synchronize persons to devs finished"));
    QCOMPARE(m_page->alerts.last().first().toString(), QStringLiteral("Success"));
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(facesOnDevice(), QStringList({"SE1", "SE3"}));
}

void tst_SyncCommands::givesUpASilentDevice()
{
    startDevice({"--fail", "hang,on=list"});
    addPersonsWithFaces(2, "east", "E");
    m_page->open();
    m_page->selectOrganization("east");
    expectSend(false, true);
    m_page->click("synchronizeToDevBt");
    QTRY_COMPARE(m_page->overlayText("description"), QStringLiteral("getting Gate-Channel 1 faces...."));
    m_page->expectNotice();
    thread()->setWatchdogInterval(50);
    QTRY_COMPARE(m_page->notice, QStringLiteral("sync persons time out"));
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(m_page->alertTexts(), QStringList());
    m_page->type("name", "E2");
    m_page->click("searchBt");
    QCOMPARE(m_page->ids(), QStringList("E2"));
}

void tst_SyncCommands::asksForAnOrganizationToFetchTo()
{
    m_page->open();
    m_page->click("synchronizeFromDevBt");
    QTRY_COMPARE(m_page->alertTexts(),
                 QStringList("Please select organization to synchronize faces from devs"));
    QVERIFY(m_page->isIdle());
}

void tst_SyncCommands::asksForChannelsToFetchFrom()
{
    startDevice();
    m_page->open();
    m_page->selectOrganization("east");
    QString title;
    QString accept;
    bool prompted = false;
    m_page->driver.expect([&](QWidget* window) {
        title = window->findChild<QLabel*>("title")->text();
        accept = BulkFixture::button(window, "okBt")->text();
        for (const QLabel* label : window->findChildren<QLabel*>())
            prompted = prompted || label->text() == "Please Check whick devs synchronize faces from";
        BulkFixture::press(window, "cancelBt");
    });
    m_page->click("synchronizeFromDevBt");
    QCOMPARE(title, QStringLiteral("Synchronize faces from Devs"));
    QCOMPARE(accept, QStringLiteral("Synchronize"));
    QVERIFY(prompted);
}

void tst_SyncCommands::fetchesFaces()
{
    startDevice();
    LinkListener listener;
    for (const char* serialNum : {"D1", "D2"})
        QCOMPARE(listener.add(m_device->id(), 1, serialNum, testPhoto()), 0);
    m_page->addPersons(60, "west", "W");
    m_page->open();
    m_page->selectOrganization("west");
    expectFetch();
    m_page->click("synchronizeFromDevBt");
    QCOMPARE(m_page->overlayText("caption"), QStringLiteral("Exporting Persons..."));
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Synchronize persons from devs finished"));
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(m_page->ids().first(), QStringLiteral("W1"));
    m_page->click("lastBt");
    QCOMPARE(m_page->label(10, "serialNum"), QStringLiteral("D1"));
    QCOMPARE(m_page->label(11, "serialNum"), QStringLiteral("D2"));
    QVERIFY(m_page->data().deletePersons({"W60"}));
    QCOMPARE(m_page->rows().count(), 11);
}

void tst_SyncCommands::showsFetchedPersonsAtTheEndOnly()
{
    startDevice();
    LinkListener listener;
    QCOMPARE(listener.add(m_device->id(), 1, "D1", testPhoto()), 0);
    m_page->addPersons(1, "west", "W");
    m_page->open();
    m_page->selectOrganization("west");
    QSignalSpy answers(&PersonMgrWorker::instance(), &PersonMgrWorker::signalCurPagePersons);
    expectFetch();
    m_page->click("synchronizeFromDevBt");
    // The store is ahead of the page until the run has ended.
    QVERIFY(m_page->data().addPersons({makePerson("X", "X", "west")}));
    QCOMPARE(m_page->ids(), QStringList("W1"));
    QTRY_COMPARE(answers.count(), 1);
    QCOMPARE(answers.first().at(2).toInt(), 3);
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(m_page->rows().count(), 3);
}

void tst_SyncCommands::showsThePageAsItWasAfterATimeOut()
{
    startDevice({"--fail", "hang,on=list"});
    m_page->addPersons(2, "west", "W");
    m_page->open();
    m_page->selectOrganization("west");
    QSignalSpy answers(&PersonMgrWorker::instance(), &PersonMgrWorker::signalCurPagePersons);
    expectFetch();
    m_page->expectNotice();
    m_page->click("synchronizeFromDevBt");
    QVERIFY(m_page->data().addPersons({makePerson("X", "X", "west")}));
    thread()->setWatchdogInterval(50);
    QTRY_COMPARE(m_page->notice, QStringLiteral("sync persons time out"));
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(answers.count(), 0);
    QCOMPARE(m_page->ids(), QStringList({"W1", "W2"}));
    QVERIFY(m_page->data().deletePersons({"W1"}));
    QCOMPARE(m_page->ids(), QStringList({"W2"}));
}

/// Such a run ends without a word.
void tst_SyncCommands::uncoversThePageWhenTheClientQuits()
{
    startDevice({"--fail", "hang,on=list"});
    m_page->addPersons(1, "west", "W");
    m_page->open();
    m_page->selectOrganization("west");
    expectFetch();
    m_page->click("synchronizeFromDevBt");
    QVERIFY(m_page->overlay() != nullptr);
    emit qarn_contact::SystemMsg::instance().signalPrepareQuitSystem();
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(m_page->alertTexts(), QStringList());
    QVERIFY(m_page->data().addPersons({makePerson("X", "X", "west")}));
    QCOMPARE(m_page->ids(), QStringList({"W1", "X"}));
}

void tst_SyncCommands::goesWhileADeviceIsSilent()
{
    startDevice({"--fail", "hang,on=list"});
    addPersonsWithFaces(2, "east", "E");
    m_page->open();
    m_page->selectOrganization("east");
    expectSend(false, true);
    m_page->click("synchronizeToDevBt");
    QTRY_VERIFY(!m_page->overlayText("description").isEmpty());
    QPointer<QThread> thread = m_page->thread();
    delete m_page->form.data();
    QVERIFY(thread.isNull());
    QTest::qWait(1);
}

QTEST_MAIN(tst_SyncCommands)
#include "tst_SyncCommands.moc"
