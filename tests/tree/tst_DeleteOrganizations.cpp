#include "TreeFixture.h"

#include <QLabel>
#include <QtTest>

using namespace qarn_personMgr;
using qarn_base::TreeItem;
using qarn_base::TreeItemOperWt;
using qarn_data::PersonData;

class tst_DeleteOrganizations : public QObject, protected TreeFixture
{
    Q_OBJECT
private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void doesNotDeleteTheRoot();
    void hidesTheDeleteButtonOfTheRoot();
    void doesNotDeleteWherePersonsAre();
    void deletesWhatIsConfirmed();
    void keepsWhatIsNotConfirmed();
    void deletesByTheButtonOfAnItem();
};

void tst_DeleteOrganizations::doesNotDeleteTheRoot()
{
    select(m_rootId);
    m_tree->slotDeleteCurSelOrganization();
    QTRY_COMPARE(lastAlert(), QString("root organization can not be deleted"));
    QCOMPARE(PersonData::instance().getRootOrganizationId(), m_rootId);
}

void tst_DeleteOrganizations::hidesTheDeleteButtonOfTheRoot()
{
    const QString sales = addOrganization(m_rootId, "Sales");
    TreeItemOperWt* root = buttonsOf(m_rootId);
    QVERIFY(root != nullptr);
    QVERIFY(child<QPushButton>(root, "editBt")->isVisible());
    const auto* deleteBt = root->findChild<QPushButton*>("deleteBt");
    QVERIFY(deleteBt == nullptr || !deleteBt->isVisible());
    TreeItemOperWt* other = buttonsOf(sales);
    QVERIFY(other != nullptr);
    QVERIFY(child<QPushButton>(other, "deleteBt")->isVisible());
}

void tst_DeleteOrganizations::doesNotDeleteWherePersonsAre()
{
    const QString sales = addOrganization(m_rootId, "Sales");
    addOrganization(sales, "Empty");
    const QString paris = addOrganization(sales, "Paris");
    addPerson(addOrganization(paris, "Centre"));
    select(sales);
    QString told;
    m_modal->expect([&](QWidget* window) {
        told = child<QLabel>(window, "text")->text();
        click(window, "okBt");
    });
    m_tree->slotDeleteCurSelOrganization();
    QCOMPARE(told, QString("organization has persons, can not be deleted"));
    QCOMPARE(PersonData::instance().getAllOrganizations().count(), 5);
}

void tst_DeleteOrganizations::deletesWhatIsConfirmed()
{
    const QString sales = addOrganization(m_rootId, "Sales");
    addOrganization(addOrganization(sales, "Paris"), "Centre");
    addOrganization(m_rootId, "Works");
    select(sales);
    QString asked;
    m_modal->expect([&](QWidget* window) {
        asked = child<QLabel>(window, "text")->text();
        click(window, "okBt");
    });
    m_tree->slotDeleteCurSelOrganization();
    QCOMPARE(asked, QString("Do you want to delete the select organization?"));
    QCOMPARE(childNames(m_rootId), QStringList{"Works"});
    QCOMPARE(PersonData::instance().getAllOrganizations().count(), 2);
    QCOMPARE(m_tree->getOrganizationItem(sales), nullptr);
}

void tst_DeleteOrganizations::keepsWhatIsNotConfirmed()
{
    select(addOrganization(m_rootId, "Sales"));
    m_modal->expect([](QWidget* window) { click(window, "cancelBt"); });
    m_tree->slotDeleteCurSelOrganization();
    m_modal->expect([](QWidget* window) { QTest::keyClick(window, Qt::Key_Escape); });
    m_tree->slotDeleteCurSelOrganization();
    QCOMPARE(childNames(m_rootId), QStringList{"Sales"});
}

void tst_DeleteOrganizations::deletesByTheButtonOfAnItem()
{
    TreeItemOperWt* buttons = buttonsOf(addOrganization(m_rootId, "Sales"));
    QVERIFY(buttons != nullptr);
    m_modal->expect([](QWidget* window) { click(window, "okBt"); });
    click(buttons, "deleteBt"); // goes with its item
    QCOMPARE(childNames(m_rootId), QStringList());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QTEST_MAIN(tst_DeleteOrganizations)
#include "tst_DeleteOrganizations.moc"
