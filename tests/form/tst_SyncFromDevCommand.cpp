#include "LinkListener.h"
#include "SyncFixture.h"

#include "query/PersonMgrWorker.h"

#include <qarn_contact/SystemMsg.h>

using namespace qarn_personMgr;

/// Faces from devices as the operator starts it from the tool bar, with a simulated device on the network.
class tst_SyncFromDevCommand : public QObject
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

    void asksForAnOrganizationToFetchTo();
    void asksForChannelsToFetchFrom();
    void fetchesNothingWhenCancelled();
    void fetchesFaces();
    void showsFetchedPersonsAtTheEndOnly();
    void showsThePageAsItWasAfterATimeOut();
    void uncoversThePageWhenTheClientQuits();

private:
    std::unique_ptr<SyncFixture> m_page;
};

void tst_SyncFromDevCommand::asksForAnOrganizationToFetchTo()
{
    m_page->open();
    m_page->click("synchronizeFromDevBt");
    QTRY_COMPARE(m_page->alertTexts(),
                 QStringList("Please select organization to synchronize faces from devs"));
    QVERIFY(m_page->isIdle());
}

void tst_SyncFromDevCommand::asksForChannelsToFetchFrom()
{
    m_page->startDevice();
    m_page->openOn("east");
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

void tst_SyncFromDevCommand::fetchesNothingWhenCancelled()
{
    m_page->startDevice();
    m_page->openOn("east");
    m_page->expectPress("cancelBt");
    m_page->click("synchronizeFromDevBt");
    QVERIFY(m_page->isIdle());
    QCOMPARE(m_page->alertTexts(), QStringList());
}

void tst_SyncFromDevCommand::fetchesFaces()
{
    m_page->startDevice();
    LinkListener listener;
    for (const char* serialNum : {"D1", "D2"})
        QCOMPARE(listener.add(m_page->device->id(), 1, serialNum, testPhoto()), 0);
    m_page->addPersons(60, "west", "W");
    m_page->openOn("west");
    m_page->fetch();
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

void tst_SyncFromDevCommand::showsFetchedPersonsAtTheEndOnly()
{
    m_page->startDevice();
    LinkListener listener;
    QCOMPARE(listener.add(m_page->device->id(), 1, "D1", testPhoto()), 0);
    m_page->addPersons(1, "west", "W");
    m_page->openOn("west");
    QSignalSpy answers(&PersonMgrWorker::instance(), &PersonMgrWorker::signalCurPagePersons);
    m_page->fetch();
    // The store is ahead of the page until the run has ended.
    QVERIFY(m_page->data().addPersons({makePerson("X", "X", "west")}));
    QCOMPARE(m_page->ids(), QStringList("W1"));
    QTRY_COMPARE(answers.count(), 1);
    QCOMPARE(answers.first().at(2).toInt(), 3);
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(m_page->rows().count(), 3);
}

void tst_SyncFromDevCommand::showsThePageAsItWasAfterATimeOut()
{
    m_page->startDevice({"--fail", "hang,on=list"});
    m_page->addPersons(2, "west", "W");
    m_page->openOn("west");
    QSignalSpy answers(&PersonMgrWorker::instance(), &PersonMgrWorker::signalCurPagePersons);
    m_page->fetch();
    m_page->expectNotice();
    QVERIFY(m_page->data().addPersons({makePerson("X", "X", "west")}));
    m_page->syncThread()->setWatchdogInterval(50);
    QTRY_COMPARE(m_page->notice, QStringLiteral("sync persons time out"));
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(answers.count(), 0);
    QCOMPARE(m_page->ids(), QStringList({"W1", "W2"}));
    QVERIFY(m_page->data().deletePersons({"W1"}));
    QCOMPARE(m_page->ids(), QStringList({"W2"}));
}

/// Such a run ends without a word.
void tst_SyncFromDevCommand::uncoversThePageWhenTheClientQuits()
{
    m_page->startDevice({"--fail", "hang,on=list"});
    m_page->addPersons(1, "west", "W");
    m_page->openOn("west");
    m_page->fetch();
    QVERIFY(m_page->overlay() != nullptr);
    emit qarn_contact::SystemMsg::instance().signalPrepareQuitSystem();
    QTRY_VERIFY(m_page->isIdle());
    QCOMPARE(m_page->alertTexts(), QStringList());
    QVERIFY(m_page->data().addPersons({makePerson("X", "X", "west")}));
    QCOMPARE(m_page->ids(), QStringList({"W1", "X"}));
}

QTEST_MAIN(tst_SyncFromDevCommand)
#include "tst_SyncFromDevCommand.moc"
