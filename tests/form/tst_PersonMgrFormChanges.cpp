#include "PageFixture.h"

#include "query/PersonMgrWorker.h"

#include <qarn_base/ComboBox.h>
#include <qarn_base/PageEditWt.h>
#include <qarn_data/DataSignals.h>

using namespace qarn_personMgr;
using qarn_base::PageEditWt;
using qarn_data::DataSignals;
using qarn_data::PersonInfo;

/// How the page follows changes of the store, made here or by another operator's client.
class tst_PersonMgrFormChanges : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_page = std::make_unique<PageFixture>(); }
    void cleanup() { m_page.reset(); }

    void showsTheLastPageAfterAnAddition();
    void showsAnAdditionBelowTheSelection();
    void leavesThePageAloneWithoutASelection();
    void showsThePageAgainAfterADeletion();
    void showsTheNewLastPage();
    void showsNobodyAfterTheLastDeletion();
    void updatesRowsInPlace();
    void keepsAnUpdateForLaterPages();
    void followsAnotherOperatorsAddition();
    void followsAnotherOperatorsDeletion();
    void followsAnotherOperatorsUpdate();
    void followsAnotherOperatorsRenaming();
    void ignoresRefusedChanges();
    void followsChangesOfAWorkerThread();

private:
    int page() const { return m_page->child<PageEditWt>("pageIndexWt")->getCurPageNum(); }

    std::unique_ptr<PageFixture> m_page;
};

void tst_PersonMgrFormChanges::showsTheLastPageAfterAnAddition()
{
    m_page->addPersons(60, "east");
    m_page->open();
    m_page->selectOrganization("east");
    m_page->type("name", "P7");
    m_page->type("serialNum", "SP7");
    m_page->child<qarn_base::ComboBox>("validType")->setCurrentIndex(2);
    QVERIFY(m_page->data().addPersons({makePerson("new", "New", "east")}));
    QCOMPARE(page(), 2);
    QCOMPARE(m_page->ids().last(), QStringLiteral("new"));
    QCOMPARE(m_page->orderNum(10), QStringLiteral("61"));
    QCOMPARE(m_page->child<QLineEdit>("name")->text(), QString());
    QCOMPARE(m_page->child<QLineEdit>("serialNum")->text(), QString());
    QCOMPARE(m_page->child<qarn_base::ComboBox>("validType")->currentIndex(), 0);
}

void tst_PersonMgrFormChanges::showsAnAdditionBelowTheSelection()
{
    m_page->addPersons(2, "east");
    m_page->open();
    m_page->selectOrganization("east");
    QVERIFY(m_page->data().addPersons({makePerson("below", "Below", "inner")}));
    QCOMPARE(m_page->ids(), QStringList({"P1", "P2"}));
    m_page->check("displayChildren");
    QVERIFY(m_page->data().addPersons({makePerson("further", "Further", "inner")}));
    QCOMPARE(m_page->ids(), QStringList({"P1", "P2", "below", "further"}));
}

void tst_PersonMgrFormChanges::leavesThePageAloneWithoutASelection()
{
    m_page->addPersons(3, "east");
    m_page->open();
    m_page->type("name", "P2");
    m_page->click("searchBt");
    QVERIFY(m_page->data().addPersons({makePerson("new", "New P2", "east")}));
    QCOMPARE(m_page->ids(), QStringList({"P2"}));
    QCOMPARE(m_page->child<QLineEdit>("name")->text(), QStringLiteral("P2"));
}

void tst_PersonMgrFormChanges::showsThePageAgainAfterADeletion()
{
    m_page->addPersons(120, "east");
    m_page->open();
    m_page->click("nextBt");
    m_page->checkRow(0);
    m_page->checkRow(1);
    QVERIFY(m_page->data().deletePersons({"P1", "P60", "unknown"}));
    QCOMPARE(page(), 2);
    QCOMPARE(m_page->ids().first(), QStringLiteral("P52"));
    QCOMPARE(m_page->ids().last(), QStringLiteral("P102"));
    QVERIFY(m_page->child<QLabel>("totalCnt")->text().contains("118"));
    QCOMPARE(m_page->child<QCheckBox>("selAll")->checkState(), m_page->table()->checkState());
}

void tst_PersonMgrFormChanges::showsTheNewLastPage()
{
    m_page->addPersons(102, "east");
    m_page->open();
    m_page->click("lastBt");
    QCOMPARE(m_page->ids(), QStringList({"P101", "P102"}));
    m_page->check("selAll");
    QVERIFY(m_page->data().deletePersons({"P101", "P102"}));
    QCOMPARE(page(), 2);
    QCOMPARE(m_page->ids().first(), QStringLiteral("P51"));
    QCOMPARE(m_page->child<QCheckBox>("selAll")->checkState(), Qt::Unchecked);
}

void tst_PersonMgrFormChanges::showsNobodyAfterTheLastDeletion()
{
    m_page->addPersons(3, "east");
    m_page->open();
    m_page->check("selAll");
    QVERIFY(m_page->data().deletePersons({"P1", "P2", "P3"}));
    QCOMPARE(m_page->rows().count(), 0);
    QCOMPARE(page(), 0);
    QCOMPARE(m_page->child<QCheckBox>("selAll")->checkState(), Qt::Unchecked);
}

void tst_PersonMgrFormChanges::updatesRowsInPlace()
{
    m_page->addPersons(60, "east");
    m_page->open();
    m_page->click("nextBt");
    m_page->checkRow(0);
    QSignalSpy answers(&PersonMgrWorker::instance(), &PersonMgrWorker::signalCurPagePersons);
    PersonInfo person = makePerson("P51", "Renamed", "east");
    person.serialNum = QStringLiteral("NEW");
    QVERIFY(m_page->data().updatePerson(person));
    QCOMPARE(m_page->label(0, "name"), QStringLiteral("Renamed"));
    QCOMPARE(m_page->label(0, "serialNum"), QStringLiteral("NEW"));
    QCOMPARE(m_page->label(1, "name"), QStringLiteral("Person P52"));
    QCOMPARE(m_page->table()->getCheckedPersonIds(), QStringList({"P51"}));
    QCOMPARE(answers.count(), 0);
}

void tst_PersonMgrFormChanges::keepsAnUpdateForLaterPages()
{
    m_page->addPersons(60, "east");
    m_page->open();
    QVERIFY(m_page->data().updatePerson(makePerson("P55", "Renamed", "east")));
    m_page->click("nextBt");
    QCOMPARE(m_page->label(4, "name"), QStringLiteral("Renamed"));
}

void tst_PersonMgrFormChanges::followsAnotherOperatorsAddition()
{
    m_page->addPersons(50, "east");
    m_page->open();
    m_page->selectOrganization("east");
    m_page->type("name", "P1");
    m_page->otherOperator({"add", "east", "X1", "X2"});
    QTRY_COMPARE(m_page->ids(), QStringList({"X1", "X2"}));
    QCOMPARE(page(), 2);
    QCOMPARE(m_page->child<QLineEdit>("name")->text(), QString());
}

void tst_PersonMgrFormChanges::followsAnotherOperatorsDeletion()
{
    m_page->addPersons(3, "east");
    m_page->open();
    m_page->otherOperator({"delete", "P1", "P3"});
    QTRY_COMPARE(m_page->ids(), QStringList({"P2"}));
}

void tst_PersonMgrFormChanges::followsAnotherOperatorsUpdate()
{
    m_page->addPersons(3, "east");
    m_page->open();
    m_page->otherOperator({"rename", "P2", "Renamed elsewhere"});
    QTRY_COMPARE(m_page->label(1, "name"), QStringLiteral("Renamed elsewhere"));
}

void tst_PersonMgrFormChanges::followsAnotherOperatorsRenaming()
{
    m_page->addPersons(1, "east", "E");
    m_page->addPersons(1, "inner", "I");
    m_page->open();
    m_page->otherOperator({"rename-organization", "east", m_page->root, "Far East"});
    QTRY_COMPARE(m_page->label(0, "organization"), QStringLiteral("Far East"));
    QCOMPARE(m_page->label(1, "organization"), QStringLiteral("Inner"));
}

void tst_PersonMgrFormChanges::ignoresRefusedChanges()
{
    m_page->addPersons(3, "east");
    m_page->open();
    m_page->selectOrganization("east");
    m_page->type("name", "P2");
    QSignalSpy answers(&PersonMgrWorker::instance(), &PersonMgrWorker::signalCurPagePersons);
    QSignalSpy additions(&DataSignals::instance(), &DataSignals::signalAddPersonsToLocalDB);
    QSignalSpy updates(&DataSignals::instance(), &DataSignals::signalUpdatePersonInLocalDB);
    QVERIFY(!m_page->data().addPersons({makePerson("P1", "Taken", "east")}));
    PersonInfo taken = makePerson("P1", "Taken", "east");
    taken.serialNum = QStringLiteral("SP2");
    QVERIFY(!m_page->data().updatePerson(taken));
    QCOMPARE(additions.count(), 1);
    QCOMPARE(additions.first().at(1).toBool(), false);
    QCOMPARE(updates.count(), 1);
    QCOMPARE(updates.first().at(2).toBool(), false);
    QCOMPARE(m_page->label(0, "name"), QStringLiteral("Person P1"));
    QCOMPARE(m_page->child<QLineEdit>("name")->text(), QStringLiteral("P2"));
    QCOMPARE(answers.count(), 0);
}

void tst_PersonMgrFormChanges::followsChangesOfAWorkerThread()
{
    m_page->addPersons(3, "east");
    m_page->open();
    m_page->selectOrganization("east");
    std::unique_ptr<QThread> thread(QThread::create([] {
        PageFixture::data().addPersons({makePerson("T", "Threaded", "east")});
        PageFixture::data().deletePersons({"P1"});
    }));
    thread->start();
    QVERIFY(thread->wait());
    QTRY_COMPARE(m_page->ids(), QStringList({"P2", "P3", "T"}));
}

QTEST_MAIN(tst_PersonMgrFormChanges)
#include "tst_PersonMgrFormChanges.moc"
