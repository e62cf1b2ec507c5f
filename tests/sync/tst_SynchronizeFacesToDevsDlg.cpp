#include "ModalDriver.h"
#include "TestStore.h"
#include "sync/SynchronizeFacesToDevsDlg.h"

#include <qarn_base/AbilityDevsTree.h>
#include <qarn_data/DeviceRegistry.h>
#include <qarn_worker/DictDef.h>
#include <qarn_worker/SystemAssistant.h>

#include <QRadioButton>
#include <QSignalSpy>
#include <QtTest>

using qarn_base::AbilityDevsTree;
using qarn_personMgr::SynchronizeFacesToDevsDlg;
using qarn_worker::DictDef;
using qarn_worker::SystemAssistant;

class tst_SynchronizeFacesToDevsDlg : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void opensWithItsDefaults();
    void hasTheFormsNames();
    void switchingTheSourceHidesTheChildren();
    void aSecondClickKeepsTheSource();
    void noChannelKeepsItOpen();
    void checkedChannelsAreAccepted();
    void cancelRejects();

private:
    template <typename Widget>
    static Widget* find(SynchronizeFacesToDevsDlg& dialog, const char* name)
    {
        return dialog.findChild<Widget*>(QLatin1String(name));
    }

    TestStore m_store;
};

void tst_SynchronizeFacesToDevsDlg::initTestCase()
{
    using qarn_data::FaceListAbility;
    qarn_data::Device device;
    device.id = "d1";
    device.name = "Gate";
    device.address = QUrl("http://127.0.0.1:1");
    device.channels = {{1, "In", FaceListAbility}, {2, "Out", FaceListAbility}, {3, "Video only", 1}};
    QVERIFY(qarn_data::DeviceRegistry::instance().saveDevice(device));
}

void tst_SynchronizeFacesToDevsDlg::opensWithItsDefaults()
{
    SynchronizeFacesToDevsDlg dialog(nullptr);
    dialog.show();
    QCOMPARE(dialog.size(), QSize(663, 540));
    QVERIFY(dialog.isOrganizationMode());
    QVERIFY(dialog.isSyncChildren());
    QVERIFY(!dialog.isDeleteRemoved());
    QVERIFY(find<QCheckBox>(dialog, "syncChildrenChecked")->isVisible());
    QVERIFY(find<QRadioButton>(dialog, "organizationChecked")->isChecked());
    QVERIFY(dialog.getCheckedChannels().isEmpty());
    QCOMPARE(find<QLabel>(dialog, "title")->text(), QString("Synchronize faces to Devs"));
}

void tst_SynchronizeFacesToDevsDlg::hasTheFormsNames()
{
    SynchronizeFacesToDevsDlg dialog(nullptr);
    QCOMPARE(dialog.objectName(), QString("qarn_personMgr__SynchronizeFacesToDevsDlg"));
    QCOMPARE(find<QLabel>(dialog, "label")->text(), QString("Synchronize"));
    QCOMPARE(find<QLabel>(dialog, "label_2")->text(), QString("Dev Sel"));
    QCOMPARE(find<QRadioButton>(dialog, "personsChecked")->text(), QString("Checked Presons"));
    QCOMPARE(find<QRadioButton>(dialog, "organizationChecked")->text(), QString("Sel Organization"));
    QCOMPARE(find<QCheckBox>(dialog, "syncChildrenChecked")->text(), QString("Child org persons"));
    QCOMPARE(find<QCheckBox>(dialog, "deleteChecked")->text(),
             QString("Delete Persons that deleted from dvx4700 platform"));
    auto* synchronizeBt = find<QPushButton>(dialog, "synchronizeBt");
    QCOMPARE(synchronizeBt->property("common_bt_style1").toBool(), true);
    QCOMPARE(find<QPushButton>(dialog, "cancelBt")->property("common_bt_style2").toBool(), true);
    dialog.show();
    QCOMPARE(synchronizeBt->size(), QSize(96, 28));
    QCOMPARE(find<AbilityDevsTree>(dialog, "treeWt")->size(), QSize(424, 273));
    QCOMPARE(find<QWidget>(dialog, "widget")->width(), 424);
    QCOMPARE(find<QLabel>(dialog, "label")->height(), 28);
}

void tst_SynchronizeFacesToDevsDlg::switchingTheSourceHidesTheChildren()
{
    SynchronizeFacesToDevsDlg dialog(nullptr);
    dialog.show();
    auto* children = find<QCheckBox>(dialog, "syncChildrenChecked");
    auto* persons = find<QRadioButton>(dialog, "personsChecked");
    auto* organization = find<QRadioButton>(dialog, "organizationChecked");
    persons->click();
    QVERIFY(!dialog.isOrganizationMode());
    QVERIFY(!organization->isChecked());
    QVERIFY(!children->isVisible());
    QVERIFY(dialog.isSyncChildren());
    organization->click();
    QVERIFY(dialog.isOrganizationMode());
    QVERIFY(!persons->isChecked());
    QVERIFY(children->isVisible());
}

void tst_SynchronizeFacesToDevsDlg::aSecondClickKeepsTheSource()
{
    SynchronizeFacesToDevsDlg dialog(nullptr);
    find<QRadioButton>(dialog, "personsChecked")->click();
    find<QRadioButton>(dialog, "personsChecked")->click();
    QVERIFY(!dialog.isOrganizationMode());
    QVERIFY(find<QRadioButton>(dialog, "personsChecked")->isChecked());
}

void tst_SynchronizeFacesToDevsDlg::noChannelKeepsItOpen()
{
    SynchronizeFacesToDevsDlg dialog(nullptr);
    dialog.show();
    QSignalSpy alerts(&SystemAssistant::instance(), &SystemAssistant::signalMessageAlert);
    find<QPushButton>(dialog, "synchronizeBt")->click();
    QTRY_COMPARE(alerts.count(), 1);
    QCOMPARE(alerts.first().at(0).toString(), DictDef::instance().warningAlertTitle);
    QCOMPARE(alerts.first().at(1).toString(), QString("Please Check whick devs to synchronize"));
    QVERIFY(dialog.isVisible());
}

void tst_SynchronizeFacesToDevsDlg::checkedChannelsAreAccepted()
{
    SynchronizeFacesToDevsDlg dialog(nullptr);
    auto* tree = find<AbilityDevsTree>(dialog, "treeWt");
    QCOMPARE(tree->topLevelItemCount(), 1);
    QTreeWidgetItem* device = tree->topLevelItem(0);
    QCOMPARE(device->childCount(), 2);
    ModalDriver driver;
    driver.expect([&](QWidget*) {
        device->child(1)->setCheckState(0, Qt::Checked);
        find<QPushButton>(dialog, "synchronizeBt")->click();
    });
    QCOMPARE(dialog.exec(), int(QDialog::Accepted));
    QCOMPARE(dialog.getCheckedChannels(), (QList<QPair<QString, int>>{{"d1", 2}}));
}

void tst_SynchronizeFacesToDevsDlg::cancelRejects()
{
    SynchronizeFacesToDevsDlg dialog(nullptr);
    ModalDriver driver;
    driver.expect([&](QWidget*) { find<QPushButton>(dialog, "cancelBt")->click(); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
}

QTEST_MAIN(tst_SynchronizeFacesToDevsDlg)
#include "tst_SynchronizeFacesToDevsDlg.moc"
