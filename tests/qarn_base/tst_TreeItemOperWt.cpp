#include <qarn_base/TreeItemOperWt.h>

#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using qarn_base::TreeItemOperWt;

class tst_TreeItemOperWt : public QObject
{
    Q_OBJECT
private slots:
    void showsWhatIsAskedFor_data();
    void showsWhatIsAskedFor();
    void reportsClicks();
};

static QPushButton* button(const QWidget& in, const char* name)
{
    return in.findChild<QPushButton*>(QString::fromLatin1(name));
}

void tst_TreeItemOperWt::showsWhatIsAskedFor_data()
{
    QTest::addColumn<bool>("isRoot");
    QTest::addColumn<bool>("add");
    QTest::addColumn<bool>("edit");
    QTest::addColumn<bool>("remove");
    QTest::addColumn<bool>("deleteShown");
    QTest::newRow("an organization") << false << false << true << true << true;
    QTest::newRow("the root") << true << false << true << true << false;
    QTest::newRow("all") << false << true << true << true << true;
    QTest::newRow("none") << false << false << false << false << false;
}

void tst_TreeItemOperWt::showsWhatIsAskedFor()
{
    QFETCH(bool, isRoot);
    QFETCH(bool, add);
    QFETCH(bool, edit);
    QFETCH(bool, remove);
    TreeItemOperWt buttons(isRoot, add, edit, remove, nullptr);
    buttons.show();
    QCOMPARE(button(buttons, "addBt")->isVisible(), add);
    QCOMPARE(button(buttons, "editBt")->isVisible(), edit);
    QTEST(button(buttons, "deleteBt")->isVisible(), "deleteShown");
}

void tst_TreeItemOperWt::reportsClicks()
{
    TreeItemOperWt buttons(false, true, true, true, nullptr);
    buttons.show();
    QSignalSpy add(&buttons, &TreeItemOperWt::signalAddBtClicked);
    QSignalSpy edit(&buttons, &TreeItemOperWt::signalEditBtClicked);
    QSignalSpy remove(&buttons, &TreeItemOperWt::signalDeleteBtClicked);
    QTest::mouseClick(button(buttons, "editBt"), Qt::LeftButton);
    QCOMPARE(edit.count(), 1);
    QTest::mouseClick(button(buttons, "deleteBt"), Qt::LeftButton);
    QCOMPARE(remove.count(), 1);
    QTest::mouseClick(button(buttons, "addBt"), Qt::LeftButton);
    QCOMPARE(add.count(), 1);
    QCOMPARE(edit.count() + remove.count(), 2);
}

QTEST_MAIN(tst_TreeItemOperWt)
#include "tst_TreeItemOperWt.moc"
