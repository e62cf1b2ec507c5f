#include "tree/PersonMgrTree.h"

#include "ModalDriver.h"
#include "TestStore.h"

#include <qarn_base/TreeItem.h>
#include <qarn_base/TreeItemOperWt.h>
#include <qarn_data/PersonData.h>
#include <qarn_worker/SystemAssistant.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using namespace qarn_personMgr;
using qarn_base::TreeItem;
using qarn_base::TreeItemOperWt;
using qarn_data::OrganizationInfo;
using qarn_data::PersonData;
using qarn_data::PersonInfo;
using qarn_worker::SystemAssistant;

namespace
{

QString addOrganization(const QString& parentId, const QString& name)
{
    const QString id = QUuid::createUuid().toString();
    if (!PersonData::instance().addOrganization({id, parentId, name}))
        qFatal("organization refused");
    return id;
}

void addPerson(const QString& organizationId)
{
    PersonInfo person;
    person.id = QUuid::createUuid().toString();
    person.serialNum = QStringLiteral("S1");
    person.name = QStringLiteral("Ann");
    person.organizationId = organizationId;
    if (!PersonData::instance().addPerson(person))
        qFatal("person refused");
}

QStringList childNames(const QString& parentId)
{
    QStringList names;
    const auto all = PersonData::instance().getAllOrganizations();
    for (const OrganizationInfo& info : all) {
        if (info.parentId == parentId)
            names.append(info.name);
    }
    names.sort();
    return names;
}

template <typename Widget>
Widget* child(const QWidget* window, const char* name)
{
    auto* found = window->findChild<Widget*>(QLatin1String(name));
    if (found == nullptr)
        qFatal("no %s", name);
    return found;
}

void click(const QWidget* window, const char* name)
{
    QTest::mouseClick(child<QPushButton>(window, name), Qt::LeftButton);
}

void typeName(const QWidget* window, const QString& name)
{
    auto* edit = child<QLineEdit>(window, "name");
    edit->selectAll();
    QTest::keyClicks(edit, name);
}

} // namespace

class tst_PersonMgrTree : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void needsASelection();
    void proposesTheFirstFreeName();
    void addsAndShowsTheNewOrganization();
    void addsOneAfterAnother();
    void limitsNamesTo20Characters();
    void refusesASiblingsName();
    void renames_data();
    void renames();
    void renamesUnderAnotherParentFreely();
    void doesNotDeleteTheRoot();
    void hidesTheDeleteButtonOfTheRoot();
    void doesNotDeleteWherePersonsAre();
    void deletesWhatIsConfirmed();
    void keepsWhatIsNotConfirmed();
    void deletesByTheButtonOfAnItem();
    void survivesAParentThatGoesMeanwhile();
    void survivesAnEditedItemThatGoesMeanwhile();

private:
    void select(const QString& id);
    TreeItemOperWt* buttonsOf(const QString& id);
    QString lastAlert() const { return m_alerts->isEmpty() ? QString() : m_alerts->last().at(1).toString(); }

    std::unique_ptr<TestStore> m_store;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<ModalDriver> m_modal;
    std::unique_ptr<QSignalSpy> m_alerts;
    PersonMgrTree* m_tree = nullptr;
    QString m_rootId;
};

void tst_PersonMgrTree::init()
{
    m_store = std::make_unique<TestStore>();
    m_window = std::make_unique<QWidget>();
    m_window->resize(300, 400);
    m_tree = new PersonMgrTree(m_window.get());
    m_tree->resize(m_window->size());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_modal = std::make_unique<ModalDriver>();
    m_alerts =
        std::make_unique<QSignalSpy>(&SystemAssistant::instance(), &SystemAssistant::signalMessageAlert);
    m_rootId = PersonData::instance().getRootOrganizationId();
    QVERIFY(m_tree->getOrganizationItem(m_rootId) != nullptr);
}

void tst_PersonMgrTree::cleanup()
{
    QCOMPARE(m_modal->pending(), 0);
    m_window.reset();
    m_store.reset();
}

void tst_PersonMgrTree::select(const QString& id)
{
    m_tree->setCurSelItem(m_tree->getOrganizationItem(id));
    QCOMPARE(m_tree->getCurSelOrganizationId(), id);
}

TreeItemOperWt* tst_PersonMgrTree::buttonsOf(const QString& id)
{
    select(id);
    return qobject_cast<TreeItemOperWt*>(m_tree->itemWidget(m_tree->getOrganizationItem(id), 0));
}

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

void tst_PersonMgrTree::doesNotDeleteTheRoot()
{
    select(m_rootId);
    m_tree->slotDeleteCurSelOrganization();
    QTRY_COMPARE(lastAlert(), QString("root organization can not be deleted"));
    QCOMPARE(PersonData::instance().getRootOrganizationId(), m_rootId);
}

void tst_PersonMgrTree::hidesTheDeleteButtonOfTheRoot()
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

void tst_PersonMgrTree::doesNotDeleteWherePersonsAre()
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

void tst_PersonMgrTree::deletesWhatIsConfirmed()
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

void tst_PersonMgrTree::keepsWhatIsNotConfirmed()
{
    select(addOrganization(m_rootId, "Sales"));
    m_modal->expect([](QWidget* window) { click(window, "cancelBt"); });
    m_tree->slotDeleteCurSelOrganization();
    m_modal->expect([](QWidget* window) { QTest::keyClick(window, Qt::Key_Escape); });
    m_tree->slotDeleteCurSelOrganization();
    QCOMPARE(childNames(m_rootId), QStringList{"Sales"});
}

void tst_PersonMgrTree::deletesByTheButtonOfAnItem()
{
    TreeItemOperWt* buttons = buttonsOf(addOrganization(m_rootId, "Sales"));
    QVERIFY(buttons != nullptr);
    m_modal->expect([](QWidget* window) { click(window, "okBt"); });
    click(buttons, "deleteBt"); // goes with its item
    QCOMPARE(childNames(m_rootId), QStringList());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
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
