#include <qarn_base/CommonTree.h>
#include <qarn_base/SearchBox.h>
#include <qarn_base/SearchTreeTools.h>
#include <qarn_base/TreeItem.h>

#include <QElapsedTimer>
#include <QLineEdit>
#include <QTreeWidgetItemIterator>
#include <QtTest>

using qarn_base::CommonTree;
using qarn_base::SearchBox;
using qarn_base::SearchTreeTools;
using qarn_base::TreeItem;

class tst_SearchTreeTools : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void matchesAndTheirAncestorsStay();
    void blanksAroundAreNoPartOfTheText();
    void matchesAreMarked();
    void returnGoesFromMatchToMatch();
    void backwardsToo();
    void searchStartsAtTheSelection();
    void clearingRestoresWhatWasExpanded();
    void typingOnKeepsWhatToRestore();
    void whatWasFoundStaysInSight();
    void newAndRenamedItemsObey();
    void nothingFound();
    void treeMayGoFirst();
    void boxMayGoFirst();
    void fiveThousandItems();
    void cleanupTestCase();

private:
    TreeItem* add(const QString& name, TreeItem* parent) const;
    TreeItem* item(const QString& name) const { return m_tree->findTreeItem(name); }
    QStringList shown() const;
    void type(const QString& text) const;
    void clear() const;
    QString selected() const
    {
        return m_tree->getCurSelTreeItem() != nullptr ? m_tree->getCurSelTreeItem()->getName() : QString();
    }

    std::unique_ptr<CommonTree> m_tree;
    std::unique_ptr<SearchBox> m_box;
    std::unique_ptr<SearchTreeTools> m_tools;
    QLineEdit* m_edit = nullptr;
};

void tst_SearchTreeTools::init()
{
    m_tree = std::make_unique<CommonTree>();
    m_box = std::make_unique<SearchBox>();
    m_edit = m_box->findChild<QLineEdit*>(QStringLiteral("searchLineEt"));
    m_tools = std::make_unique<SearchTreeTools>(m_box.get(), m_tree.get(), nullptr);
    TreeItem* root = add(QStringLiteral("Root"), nullptr);
    TreeItem* sales = add(QStringLiteral("Sales"), root);
    add(QStringLiteral("Lab North"), sales);
    add(QStringLiteral("Depot"), sales);
    TreeItem* research = add(QStringLiteral("Research Lab"), root);
    add(QStringLiteral("Chemistry"), research);
    add(QStringLiteral("old lab"), research);
    root->setExpanded(true);
    m_tree->show();
    m_box->show();
}

void tst_SearchTreeTools::cleanup()
{
    m_tools.reset();
    m_box.reset();
    m_tree.reset();
}

TreeItem* tst_SearchTreeTools::add(const QString& name, TreeItem* parent) const
{
    auto* item = new TreeItem(name, QString(), name);
    m_tree->addTreeItem(item, parent);
    return item;
}

/// What the operator sees, from top to bottom.
QStringList tst_SearchTreeTools::shown() const
{
    QStringList names;
    QTreeWidgetItem* item = m_tree->topLevelItemCount() > 0 ? m_tree->topLevelItem(0) : nullptr;
    if (item != nullptr && item->isHidden())
        item = m_tree->itemBelow(item);
    for (; item != nullptr; item = m_tree->itemBelow(item))
        names.append(item->text(0));
    return names;
}

void tst_SearchTreeTools::type(const QString& text) const
{
    QTest::keyClicks(m_edit, text);
}

void tst_SearchTreeTools::clear() const
{
    m_edit->selectAll();
    QTest::keyClick(m_edit, Qt::Key_Delete);
}

void tst_SearchTreeTools::matchesAndTheirAncestorsStay()
{
    type(QStringLiteral("lab"));
    QCOMPARE(shown(), (QStringList{"Root", "Sales", "Lab North", "Research Lab", "old lab"}));
    type(QStringLiteral(" n"));
    QCOMPARE(shown(), (QStringList{"Root", "Sales", "Lab North"}));
}

void tst_SearchTreeTools::blanksAroundAreNoPartOfTheText()
{
    type(QStringLiteral("  "));
    QCOMPARE(shown(), (QStringList{"Root", "Sales", "Research Lab"}));
    type(QStringLiteral("depot "));
    QCOMPARE(shown(), (QStringList{"Root", "Sales", "Depot"}));
}

void tst_SearchTreeTools::matchesAreMarked()
{
    const auto picture = [this](const QString& name) {
        return m_tree->viewport()->grab(m_tree->visualItemRect(item(name))).toImage();
    };
    item(QStringLiteral("Sales"))->setExpanded(true);
    const QImage match = picture(QStringLiteral("Lab North"));
    const QImage other = picture(QStringLiteral("Sales"));
    type(QStringLiteral("lab"));
    QVERIFY(picture(QStringLiteral("Lab North")) != match);
    QCOMPARE(picture(QStringLiteral("Sales")), other);
    QVERIFY(item(QStringLiteral("Lab North"))->font(0).bold());
    QVERIFY(!item(QStringLiteral("Sales"))->font(0).bold());
    clear();
    QVERIFY(!item(QStringLiteral("Lab North"))->font(0).bold());
    item(QStringLiteral("Sales"))->setExpanded(true);
    QCOMPARE(picture(QStringLiteral("Lab North")), match);
}

void tst_SearchTreeTools::returnGoesFromMatchToMatch()
{
    type(QStringLiteral("lab"));
    QStringList visited;
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(m_edit, Qt::Key_Return);
        visited.append(selected());
    }
    QCOMPARE(visited, (QStringList{"Lab North", "Research Lab", "old lab", "Lab North"}));
}

void tst_SearchTreeTools::backwardsToo()
{
    type(QStringLiteral("lab"));
    QStringList visited;
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(m_edit, Qt::Key_Up);
        visited.append(selected());
    }
    QCOMPARE(visited, (QStringList{"old lab", "Research Lab", "Lab North", "old lab"}));
}

void tst_SearchTreeTools::searchStartsAtTheSelection()
{
    m_tree->setCurSelItem(item(QStringLiteral("Depot")));
    type(QStringLiteral("lab"));
    QTest::keyClick(m_edit, Qt::Key_Return);
    QCOMPARE(selected(), QStringLiteral("Research Lab"));
    m_tree->setCurSelItem(item(QStringLiteral("Depot")));
    QTest::keyClick(m_edit, Qt::Key_Up);
    QCOMPARE(selected(), QStringLiteral("Lab North"));
}

void tst_SearchTreeTools::clearingRestoresWhatWasExpanded()
{
    item(QStringLiteral("Research Lab"))->setExpanded(true);
    const QStringList before = shown();
    type(QStringLiteral("lab n"));
    QVERIFY(item(QStringLiteral("Sales"))->isExpanded());
    clear();
    QCOMPARE(shown(), before);
    QVERIFY(!item(QStringLiteral("Sales"))->isExpanded());
    QVERIFY(item(QStringLiteral("Research Lab"))->isExpanded());
}

void tst_SearchTreeTools::typingOnKeepsWhatToRestore()
{
    const QStringList before = shown();
    type(QStringLiteral("d"));
    type(QStringLiteral("e"));
    QTest::keyClick(m_edit, Qt::Key_Backspace);
    QTest::keyClick(m_edit, Qt::Key_Backspace);
    QCOMPARE(shown(), before);
}

void tst_SearchTreeTools::whatWasFoundStaysInSight()
{
    type(QStringLiteral("depot"));
    QTest::keyClick(m_edit, Qt::Key_Return);
    clear();
    QCOMPARE(selected(), QStringLiteral("Depot"));
    QVERIFY(shown().contains(QStringLiteral("Depot")));
    QVERIFY(!item(QStringLiteral("Research Lab"))->isExpanded());
}

void tst_SearchTreeTools::newAndRenamedItemsObey()
{
    type(QStringLiteral("lab"));
    add(QStringLiteral("Canteen"), item(QStringLiteral("Sales")));
    add(QStringLiteral("Photo Lab"), item(QStringLiteral("Sales")));
    item(QStringLiteral("Depot"))->setName(QStringLiteral("Lab Depot"));
    QTRY_COMPARE(shown(), (QStringList{"Root", "Sales", "Lab North", "Lab Depot", "Photo Lab", "Research Lab",
                                       "old lab"}));
    item(QStringLiteral("Lab North"))->setName(QStringLiteral("North"));
    QTRY_VERIFY(!shown().contains(QStringLiteral("North")));
    clear();
    item(QStringLiteral("Sales"))->setExpanded(true);
    QVERIFY(shown().contains(QStringLiteral("Canteen")));
}

void tst_SearchTreeTools::nothingFound()
{
    type(QStringLiteral("xyz"));
    QVERIFY(shown().isEmpty());
    QTest::keyClick(m_edit, Qt::Key_Return);
    QVERIFY(selected().isEmpty());
    clear();
    QCOMPARE(shown(), (QStringList{"Root", "Sales", "Research Lab"}));
}

void tst_SearchTreeTools::treeMayGoFirst()
{
    type(QStringLiteral("lab"));
    m_tree.reset();
    type(QStringLiteral("x"));
    QTest::keyClick(m_edit, Qt::Key_Return);
    QVERIFY(m_edit->text().endsWith(QLatin1Char('x')));
    clear();
    QCOMPARE(m_edit->text(), QString());
}

void tst_SearchTreeTools::boxMayGoFirst()
{
    type(QStringLiteral("lab"));
    const QStringList found = shown();
    m_box.reset();
    QCoreApplication::processEvents();
    QCOMPARE(shown(), found);
    m_tree->setCurSelItem(item(QStringLiteral("old lab")));
    QCOMPARE(selected(), QStringLiteral("old lab"));
}

void tst_SearchTreeTools::fiveThousandItems()
{
    QList<TreeItem*> parents{item(QStringLiteral("Root"))};
    for (int i = 0; i < 5000; ++i)
        parents.append(add(QStringLiteral("Organization %1").arg(i), parents.at(i / 8)));
    QElapsedTimer timer;
    timer.start();
    type(QStringLiteral("9"));
    const qint64 typed = timer.restart();
    clear();
    const qint64 cleared = timer.elapsed();
    qInfo("filtered in %lld ms, restored in %lld ms", typed, cleared);
    QVERIFY(typed < 1000 && cleared < 1000);
}

/// Qt fades the clear button of an edit and ends that only a moment after the edit has gone.
void tst_SearchTreeTools::cleanupTestCase()
{
    QTest::qWait(250);
}

QTEST_MAIN(tst_SearchTreeTools)
#include "tst_SearchTreeTools.moc"
