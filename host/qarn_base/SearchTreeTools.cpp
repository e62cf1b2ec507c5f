#include <qarn_base/SearchTreeTools.h>

#include "TreeItemDelegate.h"

#include <XCOMMON/XTreeWidget.h>
#include <qarn_base/SearchBox.h>

#include <QPointer>
#include <QScopedValueRollback>
#include <QTimer>
#include <QTreeWidgetItemIterator>

namespace qarn_base
{

struct SearchTreeTools::Private {
    QPointer<XCOMMON::XTreeWidget> tree;
    QString needle; ///< empty: no search is on
    QPersistentModelIndex selectedAtStart;
    bool applying = false; ///< changes of the items are this search's own
    QTimer refilter;

    void search(const QString& text);
    void apply();
    void remember();
    void restore();
    bool filter(QTreeWidgetItem* item) const;
    void revealMatches() const;
    void gotoMatch(int step);
};

namespace
{

void mark(QTreeWidgetItem* item, const QString& text)
{
    if (item->data(0, MarkRole).toString() == text)
        return;
    QFont bold;
    bold.setBold(true);
    item->setData(0, MarkRole, text.isEmpty() ? QVariant() : QVariant(text));
    item->setData(0, Qt::FontRole, text.isEmpty() ? QVariant() : QVariant(bold));
}

void setHidden(QTreeWidgetItem* item, bool hidden)
{
    if (item->isHidden() != hidden)
        item->setHidden(hidden);
}

bool isMatch(const QTreeWidgetItem* item)
{
    return !item->data(0, MarkRole).toString().isEmpty();
}

template <class Action>
void forEachItem(QTreeWidget* tree, Action action)
{
    for (QTreeWidgetItemIterator it(tree); *it != nullptr; ++it)
        action(*it);
}

} // namespace

SearchTreeTools::SearchTreeTools(SearchBox* searchBox, XCOMMON::XTreeWidget* tree, QObject* parent)
    : QObject(parent),
      d(std::make_unique<Private>())
{
    d->tree = tree;
    d->refilter.setSingleShot(true);
    d->refilter.setInterval(0);
    if (searchBox == nullptr || tree == nullptr)
        return;
    if (qobject_cast<TreeItemDelegate*>(tree->itemDelegate()) == nullptr)
        tree->setItemDelegate(new TreeItemDelegate(tree));

    connect(searchBox, &SearchBox::signalTextChanged, this,
            [this](const QString& text) { d->search(text.trimmed()); });
    connect(searchBox, &SearchBox::signalSearchNext, this, [this] { d->gotoMatch(1); });
    connect(searchBox, &SearchBox::signalSearchPrevious, this, [this] { d->gotoMatch(-1); });

    // Items that come or get another name while a search is on must obey it too.
    connect(&d->refilter, &QTimer::timeout, this, [this] { d->apply(); });
    const auto changed = [this] {
        if (!d->needle.isEmpty() && !d->applying)
            d->refilter.start();
    };
    connect(tree->model(), &QAbstractItemModel::rowsInserted, this, changed);
    connect(tree->model(), &QAbstractItemModel::dataChanged, this, changed);
}

SearchTreeTools::~SearchTreeTools() = default;

void SearchTreeTools::Private::search(const QString& text)
{
    if (tree.isNull() || text == needle)
        return;
    const bool wasOn = !needle.isEmpty();
    needle = text;
    const QScopedValueRollback<bool> guard(applying, true);
    if (needle.isEmpty()) {
        restore();
        return;
    }
    if (!wasOn)
        remember();
    apply();
}

void SearchTreeTools::Private::apply()
{
    if (tree.isNull() || needle.isEmpty())
        return;
    const QScopedValueRollback<bool> guard(applying, true);
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        filter(tree->topLevelItem(i));
    revealMatches();
}

void SearchTreeTools::Private::remember()
{
    selectedAtStart = tree->selectionModel()->currentIndex();
    forEachItem(tree, [](QTreeWidgetItem* item) {
        item->setData(0, WasExpandedRole, item->isExpanded() ? QVariant(true) : QVariant());
    });
}

void SearchTreeTools::Private::restore()
{
    forEachItem(tree, [](QTreeWidgetItem* item) {
        setHidden(item, false);
        mark(item, QString());
    });
    forEachItem(tree, [](QTreeWidgetItem* item) {
        const bool expanded = item->data(0, WasExpandedRole).toBool();
        if (item->isExpanded() != expanded)
            item->setExpanded(expanded);
        item->setData(0, WasExpandedRole, QVariant());
    });
    // What was found and chosen stays in sight.
    QTreeWidgetItem* selected = tree->getCurSelItem();
    if (selected != nullptr && selectedAtStart != tree->selectionModel()->currentIndex()) {
        tree->expandItemToRootItem(selected);
        tree->scrollToItem(selected);
    }
}

/// Hides what neither matches nor leads to a match; returns whether the item stays.
bool SearchTreeTools::Private::filter(QTreeWidgetItem* item) const
{
    const bool matches = item->text(0).contains(needle, Qt::CaseInsensitive);
    bool stays = matches;
    for (int i = 0; i < item->childCount(); ++i)
        stays = filter(item->child(i)) || stays;
    mark(item, matches ? needle : QString());
    setHidden(item, !stays);
    return stays;
}

/// After the hiding is done, when the tree only takes note and lays itself out once.
void SearchTreeTools::Private::revealMatches() const
{
    forEachItem(tree, [](QTreeWidgetItem* item) {
        if (!isMatch(item))
            return;
        for (QTreeWidgetItem* above = item->parent(); above != nullptr && !above->isExpanded();
             above = above->parent())
            above->setExpanded(true);
    });
}

void SearchTreeTools::Private::gotoMatch(int step)
{
    if (tree.isNull() || needle.isEmpty())
        return;
    apply();
    QList<QTreeWidgetItem*> matches;
    int before = -1; // the last match at or above the selection
    bool exact = false;
    bool passed = false;
    const QTreeWidgetItem* selected = tree->getCurSelItem();
    forEachItem(tree, [&](QTreeWidgetItem* item) {
        if (isMatch(item)) {
            matches.append(item);
            if (selected != nullptr && !passed)
                before = matches.size() - 1;
            exact = exact || item == selected;
        }
        passed = passed || item == selected;
    });
    if (matches.isEmpty())
        return;
    const int count = matches.size();
    const int next = step > 0 ? before + 1 : before - (exact ? 1 : 0);
    QTreeWidgetItem* target = matches.at((next % count + count) % count);
    tree->setCurSelItem(target);
    tree->scrollToItem(target);
}

} // namespace qarn_base
