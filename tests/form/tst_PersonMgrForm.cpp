#include "PageFixture.h"

#include "query/PersonMgrWorker.h"

#include <qarn_base/ComboBox.h>
#include <qarn_base/PageEditWt.h>

using namespace qarn_personMgr;
using qarn_base::PageEditWt;

class tst_PersonMgrForm : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_page = std::make_unique<PageFixture>(); }
    void cleanup() { m_page.reset(); }

    void showsEverybodyAtFirst();
    void showsNobodyOfAnEmptyStore();
    void searchesTheWholeStore();
    void searchesOnReturn();
    void filtersTheSelectedOrganization();
    void trimsTheFilters();
    void filtersByValidity();
    void resetsTheFiltersOnly();
    void showsChildOrganizations();
    void collectsOrganizations();

    void turnsPages();
    void changesThePageSize();
    void setsTheCheckAllBox();
    void refusesOtherCharactersInSerialNumbers_data();
    void refusesOtherCharactersInSerialNumbers();
    void goesWhileAnOrganizationIsSelected();

private:
    std::unique_ptr<PageFixture> m_page;
};

void tst_PersonMgrForm::showsEverybodyAtFirst()
{
    m_page->addPersons(40, "east", "E");
    m_page->addPersons(40, "inner", "I");
    m_page->open();
    QVERIFY(m_page->tree()->getCurSelTreeItem() == nullptr);
    QCOMPARE(m_page->rows().count(), 50);
    QCOMPARE(m_page->ids().first(), QStringLiteral("E1"));
    QCOMPARE(m_page->ids().last(), QStringLiteral("I10"));
    QCOMPARE(m_page->orderNum(49), QStringLiteral("50"));
    QCOMPARE(m_page->child<PageEditWt>("pageIndexWt")->getCurPageNum(), 1);
    QVERIFY(m_page->child<QLabel>("totalCnt")->text().contains("80"));
}

void tst_PersonMgrForm::showsNobodyOfAnEmptyStore()
{
    m_page->open();
    QCOMPARE(m_page->rows().count(), 0);
    QCOMPARE(m_page->child<PageEditWt>("pageIndexWt")->getCurPageNum(), 0);
    QCOMPARE(m_page->child<QCheckBox>("selAll")->checkState(), Qt::Unchecked);
    m_page->check("selAll");
    QVERIFY(m_page->table()->getCheckedPersonIds().isEmpty());
}

void tst_PersonMgrForm::searchesTheWholeStore()
{
    m_page->addPersons(3, "east", "E");
    m_page->addPersons(3, "west", "W");
    m_page->open();
    m_page->selectOrganization("west");
    QCOMPARE(m_page->ids(), QStringList({"W1", "W2", "W3"}));
    m_page->type("name", "2");
    QCOMPARE(m_page->ids().count(), 3);
    m_page->click("searchBt");
    QVERIFY(m_page->tree()->getCurSelTreeItem() == nullptr);
    QCOMPARE(m_page->ids(), QStringList({"E2", "W2"}));

    m_page->selectOrganization("east");
    QCOMPARE(m_page->ids(), QStringList({"E2"}));
}

void tst_PersonMgrForm::searchesOnReturn()
{
    m_page->addPersons(12, "east");
    m_page->open();
    m_page->type("serialNum", "P12");
    QTest::keyClick(m_page->child<QLineEdit>("serialNum"), Qt::Key_Return);
    QCOMPARE(m_page->ids(), QStringList({"P12"}));
    m_page->type("name", "nobody");
    QTest::keyClick(m_page->child<QLineEdit>("name"), Qt::Key_Return);
    QCOMPARE(m_page->ids(), QStringList());
    QCOMPARE(m_page->child<PageEditWt>("pageIndexWt")->getCurPageNum(), 0);
}

void tst_PersonMgrForm::filtersTheSelectedOrganization()
{
    m_page->addPersons(12, "east", "E");
    m_page->addPersons(12, "west", "W");
    m_page->open();
    m_page->type("name", "E1");
    m_page->selectOrganization("east");
    QCOMPARE(m_page->ids(), QStringList({"E1", "E10", "E11", "E12"}));
    m_page->selectOrganization("west");
    QCOMPARE(m_page->ids(), QStringList());
}

void tst_PersonMgrForm::trimsTheFilters()
{
    m_page->addPersons(3, "east");
    m_page->open();
    m_page->type("name", "  P2  ");
    m_page->type("serialNum", " SP ");
    m_page->click("searchBt");
    QCOMPARE(m_page->ids(), QStringList({"P2"}));
}

void tst_PersonMgrForm::filtersByValidity()
{
    qarn_data::PersonInfo past = makePerson("past", "Past", "east");
    past.validEndTime = QDateTime::currentDateTime().addDays(-1);
    past.validStartTime = past.validEndTime.addDays(-1);
    QVERIFY(m_page->data().addPersons({makePerson("now", "Now", "east"), past}));
    m_page->open();
    auto* types = m_page->child<qarn_base::ComboBox>("validType");
    types->setFocus();
    QTest::keyClick(types, Qt::Key_Down);
    m_page->click("searchBt");
    QCOMPARE(m_page->ids(), QStringList({"past"}));
    QTest::keyClick(types, Qt::Key_Down);
    m_page->click("searchBt");
    QCOMPARE(m_page->ids(), QStringList({"now"}));
}

void tst_PersonMgrForm::resetsTheFiltersOnly()
{
    m_page->addPersons(3, "east");
    m_page->open();
    m_page->type("name", "P2");
    m_page->type("serialNum", "SP2");
    m_page->child<qarn_base::ComboBox>("validType")->setCurrentIndex(2);
    m_page->click("searchBt");
    QSignalSpy answers(&PersonMgrWorker::instance(), &PersonMgrWorker::signalCurPagePersons);
    m_page->click("resetBt");
    QCOMPARE(m_page->child<QLineEdit>("name")->text(), QString());
    QCOMPARE(m_page->child<QLineEdit>("serialNum")->text(), QString());
    QCOMPARE(m_page->child<qarn_base::ComboBox>("validType")->currentIndex(), 0);
    QCOMPARE(m_page->ids(), QStringList({"P2"}));
    QCOMPARE(answers.count(), 0);
    m_page->click("searchBt");
    QCOMPARE(m_page->ids().count(), 3);
}

void tst_PersonMgrForm::showsChildOrganizations()
{
    m_page->addPersons(2, "east", "E");
    m_page->addPersons(60, "inner", "I");
    m_page->addPersons(2, "west", "W");
    m_page->open();
    m_page->selectOrganization("east");
    QCOMPARE(m_page->ids(), QStringList({"E1", "E2"}));
    m_page->check("displayChildren");
    QCOMPARE(m_page->ids().count(), 50);
    m_page->child<QAbstractButton>("lastBt")->click();
    QCOMPARE(m_page->child<PageEditWt>("pageIndexWt")->getCurPageNum(), 2);
    m_page->check("displayChildren");
    QCOMPARE(m_page->ids(), QStringList({"E1", "E2"}));
    m_page->check("displayChildren");
    QCOMPARE(m_page->child<PageEditWt>("pageIndexWt")->getCurPageNum(), 1);
    m_page->selectOrganization(m_page->root);
    QVERIFY(m_page->child<QLabel>("totalCnt")->text().contains("64"));
}

void tst_PersonMgrForm::collectsOrganizations()
{
    m_page->open();
    QVERIFY(m_page->form->collectOrganizationIds(false).isEmpty());
    QVERIFY(m_page->form->collectOrganizationIds(true).isEmpty());
    m_page->selectOrganization("east");
    QCOMPARE(m_page->form->collectOrganizationIds(false), QStringList({"east"}));
    QCOMPARE(m_page->form->collectOrganizationIds(true), QStringList({"east", "inner"}));
}

void tst_PersonMgrForm::turnsPages()
{
    m_page->addPersons(120, "east");
    m_page->open();
    m_page->click("nextBt");
    QCOMPARE(m_page->ids().first(), QStringLiteral("P51"));
    QCOMPARE(m_page->orderNum(0), QStringLiteral("51"));
    m_page->click("lastBt");
    QCOMPARE(m_page->rows().count(), 20);
    QCOMPARE(m_page->orderNum(19), QStringLiteral("120"));
    m_page->click("firstBt");
    QCOMPARE(m_page->orderNum(0), QStringLiteral("1"));
    m_page->form->searchPersons(99);
    QCOMPARE(m_page->orderNum(0), QStringLiteral("101"));
}

void tst_PersonMgrForm::changesThePageSize()
{
    m_page->addPersons(120, "east");
    m_page->open();
    m_page->click("lastBt");
    auto* sizes = m_page->child<QComboBox>("pageSize");
    sizes->setFocus();
    QTest::keyClick(sizes, Qt::Key_Down);
    QCOMPARE(m_page->rows().count(), 100);
    QCOMPARE(m_page->ids().first(), QStringLiteral("P1"));
    m_page->click("nextBt");
    QCOMPARE(m_page->orderNum(0), QStringLiteral("101"));
    QTest::keyClick(sizes, Qt::Key_Up);
    QTest::keyClick(sizes, Qt::Key_Up);
    QCOMPARE(m_page->rows().count(), 20);
    m_page->selectOrganization("east");
    QCOMPARE(m_page->rows().count(), 20);
}

void tst_PersonMgrForm::setsTheCheckAllBox()
{
    m_page->addPersons(52, "east");
    m_page->open();
    auto* all = m_page->child<QCheckBox>("selAll");
    m_page->checkRow(0);
    QCOMPARE(all->checkState(), Qt::PartiallyChecked);
    m_page->check("selAll");
    QCOMPARE(all->checkState(), Qt::Checked);
    QCOMPARE(m_page->table()->getCheckedPersonIds().count(), 50);
    m_page->check("selAll");
    QCOMPARE(all->checkState(), Qt::Unchecked);
    QVERIFY(m_page->table()->getCheckedPersonIds().isEmpty());
    m_page->check("selAll");
    QCOMPARE(all->checkState(), Qt::Checked);
    m_page->click("nextBt");
    QCOMPARE(all->checkState(), Qt::Unchecked);
    m_page->checkRow(0);
    m_page->checkRow(1);
    QCOMPARE(all->checkState(), Qt::Checked);
}

void tst_PersonMgrForm::refusesOtherCharactersInSerialNumbers_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("taken");
    QTest::newRow("letters, digits") << "aZ09"
                                     << "aZ09";
    QTest::newRow("blank, braces") << "{a b}"
                                   << "{a b}";
    QTest::newRow("underscore") << "a_b"
                                << "ab";
    QTest::newRow("slash") << "a/b"
                           << "ab";
    QTest::newRow("dot") << "a.b"
                         << "ab";
}

void tst_PersonMgrForm::refusesOtherCharactersInSerialNumbers()
{
    QFETCH(QString, typed);
    m_page->open();
    m_page->type("serialNum", typed);
    auto* serialNum = m_page->child<QLineEdit>("serialNum");
    QTEST(serialNum->text(), "taken");
    serialNum->insert(QString::fromUtf8("\u00e4"));
    QTEST(serialNum->text(), "taken");
}

void tst_PersonMgrForm::goesWhileAnOrganizationIsSelected()
{
    m_page->addPersons(3, "east");
    m_page->open();
    m_page->selectOrganization("east");
    m_page->checkRow(1);
    delete m_page->form.data();
    PersonMgrWorker::instance().gotoPage(1, 50);
    m_page->open();
    QCOMPARE(m_page->rows().count(), 3);
}

QTEST_MAIN(tst_PersonMgrForm)
#include "tst_PersonMgrForm.moc"
