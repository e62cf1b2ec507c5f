#include <qarn_base/AbilityDevsTree.h>
#include <qarn_base/TreeItem.h>

#include "DeviceStore.h"

#include <QSignalSpy>
#include <QtTest>

using qarn_base::AbilityDevsTree;
using qarn_data::DeviceRegistry;

using Channels = QList<QPair<QString, int>>;

class tst_AbilityDevsTree : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void showsWhatHasTheAbility();
    void asksForBothAbilities();
    void withoutBoxesWhenNotCheckable();
    void deviceBoxHasThreeStates();
    void checksByKeyAndMouse();
    void givesChannelsInTheOrderShown();
    void offlineIsShownAsSuch();
    void offlineIsLeftOutWhenAskedTo();
    void followsTheDevicesWithoutLosingChecks();
    void keepsSelectionAndFolding();
    void tellsWhyItIsEmpty();

private:
    std::unique_ptr<DeviceStore> m_store;
    std::unique_ptr<AbilityDevsTree> m_tree;
};

void tst_AbilityDevsTree::init()
{
    m_store = std::make_unique<DeviceStore>();
    m_store->add("gate", "Gate", {{1, "East", 16}, {2, "West", 48}, {3, "Camera", 32}});
    m_store->add("hall", "Hall", {{1, "", 16}});
    m_store->add("blind", "Blind", {{1, "None", 0}});
    m_tree = std::make_unique<AbilityDevsTree>();
    m_tree->resize(400, 300);
    m_tree->show();
    QVERIFY(QTest::qWaitForWindowActive(m_tree.get()));
}

void tst_AbilityDevsTree::cleanup()
{
    m_tree.reset();
    m_store.reset();
}

void tst_AbilityDevsTree::showsWhatHasTheAbility()
{
    QCOMPARE(m_tree->objectName(), QStringLiteral("treeWt"));
    m_tree->buildTree(16, 0, true, true);
    QCOMPARE(m_tree->topLevelItemCount(), 2);
    QCOMPARE(m_tree->topLevelItem(0)->text(0), QStringLiteral("Gate"));
    QCOMPARE(m_tree->topLevelItem(0)->childCount(), 2);
    QCOMPARE(m_tree->topLevelItem(0)->child(1)->text(0), QStringLiteral("West"));
    QCOMPARE(m_tree->topLevelItem(1)->child(0)->text(0), QStringLiteral("1"));
    QVERIFY(m_tree->topLevelItem(0)->isExpanded());
    QVERIFY(m_tree->getCheckedChannels().isEmpty());
}

void tst_AbilityDevsTree::asksForBothAbilities()
{
    m_tree->buildTree(16, 32, true, true);
    QCOMPARE(m_tree->topLevelItemCount(), 1);
    QCOMPARE(m_tree->topLevelItem(0)->childCount(), 1);
    QCOMPARE(m_tree->topLevelItem(0)->child(0)->text(0), QStringLiteral("West"));
}

void tst_AbilityDevsTree::withoutBoxesWhenNotCheckable()
{
    m_tree->buildTree(16, 0, true, false);
    QVERIFY(!m_tree->topLevelItem(0)->data(0, Qt::CheckStateRole).isValid());
    QVERIFY(!m_tree->topLevelItem(0)->child(0)->data(0, Qt::CheckStateRole).isValid());
}

void tst_AbilityDevsTree::deviceBoxHasThreeStates()
{
    m_tree->buildTree(16, 0, true, true);
    QTreeWidgetItem* gate = m_tree->topLevelItem(0);
    gate->child(0)->setCheckState(0, Qt::Checked);
    QCOMPARE(gate->checkState(0), Qt::PartiallyChecked);
    gate->child(1)->setCheckState(0, Qt::Checked);
    QCOMPARE(gate->checkState(0), Qt::Checked);
    gate->setCheckState(0, Qt::Unchecked);
    QCOMPARE(gate->child(0)->checkState(0), Qt::Unchecked);
    QVERIFY(m_tree->getCheckedChannels().isEmpty());
}

void tst_AbilityDevsTree::checksByKeyAndMouse()
{
    m_tree->buildTree(16, 0, true, true);
    QTreeWidgetItem* gate = m_tree->topLevelItem(0);
    m_tree->setCurSelItem(gate);
    QTest::keyClick(m_tree.get(), Qt::Key_Space);
    QCOMPARE(m_tree->getCheckedChannels(), (Channels{{"gate", 1}, {"gate", 2}}));
    QTest::keyClick(m_tree.get(), Qt::Key_Down);
    QTest::keyClick(m_tree.get(), Qt::Key_Space);
    QCOMPARE(m_tree->getCheckedChannels(), (Channels{{"gate", 2}}));

    const QRect row = m_tree->visualItemRect(gate->child(1));
    QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(row.left() + 9, row.center().y()));
    QVERIFY(m_tree->getCheckedChannels().isEmpty());
}

void tst_AbilityDevsTree::givesChannelsInTheOrderShown()
{
    m_tree->buildTree(16, 0, true, true);
    m_tree->topLevelItem(1)->setCheckState(0, Qt::Checked);
    m_tree->topLevelItem(0)->child(1)->setCheckState(0, Qt::Checked);
    m_tree->topLevelItem(0)->child(0)->setCheckState(0, Qt::Checked);
    QCOMPARE(m_tree->getCheckedChannels(), (Channels{{"gate", 1}, {"gate", 2}, {"hall", 1}}));
}

void tst_AbilityDevsTree::offlineIsShownAsSuch()
{
    m_tree->buildTree(16, 0, true, true);
    m_tree->topLevelItem(0)->child(0)->setCheckState(0, Qt::Checked);
    const QBrush before = m_tree->topLevelItem(0)->foreground(0);
    DeviceRegistry::instance().setReachability(QStringLiteral("gate"), DeviceRegistry::Reachability::Offline);
    QTRY_COMPARE(m_tree->topLevelItem(0)->text(0), QStringLiteral("Gate (offline)"));
    QVERIFY(m_tree->topLevelItem(0)->foreground(0) != before);
    QCOMPARE(m_tree->getCheckedChannels(), (Channels{{"gate", 1}}));
    DeviceRegistry::instance().setReachability(QStringLiteral("gate"), DeviceRegistry::Reachability::Online);
    QTRY_COMPARE(m_tree->topLevelItem(0)->text(0), QStringLiteral("Gate"));
    QCOMPARE(m_tree->getCheckedChannels(), (Channels{{"gate", 1}}));
}

void tst_AbilityDevsTree::offlineIsLeftOutWhenAskedTo()
{
    DeviceRegistry::instance().setReachability(QStringLiteral("gate"), DeviceRegistry::Reachability::Offline);
    m_tree->buildTree(16, 0, false, true);
    QCOMPARE(m_tree->topLevelItemCount(), 1);
    QCOMPARE(m_tree->topLevelItem(0)->text(0), QStringLiteral("Hall"));
}

void tst_AbilityDevsTree::followsTheDevicesWithoutLosingChecks()
{
    m_tree->buildTree(16, 0, true, true);
    m_tree->topLevelItem(0)->child(1)->setCheckState(0, Qt::Checked);
    m_store->add("roof", "Roof", {{7, "Door", 16}});
    QTRY_COMPARE(m_tree->topLevelItemCount(), 3);
    QCOMPARE(m_tree->getCheckedChannels(), (Channels{{"gate", 2}}));
    QVERIFY(DeviceRegistry::instance().removeDevice(QStringLiteral("gate")));
    QTRY_COMPARE(m_tree->topLevelItemCount(), 2);
    QVERIFY(m_tree->getCheckedChannels().isEmpty());
}

void tst_AbilityDevsTree::keepsSelectionAndFolding()
{
    m_tree->buildTree(16, 0, true, true);
    m_tree->topLevelItem(0)->setExpanded(false);
    m_tree->setCurSelItem(m_tree->topLevelItem(1)->child(0));
    m_store->add("roof", "Roof", {{7, "Door", 16}});
    QTRY_COMPARE(m_tree->topLevelItemCount(), 3);
    QVERIFY(!m_tree->topLevelItem(0)->isExpanded());
    QVERIFY(m_tree->topLevelItem(1)->isExpanded());
    QCOMPARE(m_tree->getCurSelTreeItem()->getParentId(), QStringLiteral("hall"));
}

void tst_AbilityDevsTree::tellsWhyItIsEmpty()
{
    m_tree->buildTree(1024, 0, true, true);
    QCOMPARE(m_tree->topLevelItemCount(), 0);
    const QString noAbility = m_tree->accessibleDescription();
    const QImage picture = m_tree->viewport()->grab().toImage();
    QVERIFY(!noAbility.isEmpty());
    for (const char* id : {"gate", "hall", "blind"})
        QVERIFY(DeviceRegistry::instance().removeDevice(QString::fromLatin1(id)));
    QTRY_VERIFY(m_tree->accessibleDescription() != noAbility);
    QVERIFY(!m_tree->accessibleDescription().isEmpty());
    QVERIFY(m_tree->viewport()->grab().toImage() != picture);
}

QTEST_MAIN(tst_AbilityDevsTree)
#include "tst_AbilityDevsTree.moc"
