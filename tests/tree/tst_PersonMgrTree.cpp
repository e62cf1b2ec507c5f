#include "TreeFixture.h"

#include <QLabel>
#include <QtTest>

using namespace qarn_personMgr;
using qarn_base::TreeItem;
using qarn_base::TreeItemOperWt;
using qarn_data::PersonData;

class tst_PersonMgrTree : public QObject, protected TreeFixture
{
    Q_OBJECT
private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void needsASelection();
    void proposesTheFirstFreeName();
    void addsAndShowsTheNewOrganization();
    void addsOneAfterAnother();
    void limitsNamesTo20Characters();
    void refusesASiblingsName();
    void renames_data();
    void renames();
    void renamesUnderAnotherParentFreely();
    void survivesAParentThatGoesMeanwhile();
    void survivesAnEditedItemThatGoesMeanwhile();
};

void tst_PersonMgrTree::needsASelection()
{
    m_tree->setCurSelItem(nullptr);
    m_tree->slotAddNewOrganization();
    QTRY_COMPARE(lastAlert(), QString("Please select which organization to add to"));
    m_tree->slotDeleteCurSelOrganization();
    QTRY_COMPARE(lastAlert(), QString("Please select which organization to delete"));
    QCOMPARE(m_alerts->at(0).at(0).toString(), QString("Warning"));
    QCOMPARE(m_alerts->count(), 2);
}

void tst_PersonMgrTree::proposesTheFirstFreeName()
{
    QString proposed;
    QString title;
    const auto propose = [&] {
        m_modal->expect([&](QWidget* window) {
            proposed = child<QLineEdit>(window, "name")->text();
            title = child<QLabel>(window, "title")->text();
            click(window, "cancelBt");
        });
        m_tree->slotAddNewOrganization();
    };
    const QString empty = addOrganization(m_rootId, "Sales");
    addOrganization(m_rootId, "New Organization");
    addOrganization(m_rootId, "New Organization1");
    select(m_rootId);
    propose();
    QCOMPARE(proposed, QString("New Organization2"));
    QCOMPARE(title, QString("Add Organization"));
    select(empty);
    propose();
    QCOMPARE(proposed, QString("New Organization"));
    QCOMPARE(childNames(empty), QStringList());
}

void tst_PersonMgrTree::addsAndShowsTheNewOrganization()
{
    const QString parent = addOrganization(m_rootId, "Sales");
    select(parent);
    m_tree->collapseAll();
    m_modal->expect([](QWidget* window) {
        typeName(window, "Paris");
        click(window, "okBt");
    });
    m_tree->slotAddNewOrganization();
    QCOMPARE(childNames(parent), QStringList{"Paris"});
    QTreeWidgetItem* item = m_tree->getOrganizationItem(parent);
    QCOMPARE(item->childCount(), 1);
    QVERIFY(item->isExpanded());
    QVERIFY(item->parent()->isExpanded());
    const QString id = static_cast<TreeItem*>(item->child(0))->getId();
    QCOMPARE(QUuid(id).toString(), id); // the braced form
}

void tst_PersonMgrTree::addsOneAfterAnother()
{
    select(m_rootId);
    QStringList proposed;
    m_modal->expect([&](QWidget* window) {
        auto* name = child<QLineEdit>(window, "name");
        for (int i = 0; i < 3; ++i) {
            proposed.append(name->text());
            click(window, "addContinuouslyBt");
            QVERIFY(window->isVisible());
        }
        proposed.append(name->text());
        click(window, "cancelBt");
    });
    m_tree->slotAddNewOrganization();
    QCOMPARE(proposed, (QStringList{"New Organization", "New Organization1", "New Organization2",
                                    "New Organization3"}));
    QCOMPARE(childNames(m_rootId), proposed.mid(0, 3));
    QCOMPARE(PersonData::instance().getAllOrganizations().count(), 4); // a new id for each
}

void tst_PersonMgrTree::limitsNamesTo20Characters()
{
    select(m_rootId);
    m_modal->expect([](QWidget* window) {
        typeName(window, QString(30, 'n'));
        click(window, "okBt");
    });
    m_tree->slotAddNewOrganization();
    QCOMPARE(childNames(m_rootId), QStringList{QString(20, 'n')});
}

void tst_PersonMgrTree::refusesASiblingsName()
{
    addOrganization(m_rootId, "Sales");
    select(m_rootId);
    m_modal->expect([](QWidget* window) {
        typeName(window, "Sales");
        click(window, "okBt");
        QVERIFY(window->isVisible());
        typeName(window, "sales"); // case counts
        click(window, "okBt");
    });
    m_tree->slotAddNewOrganization();
    QCOMPARE(childNames(m_rootId), (QStringList{"Sales", "sales"}));
}

void tst_PersonMgrTree::renames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("own name") << "Sales" << true;
    QTest::newRow("sibling's name") << "Works" << false;
    QTest::newRow("case differs") << "works" << true;
    QTest::newRow("new name") << "Office" << true;
}

void tst_PersonMgrTree::renames()
{
    QFETCH(QString, name);
    QFETCH(bool, accepted);
    const QString id = addOrganization(m_rootId, "Sales");
    const QString below = addOrganization(id, "Paris");
    addOrganization(m_rootId, "Works");
    TreeItemOperWt* buttons = buttonsOf(id);
    QVERIFY(buttons != nullptr);
    m_modal->expect([&](QWidget* window) {
        QCOMPARE(child<QLabel>(window, "title")->text(), QString("Edit Organization"));
        QCOMPARE(child<QLineEdit>(window, "name")->text(), QString("Sales"));
        typeName(window, name);
        click(window, "okBt");
        QCOMPARE(window->isVisible(), !accepted);
        if (!accepted)
            click(window, "cancelBt");
    });
    click(buttons, "editBt");
    QCOMPARE(PersonData::instance().getOrganizationName(id), accepted ? name : QString("Sales"));
    QCOMPARE(m_tree->getOrganizationItem(id)->text(0), accepted ? name : QString("Sales"));
    QVERIFY(m_tree->getOrganizationItem(id)->indexOfChild(m_tree->getOrganizationItem(below)) == 0);
}

void tst_PersonMgrTree::renamesUnderAnotherParentFreely()
{
    const QString sales = addOrganization(m_rootId, "Sales");
    const QString works = addOrganization(m_rootId, "Works");
    addOrganization(sales, "Paris");
    const QString other = addOrganization(works, "Rome");
    TreeItemOperWt* buttons = buttonsOf(other);
    QVERIFY(buttons != nullptr);
    m_modal->expect([](QWidget* window) {
        typeName(window, "Paris");
        click(window, "okBt");
    });
    click(buttons, "editBt");
    QCOMPARE(childNames(works), QStringList{"Paris"});
}

void tst_PersonMgrTree::survivesAParentThatGoesMeanwhile()
{
    const QString sales = addOrganization(m_rootId, "Sales");
    select(sales);
    m_modal->expect([&](QWidget* window) {
        QVERIFY(PersonData::instance().deleteOrganizations({sales}));
        click(window, "addContinuouslyBt");
        click(window, "cancelBt");
    });
    m_tree->slotAddNewOrganization();
    QCOMPARE(PersonData::instance().getAllOrganizations().count(), 1);
}

void tst_PersonMgrTree::survivesAnEditedItemThatGoesMeanwhile()
{
    const QString sales = addOrganization(m_rootId, "Sales");
    TreeItemOperWt* buttons = buttonsOf(sales);
    QVERIFY(buttons != nullptr);
    m_modal->expect([&](QWidget* window) {
        QVERIFY(PersonData::instance().deleteOrganizations({sales}));
        typeName(window, "Office");
        click(window, "okBt");
        if (window->isVisible())
            click(window, "cancelBt");
    });
    click(buttons, "editBt");
    QCOMPARE(PersonData::instance().getAllOrganizations().count(), 1);
}

QTEST_MAIN(tst_PersonMgrTree)
#include "tst_PersonMgrTree.moc"
