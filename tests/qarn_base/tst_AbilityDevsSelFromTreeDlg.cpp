#include <qarn_base/AbilityDevsSelFromTreeDlg.h>
#include <qarn_base/AbilityDevsTree.h>

#include "DeviceStore.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

using qarn_base::AbilityDevsSelFromTreeDlg;
using qarn_base::AbilityDevsTree;

using Channels = QList<QPair<QString, int>>;

class tst_AbilityDevsSelFromTreeDlg : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void showsItsTexts();
    void okWithoutChecksStaysAndTellsWhy();
    void okWithAChannelAccepts();
    void cancelRejects();

private:
    QPushButton* button(const char* name) const
    {
        return m_dialog->findChild<QPushButton*>(QString::fromLatin1(name));
    }
    QLabel* reason() const { return m_dialog->findChild<QLabel*>(QStringLiteral("reason")); }

    std::unique_ptr<DeviceStore> m_store;
    std::unique_ptr<AbilityDevsSelFromTreeDlg> m_dialog;
    AbilityDevsTree* m_tree = nullptr;
};

void tst_AbilityDevsSelFromTreeDlg::init()
{
    m_store = std::make_unique<DeviceStore>();
    m_store->add("gate", "Gate", {{1, "East", 16}, {2, "West", 16}});
    m_dialog = std::make_unique<AbilityDevsSelFromTreeDlg>(
        nullptr, 16, 0, true, QStringLiteral("Synchronize faces from Devs"), QStringLiteral("Please Check"),
        QStringLiteral("Synchronize"));
    m_tree = m_dialog->findChild<AbilityDevsTree*>(QStringLiteral("treeWt"));
    QVERIFY(m_tree != nullptr);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void tst_AbilityDevsSelFromTreeDlg::cleanup()
{
    m_dialog.reset();
    m_store.reset();
}

void tst_AbilityDevsSelFromTreeDlg::showsItsTexts()
{
    QCOMPARE(m_dialog->findChild<QLabel*>(QStringLiteral("title"))->text(),
             QStringLiteral("Synchronize faces from Devs"));
    QCOMPARE(button("okBt")->text(), QStringLiteral("Synchronize"));
    bool prompted = false;
    for (const QLabel* label : m_dialog->findChildren<QLabel*>())
        prompted = prompted || label->text() == QStringLiteral("Please Check");
    QVERIFY(prompted);
    QCOMPARE(m_tree->topLevelItemCount(), 1);
}

void tst_AbilityDevsSelFromTreeDlg::okWithoutChecksStaysAndTellsWhy()
{
    QTest::mouseClick(button("okBt"), Qt::LeftButton);
    QVERIFY(m_dialog->isVisible());
    QVERIFY(!reason()->text().isEmpty());
    QVERIFY(m_tree->hasFocus());
    QTest::keyClick(m_tree, Qt::Key_Down);
    QTest::keyClick(m_tree, Qt::Key_Space);
    QVERIFY(reason()->text().isEmpty());
}

void tst_AbilityDevsSelFromTreeDlg::okWithAChannelAccepts()
{
    m_tree->topLevelItem(0)->child(1)->setCheckState(0, Qt::Checked);
    QTest::mouseClick(button("okBt"), Qt::LeftButton);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(m_dialog->getCheckedChannels(), (Channels{{"gate", 2}}));
}

void tst_AbilityDevsSelFromTreeDlg::cancelRejects()
{
    m_tree->topLevelItem(0)->setCheckState(0, Qt::Checked);
    QTest::mouseClick(button("cancelBt"), Qt::LeftButton);
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QVERIFY(!m_dialog->isVisible());
}

QTEST_MAIN(tst_AbilityDevsSelFromTreeDlg)
#include "tst_AbilityDevsSelFromTreeDlg.moc"
