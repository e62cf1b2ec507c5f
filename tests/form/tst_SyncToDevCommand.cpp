#include "LinkListener.h"
#include "SyncFixture.h"

using namespace qarn_personMgr;

/// Faces to devices as the operator starts it from the tool bar, with a simulated device on the network.
class tst_SyncToDevCommand : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_page = std::make_unique<SyncFixture>(); }
    void cleanup()
    {
        const int pending = m_page->driver.pending();
        m_page.reset();
        QCOMPARE(pending, 0);
    }

    void asksWhatToSend_data();
    void asksWhatToSend();
    void sendsNothingWhenCancelled();
    void sendsTheCheckedPersons();
    void sendsOrganizations_data();
    void sendsOrganizations();
    void followsChangesWhileItSends();
    void tellsWhatADeviceRefused();
    void givesUpASilentDevice();
    void goesWhileADeviceIsSilent();

private:
    QStringList facesOnDevice() const;

    std::unique_ptr<SyncFixture> m_page;
};

QStringList tst_SyncToDevCommand::facesOnDevice() const
{
    LinkListener listener;
    QStringList serialNums;
    for (const dvx_sdk::FaceInfo& face : listener.list(m_page->device->id(), 1, 1, 200).faces)
        serialNums.append(face.serialNum);
    serialNums.sort();
    return serialNums;
}

void tst_SyncToDevCommand::asksWhatToSend_data()
{
    QTest::addColumn<bool>("persons");
    QTest::addColumn<QString>("question");
    QTest::newRow("an organization is selected, no person checked")
        << true << "Please check persons to synchronize";
    QTest::newRow("persons are checked, no organization selected")
        << false << "Please select organization to synchronize";
}

void tst_SyncToDevCommand::asksWhatToSend()
{
    QFETCH(bool, persons);
    QFETCH(QString, question);
    m_page->startDevice();
    m_page->addPersonsWithFaces(2, "east", "E");
    m_page->open();
    if (persons) {
        m_page->selectOrganization("east");
        m_page->sendPersons();
    } else {
        m_page->check("selAll");
        m_page->sendOrganization();
    }
    QTRY_COMPARE(m_page->alertTexts(), QStringList(question));
    QVERIFY(m_page->isIdle());
}

void tst_SyncToDevCommand::sendsNothingWhenCancelled()
{
    m_page->startDevice();
    m_page->open();
    m_page->expectPress("cancelBt");
    m_page->click("synchronizeToDevBt");
    QVERIFY(m_page->isIdle());
    QCOMPARE(m_page->alertTexts(), QStringList());
}

void tst_SyncToDevCommand::sendsTheCheckedPersons()
{
    m_page->startDevice();
    m_page->addPersonsWithFaces(3, "east", "E");
    m_page->open();
    m_page->checkRow(0);
    m_page->checkRow(2);
    m_page->sendPersons();
    QVERIFY(m_page->overlay() != nullptr);
    QCOMPARE(m_page->overlayText("caption"), QStringLiteral("Exporting Persons..."));
    QCOMPARE(m_page->overlayText("description"), QString());
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Synchronize persons to devs finished"));
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(facesOnDevice(), QStringList({"SE1", "SE3"}));
}

void tst_SyncToDevCommand::sendsOrganizations_data()
{
    QTest::addColumn<bool>("children");
    QTest::addColumn<QStringList>("sent");
    QTest::newRow("alone") << false << QStringList({"SE1", "SE2"});
    QTest::newRow("with those below") << true << QStringList({"SE1", "SE2", "SI1"});
}

void tst_SyncToDevCommand::sendsOrganizations()
{
    QFETCH(bool, children);
    m_page->startDevice();
    m_page->addPersonsWithFaces(2, "east", "E");
    m_page->addPersonsWithFaces(1, "inner", "I");
    m_page->addPersonsWithFaces(1, "west", "W");
    m_page->openOn("east");
    m_page->sendOrganization(children);
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Synchronize persons to devs finished"));
    QTEST(facesOnDevice(), "sent");
}

void tst_SyncToDevCommand::followsChangesWhileItSends()
{
    m_page->startDevice();
    m_page->addPersonsWithFaces(2, "east", "E");
    m_page->openOn("east");
    m_page->sendOrganization();
    QVERIFY(m_page->data().addPersons({makePerson("X", "X", "east")}));
    QCOMPARE(m_page->ids(), QStringList({"E1", "E2", "X"}));
    QTRY_VERIFY(m_page->isIdle());
}

void tst_SyncToDevCommand::tellsWhatADeviceRefused()
{
    m_page->startDevice({"--fail", "400,on=add,every=2"});
    m_page->addPersonsWithFaces(3, "east", "E");
    m_page->openOn("east");
    m_page->sendOrganization();
    QTRY_COMPARE(m_page->alertTexts().count(), 2);
    QCOMPARE(m_page->alertTexts().first(), QStringLiteral("add Person E2 face to Gate-Channel 1 failed"));
    QCOMPARE(m_page->alerts.first().first().toString(), QStringLiteral("Error"));
    QCOMPARE(m_page->alertTexts().last(), QStringLiteral("Synchronize persons to devs finished"));
    QCOMPARE(m_page->alerts.last().first().toString(), QStringLiteral("Success"));
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(facesOnDevice(), QStringList({"SE1", "SE3"}));
}

void tst_SyncToDevCommand::givesUpASilentDevice()
{
    m_page->startDevice({"--fail", "hang,on=list"});
    m_page->addPersonsWithFaces(2, "east", "E");
    m_page->openOn("east");
    m_page->sendOrganization();
    QTRY_COMPARE(m_page->overlayText("description"), QStringLiteral("getting Gate-Channel 1 faces...."));
    m_page->expectNotice();
    m_page->syncThread()->setWatchdogInterval(50);
    QTRY_COMPARE(m_page->notice, QStringLiteral("sync persons time out"));
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(m_page->alertTexts(), QStringList());
    m_page->type("name", "E2");
    m_page->click("searchBt");
    QCOMPARE(m_page->ids(), QStringList("E2"));
}

void tst_SyncToDevCommand::goesWhileADeviceIsSilent()
{
    m_page->startDevice({"--fail", "hang,on=list"});
    m_page->addPersonsWithFaces(2, "east", "E");
    m_page->openOn("east");
    m_page->sendOrganization();
    QTRY_VERIFY(!m_page->overlayText("description").isEmpty());
    QPointer<QThread> thread = m_page->thread();
    delete m_page->form.data();
    QVERIFY(thread.isNull());
    QTest::qWait(1);
}

QTEST_MAIN(tst_SyncToDevCommand)
#include "tst_SyncToDevCommand.moc"
