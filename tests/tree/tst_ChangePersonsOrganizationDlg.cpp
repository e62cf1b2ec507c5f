#include "tree/ChangePersonsOrganizationDlg.h"

#include "TestStore.h"

#include <qarn_base/PersonTree.h>
#include <qarn_base/SearchBox.h>
#include <qarn_base/TreeItem.h>
#include <qarn_data/PersonData.h>
#include <qarn_worker/SystemAssistant.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using namespace qarn_personMgr;
using qarn_base::PersonTree;
using qarn_data::PersonData;
using qarn_worker::SystemAssistant;

class tst_ChangePersonsOrganizationDlg : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void hasItsWidgets();
    void keepsNobodyByDefault();
    void staysOpenWithoutAnOrganization();
    void acceptsAnOrganization();
    void changesNothingItself();
    void rejects();
    void keepsKeysInTheSearch_data();
    void keepsKeysInTheSearch();
    void filtersTheTree();

private:
    template <class T>
    T* child(const char* name) const
    {
        return m_dialog->findChild<T*>(QLatin1String(name));
    }
    PersonTree* tree() const { return child<PersonTree>("treeWidget"); }

    std::unique_ptr<TestStore> m_store;
    std::unique_ptr<ChangePersonsOrganizationDlg> m_dialog;
    QString m_root;
};

void tst_ChangePersonsOrganizationDlg::init()
{
    m_store = std::make_unique<TestStore>();
    m_root = PersonData::instance().getRootOrganizationId();
    QVERIFY(PersonData::instance().addOrganization({"east", m_root, "East"}));
    QVERIFY(PersonData::instance().addOrganization({"west", m_root, "West"}));
    m_dialog = std::make_unique<ChangePersonsOrganizationDlg>(nullptr);
    m_dialog->show();
    m_dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void tst_ChangePersonsOrganizationDlg::cleanup()
{
    m_dialog.reset();
    m_store.reset();
}

void tst_ChangePersonsOrganizationDlg::hasItsWidgets()
{
    QCOMPARE(m_dialog->objectName(), QStringLiteral("qarn_personMgr__ChangePersonsOrganizationDlg"));
    QCOMPARE(m_dialog->size(), QSize(643, 540));
    QCOMPARE(m_dialog->minimumSize(), m_dialog->maximumSize());
    QCOMPARE(child<QLabel>("title")->text(), QStringLiteral("Change Persons Organization"));
    QCOMPARE(child<QLabel>("label")->text(), QStringLiteral("Organization Name"));
    QCOMPARE(child<QLabel>("label")->height(), 28);
    QCOMPARE(child<QWidget>("searchWt")->size(), QSize(334, 28));
    QCOMPARE(tree()->size(), QSize(334, 330));
    QVERIFY(tree()->isHeaderHidden());
    QCOMPARE(tree()->iconSize(), QSize(16, 16));
    QCOMPARE(tree()->styleSheet(),
             QStringLiteral("QTreeWidget{background-color:#0e1622;border-radius:2px;}"));
    QCOMPARE(child<QCheckBox>("retainOld")->text(), QStringLiteral("Remove from the original organization"));
    QCOMPARE(child<QPushButton>("okBt")->text(), QStringLiteral("Ok"));
    QCOMPARE(child<QPushButton>("okBt")->size(), QSize(96, 28));
    QVERIFY(child<QPushButton>("okBt")->property("common_bt_style1").toBool());
    QCOMPARE(child<QPushButton>("cancelBt")->text(), QStringLiteral("Cancel"));
    QCOMPARE(child<QPushButton>("cancelBt")->size(), QSize(96, 28));
    QVERIFY(child<QPushButton>("cancelBt")->property("common_bt_style2").toBool());
}

void tst_ChangePersonsOrganizationDlg::keepsNobodyByDefault()
{
    QVERIFY(child<QCheckBox>("retainOld")->isChecked());
    QVERIFY(!m_dialog->isRetainOld());
    child<QCheckBox>("retainOld")->click();
    QVERIFY(m_dialog->isRetainOld());
}

void tst_ChangePersonsOrganizationDlg::staysOpenWithoutAnOrganization()
{
    QSignalSpy alerts(&SystemAssistant::instance(), &SystemAssistant::signalMessageAlert);
    QCOMPARE(m_dialog->getSelOrganizationId(), QString());
    QTest::mouseClick(child<QPushButton>("okBt"), Qt::LeftButton);
    QTRY_COMPARE(alerts.count(), 1);
    QCOMPARE(alerts.first().at(1).toString(), QStringLiteral("Please Select organization to move persons"));
    QVERIFY(m_dialog->isVisible());
}

void tst_ChangePersonsOrganizationDlg::acceptsAnOrganization()
{
    QTreeWidgetItem* item = tree()->getOrganizationItem("west");
    tree()->expandItemToRootItem(item);
    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, tree()->visualItemRect(item).center());
    QCOMPARE(m_dialog->getSelOrganizationId(), QStringLiteral("west"));
    QTest::mouseClick(child<QPushButton>("okBt"), Qt::LeftButton);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(m_dialog->getSelOrganizationId(), QStringLiteral("west"));
}

void tst_ChangePersonsOrganizationDlg::changesNothingItself()
{
    qarn_data::PersonInfo person;
    person.id = QStringLiteral("1");
    person.organizationId = QStringLiteral("east");
    QVERIFY(PersonData::instance().addPersons({person}));
    tree()->setCurSelItem(tree()->getOrganizationItem("west"));
    QTest::mouseClick(child<QPushButton>("okBt"), Qt::LeftButton);
    QCOMPARE(PersonData::instance().getPersons({"east"}, false).count(), 1);
    QVERIFY(PersonData::instance().getPersons({"west"}, false).isEmpty());
}

void tst_ChangePersonsOrganizationDlg::rejects()
{
    tree()->setCurSelItem(tree()->getOrganizationItem("west"));
    QTest::mouseClick(child<QPushButton>("cancelBt"), Qt::LeftButton);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    m_dialog->show();
    child<QPushButton>("okBt")->setFocus();
    QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    QVERIFY(!m_dialog->isVisible());
}

void tst_ChangePersonsOrganizationDlg::keepsKeysInTheSearch_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
}

void tst_ChangePersonsOrganizationDlg::keepsKeysInTheSearch()
{
    QFETCH(int, key);
    tree()->setCurSelItem(tree()->getOrganizationItem("west"));
    auto* edit = child<QLineEdit>("searchLineEt");
    edit->setFocus();
    QTRY_VERIFY(child<qarn_base::SearchBox>("searchWt")->searchLineEtHasFocus());
    QTest::keyClick(edit, static_cast<Qt::Key>(key));
    QVERIFY(m_dialog->isVisible());
}

void tst_ChangePersonsOrganizationDlg::filtersTheTree()
{
    QTest::keyClicks(child<QLineEdit>("searchLineEt"), "west");
    QTRY_VERIFY(tree()->getOrganizationItem("east")->isHidden());
    QVERIFY(!tree()->getOrganizationItem("west")->isHidden());
    QTest::qWait(300); // the clear button fades in; Qt leaks that animation when the field goes meanwhile
}

QTEST_MAIN(tst_ChangePersonsOrganizationDlg)
#include "tst_ChangePersonsOrganizationDlg.moc"
