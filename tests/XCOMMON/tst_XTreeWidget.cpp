#include <XCOMMON/XTreeWidget.h>

#include <QSignalSpy>
#include <QtTest>

Q_DECLARE_METATYPE(QTreeWidgetItem*)

using XCOMMON::XTreeWidget;

namespace
{

QTreeWidgetItem* changed(const QSignalSpy& spy, int call, int argument)
{
    return spy.at(call).at(argument).value<QTreeWidgetItem*>();
}

} // namespace

/// Two branches of two leaves each, unfolded and on screen.
struct ShownTree : XTreeWidget {
    QTreeWidgetItem* branch[2];
    QTreeWidgetItem* leaf[4];

    ShownTree()
    {
        for (int b = 0; b < 2; ++b) {
            branch[b] = new QTreeWidgetItem(this, {QStringLiteral("branch %1").arg(b)});
            for (int l = 0; l < 2; ++l)
                leaf[2 * b + l] = new QTreeWidgetItem(branch[b], {QStringLiteral("leaf %1").arg(2 * b + l)});
        }
        expandAll();
        resize(300, 300);
        show();
    }
    void click(QTreeWidgetItem* item, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseClick(viewport(), Qt::LeftButton, modifiers, visualItemRect(item).center());
    }
};

class tst_XTreeWidget : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { qRegisterMetaType<QTreeWidgetItem*>(); }
    void reportsNewAndOldItem();
    void clearsTheSelection();
    void reportsEachChangeOnce();
    void ignoresItemsOfOtherTrees();
    void expandsAllAncestors();
    void keepsAHiddenSelection();
    void reportsARemovedSelection_data();
    void reportsARemovedSelection();
    void selectsNothingInPlaceOfARemovedCurrentItem();
    void reportsClearing();
    void movesWithTheArrows();
    void checksWithSpace_data();
    void checksWithSpace();
    void leavesReturnToTheDialog();
    void doesNotDrag();
};

void tst_XTreeWidget::reportsNewAndOldItem()
{
    ShownTree tree;
    QSignalSpy spy(&tree, &XTreeWidget::signalCurSelItemChanged);
    QCOMPARE(tree.getCurSelItem(), nullptr);
    tree.click(tree.leaf[0]);
    tree.click(tree.leaf[3]);
    tree.setCurSelItem(tree.branch[1]);
    QCOMPARE(spy.count(), 3);
    QCOMPARE(changed(spy, 0, 0), tree.leaf[0]);
    QCOMPARE(changed(spy, 0, 1), nullptr);
    QCOMPARE(changed(spy, 1, 0), tree.leaf[3]);
    QCOMPARE(changed(spy, 1, 1), tree.leaf[0]);
    QCOMPARE(changed(spy, 2, 0), tree.branch[1]);
    QCOMPARE(changed(spy, 2, 1), tree.leaf[3]);
    QCOMPARE(tree.getCurSelItem(), tree.branch[1]);
}

void tst_XTreeWidget::clearsTheSelection()
{
    ShownTree tree;
    tree.click(tree.leaf[1]);
    QSignalSpy spy(&tree, &XTreeWidget::signalCurSelItemChanged);
    tree.setCurSelItem(nullptr);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(changed(spy, 0, 0), nullptr);
    QCOMPARE(changed(spy, 0, 1), tree.leaf[1]);
    QCOMPARE(tree.getCurSelItem(), nullptr);
    QCOMPARE(tree.currentItem(), nullptr);
    QVERIFY(tree.selectedItems().isEmpty());

    tree.click(tree.leaf[1]);
    tree.click(tree.leaf[1], Qt::ControlModifier);
    QCOMPARE(tree.getCurSelItem(), nullptr);
    QCOMPARE(changed(spy, 2, 1), tree.leaf[1]);
}

void tst_XTreeWidget::reportsEachChangeOnce()
{
    ShownTree tree;
    QSignalSpy spy(&tree, &XTreeWidget::signalCurSelItemChanged);
    tree.setCurSelItem(nullptr);
    QCOMPARE(spy.count(), 0);
    tree.setCurSelItem(tree.leaf[0]);
    tree.setCurSelItem(tree.leaf[0]);
    tree.click(tree.leaf[0]);
    QCOMPARE(spy.count(), 1);
}

void tst_XTreeWidget::ignoresItemsOfOtherTrees()
{
    ShownTree tree;
    ShownTree other;
    QTreeWidgetItem loose({QStringLiteral("loose")});
    tree.setCurSelItem(tree.leaf[2]);
    tree.setCurSelItem(other.leaf[0]);
    tree.setCurSelItem(&loose);
    QCOMPARE(tree.getCurSelItem(), tree.leaf[2]);
    QCOMPARE(other.getCurSelItem(), nullptr);
}

void tst_XTreeWidget::expandsAllAncestors()
{
    XTreeWidget tree;
    auto* top = new QTreeWidgetItem(&tree, {QStringLiteral("top")});
    auto* middle = new QTreeWidgetItem(top, {QStringLiteral("middle")});
    auto* bottom = new QTreeWidgetItem(middle, {QStringLiteral("bottom")});
    new QTreeWidgetItem(bottom, {QStringLiteral("below")});
    tree.expandItemToRootItem(bottom);
    QVERIFY(top->isExpanded());
    QVERIFY(middle->isExpanded());
    QVERIFY(!bottom->isExpanded());
    tree.expandItemToRootItem(nullptr);
}

void tst_XTreeWidget::keepsAHiddenSelection()
{
    ShownTree tree;
    tree.setCurSelItem(tree.leaf[0]);
    QSignalSpy spy(&tree, &XTreeWidget::signalCurSelItemChanged);
    tree.leaf[0]->setHidden(true);
    QCOMPARE(tree.getCurSelItem(), tree.leaf[0]);
    tree.leaf[0]->setHidden(false);
    tree.setCurSelItem(tree.leaf[1]);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(changed(spy, 0, 1), tree.leaf[0]);
}

void tst_XTreeWidget::reportsARemovedSelection_data()
{
    QTest::addColumn<int>("selected"); ///< a leaf
    QTest::addColumn<bool>("removeBranch");
    QTest::newRow("first leaf") << 0 << false;
    QTest::newRow("last leaf") << 3 << false;
    QTest::newRow("its branch") << 1 << true;
}

void tst_XTreeWidget::reportsARemovedSelection()
{
    QFETCH(int, selected);
    QFETCH(bool, removeBranch);
    ShownTree tree;
    tree.click(tree.leaf[selected]);
    QSignalSpy spy(&tree, &XTreeWidget::signalCurSelItemChanged);
    bool gone = false; // while the report is made
    const QString name = removeBranch ? QStringLiteral("branch 0") : tree.leaf[selected]->text(0);
    connect(&tree, &XTreeWidget::signalCurSelItemChanged, this,
            [&] { gone = tree.findItems(name, Qt::MatchExactly | Qt::MatchRecursive).isEmpty(); });
    delete (removeBranch ? tree.branch[0] : tree.leaf[selected]);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(changed(spy, 0, 0), nullptr);
    QCOMPARE(changed(spy, 0, 1), nullptr);
    QVERIFY(gone);
    QCOMPARE(tree.getCurSelItem(), nullptr);

    tree.click(tree.branch[1]);
    QCOMPARE(spy.count(), 2);
    QCOMPARE(changed(spy, 1, 0), tree.branch[1]);
    QCOMPARE(changed(spy, 1, 1), nullptr);
    tree.setCurSelItem(nullptr);
    delete tree.branch[1];
    QCOMPARE(spy.count(), 3);
}

void tst_XTreeWidget::selectsNothingInPlaceOfARemovedCurrentItem()
{
    ShownTree tree;
    tree.click(tree.leaf[0]);
    tree.click(tree.leaf[0], Qt::ControlModifier); // current, but no longer selected
    QCOMPARE(tree.currentItem(), tree.leaf[0]);
    QSignalSpy spy(&tree, &XTreeWidget::signalCurSelItemChanged);
    delete tree.leaf[0];
    QCOMPARE(tree.getCurSelItem(), nullptr);
    QCOMPARE(spy.count(), 0);

    tree.click(tree.leaf[3]);
    delete tree.branch[0]; // another one goes
    QCOMPARE(tree.getCurSelItem(), tree.leaf[3]);
    QCOMPARE(spy.count(), 1);
}

void tst_XTreeWidget::reportsClearing()
{
    ShownTree tree;
    tree.click(tree.leaf[2]);
    QSignalSpy spy(&tree, &XTreeWidget::signalCurSelItemChanged);
    tree.clear();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(changed(spy, 0, 0), nullptr);
    QCOMPARE(tree.getCurSelItem(), nullptr);
}

void tst_XTreeWidget::movesWithTheArrows()
{
    ShownTree tree;
    tree.setCurSelItem(tree.branch[0]);
    QTest::keyClick(&tree, Qt::Key_Down);
    QCOMPARE(tree.getCurSelItem(), tree.leaf[0]);
    QTest::keyClick(&tree, Qt::Key_Up);
    QCOMPARE(tree.getCurSelItem(), tree.branch[0]);
    QTest::keyClick(&tree, Qt::Key_Left);
    QVERIFY(!tree.branch[0]->isExpanded());
    QTest::keyClick(&tree, Qt::Key_Right);
    QVERIFY(tree.branch[0]->isExpanded());
    QTest::keyClick(&tree, Qt::Key_End);
    QCOMPARE(tree.getCurSelItem(), tree.leaf[3]);
}

void tst_XTreeWidget::checksWithSpace_data()
{
    QTest::addColumn<Qt::CheckState>("before");
    QTest::addColumn<Qt::CheckState>("after");
    QTest::newRow("unchecked") << Qt::Unchecked << Qt::Checked;
    QTest::newRow("partly") << Qt::PartiallyChecked << Qt::Checked;
    QTest::newRow("checked") << Qt::Checked << Qt::Unchecked;
}

void tst_XTreeWidget::checksWithSpace()
{
    QFETCH(Qt::CheckState, before);
    QFETCH(Qt::CheckState, after);
    ShownTree tree;
    tree.leaf[0]->setCheckState(0, before);
    tree.setCurSelItem(tree.leaf[0]);
    QTest::keyClick(&tree, Qt::Key_Space);
    QCOMPARE(tree.leaf[0]->checkState(0), after);
    QCOMPARE(tree.getCurSelItem(), tree.leaf[0]);

    tree.leaf[0]->setFlags(Qt::ItemIsSelectable | Qt::ItemIsUserCheckable); // disabled
    QTest::keyClick(&tree, Qt::Key_Space);
    QCOMPARE(tree.leaf[0]->checkState(0), after);

    tree.setCurSelItem(tree.leaf[1]); // has no box
    QTest::keyClick(&tree, Qt::Key_Space);
    QVERIFY(!tree.leaf[1]->data(0, Qt::CheckStateRole).isValid());
}

void tst_XTreeWidget::leavesReturnToTheDialog()
{
    struct Parent : QWidget {
        int returns = 0;
        void keyPressEvent(QKeyEvent* event) override { returns += event->key() == Qt::Key_Return ? 1 : 0; }
    } parent;
    auto* tree = new XTreeWidget(&parent);
    tree->setCurSelItem(new QTreeWidgetItem(tree, {QStringLiteral("item")}));
    parent.show();
    QTest::keyClick(tree, Qt::Key_Return);
    QCOMPARE(parent.returns, 1);
}

void tst_XTreeWidget::doesNotDrag()
{
    struct DragTree : XTreeWidget {
        using XTreeWidget::startDrag;
    } tree;
    QVERIFY(!tree.dragEnabled());
    tree.setCurSelItem(new QTreeWidgetItem(&tree, {QStringLiteral("item")}));
    tree.startDrag(Qt::MoveAction); // would wait for a drop
    QCOMPARE(tree.topLevelItemCount(), 1);
}

QTEST_MAIN(tst_XTreeWidget)
#include "tst_XTreeWidget.moc"
