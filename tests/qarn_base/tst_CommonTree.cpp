#include <qarn_base/CommonTree.h>
#include <qarn_base/TreeConfig.h>
#include <qarn_base/TreeItem.h>
#include <qarn_base/TreeItemOperWt.h>

#include <QAbstractItemModelTester>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

using qarn_base::CommonTree;
using qarn_base::TreeConfig;
using qarn_base::TreeItem;
using qarn_base::TreeItemOperWt;

/// Makes buttons as a page does; the item "root" is the root.
class ButtonTree : public CommonTree
{
public:
    using CommonTree::CommonTree;

    int made = 0;
    QStringList edited;
    QStringList deleted;
    std::function<void()> onEdit;

protected:
    TreeItemOperWt* createTreeItemOperWt(TreeItem* item) override
    {
        ++made;
        auto* buttons =
            new TreeItemOperWt(item->getId() == QStringLiteral("root"), false, true, true, nullptr);
        connect(buttons, &TreeItemOperWt::signalEditBtClicked, this, [this, item] {
            edited.append(item->getId());
            if (onEdit)
                onEdit();
        });
        connect(buttons, &TreeItemOperWt::signalDeleteBtClicked, this,
                [this, item] { deleted.append(item->getId()); });
        return buttons;
    }
};

class tst_CommonTree : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup()
    {
        m_tester.reset();
        m_tree.reset();
    }

    void nothingIsSelectedAtFirst();
    void selectionCanBeCleared();
    void collectsIdsRecursively();
    void collectsCheckedIdsOnly();
    void findsItemsById();
    void forgetsItemsHoweverTheyGo();
    void moveKeepsExpansionAndSelection();
    void moveBelowItselfIsRefused();
    void buttonsAppearOnHover();
    void buttonsStayOnTheSelectedItem();
    void buttonsAreMadeForFewItemsOnly();
    void noHoverWithoutMouseTracking();
    void clickOnAHoverButton();
    void clickBesideTheButtonsSelects();
    void itemMayGoWhileItsButtonIsPressed();
    void keysPressTheButtons();
    void deleteKeySparesTheRoot();
    void keysWithoutSelectionDoNothing();

private:
    TreeItem* add(const QString& id, TreeItem* parent) const
    {
        auto* item = new TreeItem(id, parent != nullptr ? parent->getId() : QString(),
                                  QStringLiteral("Name of ") + id);
        m_tree->addTreeItem(item, parent);
        return item;
    }
    void hover(QTreeWidgetItem* item) const;
    QPushButton* button(QTreeWidgetItem* item, const char* name) const;

    std::unique_ptr<ButtonTree> m_tree;
    std::unique_ptr<QAbstractItemModelTester> m_tester;
    TreeItem* m_root = nullptr;
    TreeItem* m_a = nullptr;
    TreeItem* m_b = nullptr;
    TreeItem* m_a1 = nullptr;
};

void tst_CommonTree::init()
{
    m_tree = std::make_unique<ButtonTree>();
    m_tree->setMouseTracking(true);
    m_tester = std::make_unique<QAbstractItemModelTester>(
        m_tree->model(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    m_root = add(QStringLiteral("root"), nullptr);
    m_a = add(QStringLiteral("a"), m_root);
    m_a1 = add(QStringLiteral("a1"), m_a);
    m_b = add(QStringLiteral("b"), m_root);
    m_tree->resize(300, 300);
    m_tree->expandAll();
    m_tree->show();
    QVERIFY(QTest::qWaitForWindowActive(m_tree.get()));
}

void tst_CommonTree::hover(QTreeWidgetItem* item) const
{
    const QPoint at(m_tree->viewport()->width() / 2, m_tree->visualItemRect(item).center().y());
    QTest::mouseMove(m_tree->windowHandle(), m_tree->viewport()->mapTo(m_tree.get(), at));
}

QPushButton* tst_CommonTree::button(QTreeWidgetItem* item, const char* name) const
{
    const QWidget* buttons = m_tree->itemWidget(item, 0);
    return buttons == nullptr ? nullptr : buttons->findChild<QPushButton*>(QString::fromLatin1(name));
}

void tst_CommonTree::nothingIsSelectedAtFirst()
{
    QVERIFY(m_tree->getCurSelTreeItem() == nullptr);
}

void tst_CommonTree::selectionCanBeCleared()
{
    m_tree->setCurSelItem(m_a);
    QCOMPARE(m_tree->getCurSelTreeItem(), m_a);
    m_tree->setCurSelItem(nullptr);
    QVERIFY(m_tree->getCurSelTreeItem() == nullptr);
}

void tst_CommonTree::collectsIdsRecursively()
{
    QCOMPARE(m_tree->getChildItemIdsRecursively(m_root, true, false), (QStringList{"root", "a", "a1", "b"}));
    QCOMPARE(m_tree->getChildItemIdsRecursively(m_root, false, false), (QStringList{"a", "a1", "b"}));
    QCOMPARE(m_tree->getChildItemIdsRecursively(m_b, true, false), QStringList{"b"});
    QVERIFY(m_tree->getChildItemIdsRecursively(nullptr, true, false).isEmpty());
}

void tst_CommonTree::collectsCheckedIdsOnly()
{
    TreeConfig config;
    config.checkable = true;
    CommonTree tree(nullptr, &config);
    auto* root = new TreeItem(QStringLiteral("root"), QString(), QStringLiteral("Root"));
    tree.addTreeItem(root, nullptr);
    auto* child = new TreeItem(QStringLiteral("c"), QStringLiteral("root"), QStringLiteral("C"));
    tree.addTreeItem(child, root);
    tree.addTreeItem(new TreeItem(QStringLiteral("d"), QStringLiteral("root"), QStringLiteral("D")), root);
    QVERIFY(tree.getChildItemIdsRecursively(root, true, true).isEmpty());
    child->setCheckState(0, Qt::Checked);
    QCOMPARE(root->checkState(0), Qt::PartiallyChecked);
    QCOMPARE(tree.getChildItemIdsRecursively(root, true, true), QStringList{"c"});
    root->setCheckState(0, Qt::Checked);
    QCOMPARE(tree.getChildItemIdsRecursively(root, true, true), (QStringList{"root", "c", "d"}));
}

void tst_CommonTree::findsItemsById()
{
    QCOMPARE(m_tree->findTreeItem(QStringLiteral("a1")), m_a1);
    QCOMPARE(m_a1->getId(), QStringLiteral("a1"));
    QCOMPARE(m_a1->getParentId(), QStringLiteral("a"));
    QCOMPARE(m_a1->getName(), QStringLiteral("Name of a1"));
    QVERIFY(m_tree->findTreeItem(QStringLiteral("unknown")) == nullptr);
    QVERIFY(m_tree->findTreeItem(QString()) == nullptr);
}

void tst_CommonTree::forgetsItemsHoweverTheyGo()
{
    m_tree->removeTreeItem(m_a);
    QVERIFY(m_tree->findTreeItem(QStringLiteral("a")) == nullptr);
    QVERIFY(m_tree->findTreeItem(QStringLiteral("a1")) == nullptr);
    const std::unique_ptr<QTreeWidgetItem> taken(m_root->takeChild(0));
    QVERIFY(m_tree->findTreeItem(QStringLiteral("b")) == nullptr);
    m_tree->clear();
    QVERIFY(m_tree->findTreeItem(QStringLiteral("root")) == nullptr);
    m_tree->removeTreeItem(nullptr);
}

void tst_CommonTree::moveKeepsExpansionAndSelection()
{
    TreeItem* deep = add(QStringLiteral("a11"), m_a1);
    m_a1->setExpanded(true);
    m_tree->setCurSelItem(deep);
    m_tree->moveTreeItem(m_a, m_b, 0);
    QCOMPARE(m_a->parent(), m_b);
    QVERIFY(m_a->isExpanded());
    QVERIFY(m_a1->isExpanded());
    QCOMPARE(m_tree->getCurSelTreeItem(), deep);
    QCOMPARE(m_tree->findTreeItem(QStringLiteral("a11")), deep);
    m_tree->moveTreeItem(m_a, nullptr, 99);
    QVERIFY(m_a->parent() == nullptr);
    QCOMPARE(m_tree->indexOfTopLevelItem(m_a), 1);
}

void tst_CommonTree::moveBelowItselfIsRefused()
{
    m_tree->moveTreeItem(m_a, m_a1, 0);
    QCOMPARE(m_a->parent(), m_root);
    m_tree->moveTreeItem(m_a, m_a, 0);
    QCOMPARE(m_a->parent(), m_root);
}

void tst_CommonTree::buttonsAppearOnHover()
{
    QCOMPARE(m_tree->made, 0);
    hover(m_a);
    QVERIFY(button(m_a, "editBt") != nullptr);
    QVERIFY(button(m_a, "editBt")->isVisible());
    QVERIFY(button(m_a, "deleteBt")->isVisible());
    hover(m_b);
    QVERIFY(m_tree->itemWidget(m_a, 0) == nullptr);
    QVERIFY(button(m_b, "editBt")->isVisible());
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(m_tree.get(), &leave);
    QVERIFY(m_tree->itemWidget(m_b, 0) == nullptr);
}

void tst_CommonTree::buttonsStayOnTheSelectedItem()
{
    m_tree->setCurSelItem(m_a);
    QVERIFY(button(m_a, "editBt") != nullptr);
    hover(m_b);
    QVERIFY(button(m_a, "editBt") != nullptr);
    m_tree->setCurSelItem(nullptr);
    QVERIFY(m_tree->itemWidget(m_a, 0) == nullptr);
    hover(m_root);
    QVERIFY(button(m_root, "editBt")->isVisible());
    QVERIFY(!button(m_root, "deleteBt")->isVisible());
}

void tst_CommonTree::buttonsAreMadeForFewItemsOnly()
{
    m_tester.reset(); // it looks at every row after every change
    for (int i = 0; i < 5000; ++i)
        add(QStringLiteral("n%1").arg(i), m_b);
    m_tree->expandAll();
    m_tree->verticalScrollBar()->setValue(m_tree->verticalScrollBar()->maximum() / 2);
    QCoreApplication::processEvents();
    QCOMPARE(m_tree->made, 0);
    hover(m_tree->itemAt(10, 10));
    hover(m_tree->itemAt(10, 10));
    QCOMPARE(m_tree->made, 1);
    QVERIFY(m_tree->findChildren<TreeItemOperWt*>().size() <= 1);
}

void tst_CommonTree::noHoverWithoutMouseTracking()
{
    m_tree->setMouseTracking(false);
    QMouseEvent move(QEvent::MouseMove, m_tree->visualItemRect(m_a).center(), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(m_tree->viewport(), &move);
    QCOMPARE(m_tree->made, 0);
}

void tst_CommonTree::clickOnAHoverButton()
{
    hover(m_a);
    QTest::mouseClick(button(m_a, "editBt"), Qt::LeftButton);
    QTest::mouseClick(button(m_a, "deleteBt"), Qt::LeftButton);
    QCOMPARE(m_tree->edited, QStringList{"a"});
    QCOMPARE(m_tree->deleted, QStringList{"a"});
}

void tst_CommonTree::clickBesideTheButtonsSelects()
{
    hover(m_a);
    const QPoint at(m_tree->visualItemRect(m_a).left() + 20, m_tree->visualItemRect(m_a).center().y());
    QTest::mouseClick(m_tree->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      m_tree->viewport()->mapTo(m_tree.get(), at));
    QCOMPARE(m_tree->getCurSelTreeItem(), m_a);
}

void tst_CommonTree::itemMayGoWhileItsButtonIsPressed()
{
    m_tree->onEdit = [this] {
        m_tree->removeTreeItem(m_a);
        // What a modal dialog does: the buttons are deleted while they report the click.
        QEventLoop loop;
        QTimer::singleShot(20, &loop, &QEventLoop::quit);
        loop.exec();
    };
    hover(m_a);
    const QPointer<QPushButton> editBt = button(m_a, "editBt");
    QTest::mouseClick(editBt.data(), Qt::LeftButton);
    QTRY_VERIFY(editBt.isNull());
    QVERIFY(m_tree->findTreeItem(QStringLiteral("a")) == nullptr);
}

void tst_CommonTree::keysPressTheButtons()
{
    m_tree->setCurSelItem(m_a);
    QTest::keyClick(m_tree.get(), Qt::Key_F2);
    QCOMPARE(m_tree->edited, QStringList{"a"});
    QTest::keyClick(m_tree.get(), Qt::Key_Delete);
    QCOMPARE(m_tree->deleted, QStringList{"a"});
    QTest::keyClick(m_tree.get(), Qt::Key_Down);
    QTest::keyClick(m_tree.get(), Qt::Key_F2);
    QCOMPARE(m_tree->edited, (QStringList{"a", "a1"}));
}

void tst_CommonTree::deleteKeySparesTheRoot()
{
    m_tree->setCurSelItem(m_root);
    QTest::keyClick(m_tree.get(), Qt::Key_Delete);
    QVERIFY(m_tree->deleted.isEmpty());
    QTest::keyClick(m_tree.get(), Qt::Key_F2);
    QCOMPARE(m_tree->edited, QStringList{"root"});
}

void tst_CommonTree::keysWithoutSelectionDoNothing()
{
    QTest::keyClick(m_tree.get(), Qt::Key_F2);
    QTest::keyClick(m_tree.get(), Qt::Key_Delete);
    QVERIFY(m_tree->edited.isEmpty() && m_tree->deleted.isEmpty());
}

QTEST_MAIN(tst_CommonTree)
#include "tst_CommonTree.moc"
