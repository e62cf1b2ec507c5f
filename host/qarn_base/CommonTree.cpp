#include <qarn_base/CommonTree.h>

#include "TreeItemDelegate.h"

#include <qarn_base/TreeConfig.h>
#include <qarn_base/TreeItem.h>
#include <qarn_base/TreeItemOperWt.h>

#include <QAbstractButton>
#include <QHash>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QSignalBlocker>

namespace qarn_base
{

namespace
{

constexpr int IconSide = 16; ///< pixels
constexpr int Indentation = 16;

TreeItem* toTreeItem(QTreeWidgetItem* item)
{
    return item != nullptr && item->type() == TreeItem::Type ? static_cast<TreeItem*>(item) : nullptr;
}

/// The item and all below it, parents before children. Without recursion: a chain may be any deep.
QList<QTreeWidgetItem*> subtree(QTreeWidgetItem* top)
{
    QList<QTreeWidgetItem*> items;
    QList<QTreeWidgetItem*> open{top};
    while (!open.isEmpty()) {
        QTreeWidgetItem* item = open.takeLast();
        items.append(item);
        for (int i = item->childCount() - 1; i >= 0; --i)
            open.append(item->child(i));
    }
    return items;
}

bool isSameOrBelow(const QTreeWidgetItem* item, const QTreeWidgetItem* top)
{
    while (item != nullptr && item != top)
        item = item->parent();
    return item != nullptr;
}

bool press(const QWidget* buttons, const QString& name)
{
    auto* button = buttons == nullptr ? nullptr : buttons->findChild<QAbstractButton*>(name);
    if (button == nullptr || button->isHidden() || !button->isEnabled())
        return false;
    button->click();
    return true;
}

} // namespace

struct CommonTree::Private {
    bool checkable = false;
    QHash<QString, TreeItem*> itemById;
    QPersistentModelIndex hovered;
    QList<QPersistentModelIndex> withButtons; ///< asked for buttons, whether or not they have any
};

CommonTree::CommonTree(QWidget* parent, TreeConfig* config)
    : XCOMMON::XTreeWidget(parent),
      d(std::make_unique<Private>())
{
    d->checkable = config != nullptr && config->checkable;
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setVerticalScrollMode(ScrollPerPixel);
    setIconSize(QSize(IconSide, IconSide));
    setIndentation(Indentation);
    setItemDelegate(new TreeItemDelegate(this));

    connect(model(), &QAbstractItemModel::rowsInserted, this, &CommonTree::noteInserted);
    connect(model(), &QAbstractItemModel::rowsAboutToBeRemoved, this, &CommonTree::forgetRemoved);
    connect(model(), &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        d->itemById.clear();
        d->withButtons.clear();
    });
    connect(this, &XCOMMON::XTreeWidget::signalCurSelItemChanged, this, &CommonTree::updateButtons);
}

CommonTree::~CommonTree()
{
    // The items go after this part of the object; nothing here may follow them then.
    model()->disconnect(this);
}

TreeItem* CommonTree::getCurSelTreeItem() const
{
    return toTreeItem(getCurSelItem());
}

TreeItem* CommonTree::findTreeItem(const QString& id) const
{
    return d->itemById.value(id);
}

QStringList CommonTree::getChildItemIdsRecursively(TreeItem* item, bool includeSelf, bool checkedOnly) const
{
    QStringList ids;
    if (item == nullptr)
        return ids;
    const QList<QTreeWidgetItem*> items = subtree(item);
    for (QTreeWidgetItem* each : items) {
        const TreeItem* treeItem = toTreeItem(each);
        if (treeItem == nullptr || (each == item && !includeSelf))
            continue;
        if (!checkedOnly || each->checkState(0) == Qt::Checked)
            ids.append(treeItem->getId());
    }
    return ids;
}

void CommonTree::addTreeItem(TreeItem* item, TreeItem* parent)
{
    if (d->checkable) {
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
        item->setCheckState(0, Qt::Unchecked);
    }
    if (parent != nullptr)
        parent->addChild(item);
    else
        addTopLevelItem(item);
}

void CommonTree::removeTreeItem(TreeItem* item)
{
    if (item == nullptr)
        return;
    const std::unique_ptr<TreeItem> owner(item);
}

void CommonTree::moveTreeItem(TreeItem* item, TreeItem* parent, int position)
{
    QTreeWidgetItem* newParent = parent != nullptr ? parent : invisibleRootItem();
    if (item == nullptr || isSameOrBelow(newParent, item))
        return;
    QTreeWidgetItem* oldParent = item->parent() != nullptr ? item->parent() : invisibleRootItem();
    QTreeWidgetItem* selected = getCurSelItem();
    const bool movesSelection = isSameOrBelow(selected, item);
    QList<QTreeWidgetItem*> expanded = subtree(item);
    expanded.erase(std::remove_if(expanded.begin(), expanded.end(),
                                  [](const QTreeWidgetItem* each) { return !each->isExpanded(); }),
                   expanded.end());
    {
        // Listeners need not hear that for a moment nothing is selected.
        const QSignalBlocker blocker(this);
        oldParent->removeChild(item);
        newParent->insertChild(qBound(0, position, newParent->childCount()), item);
        for (QTreeWidgetItem* each : qAsConst(expanded))
            each->setExpanded(true);
    }
    if (movesSelection)
        setCurSelItem(selected);
    updateButtons();
}

TreeItemOperWt* CommonTree::createTreeItemOperWt(TreeItem*)
{
    return nullptr;
}

void CommonTree::noteInserted(const QModelIndex& parent, int first, int last)
{
    for (int row = first; row <= last; ++row) {
        const QList<QTreeWidgetItem*> items = subtree(itemFromIndex(model()->index(row, 0, parent)));
        for (QTreeWidgetItem* each : items) {
            if (TreeItem* item = toTreeItem(each))
                d->itemById.insert(item->getId(), item);
        }
    }
}

void CommonTree::forgetRemoved(const QModelIndex& parent, int first, int last)
{
    for (int row = first; row <= last; ++row) {
        const QList<QTreeWidgetItem*> items = subtree(itemFromIndex(model()->index(row, 0, parent)));
        for (const QTreeWidgetItem* each : items) {
            const auto known = d->itemById.find(each->data(0, TreeItem::IdRole).toString());
            if (known != d->itemById.end() && known.value() == each)
                d->itemById.erase(known);
        }
    }
}

void CommonTree::setHovered(const QModelIndex& index)
{
    if (index == d->hovered)
        return;
    d->hovered = index;
    updateButtons();
}

/// Only the hovered and the selected item ever carry buttons, however large the tree is.
void CommonTree::updateButtons()
{
    const QList<QPersistentModelIndex> wanted{d->hovered, indexFromItem(getCurSelItem())};
    QList<QPersistentModelIndex> kept;
    for (const QPersistentModelIndex& index : qAsConst(d->withButtons)) {
        if (wanted.contains(index))
            kept.append(index);
        else if (index.isValid())
            setIndexWidget(index, nullptr);
    }
    d->withButtons = kept;
    for (const QPersistentModelIndex& index : wanted) {
        if (!index.isValid() || d->withButtons.contains(index))
            continue;
        d->withButtons.append(index);
        TreeItem* item = toTreeItem(itemFromIndex(index));
        if (TreeItemOperWt* buttons = item != nullptr ? createTreeItemOperWt(item) : nullptr)
            setIndexWidget(index, buttons);
    }
}

void CommonTree::mouseMoveEvent(QMouseEvent* event)
{
    XCOMMON::XTreeWidget::mouseMoveEvent(event);
    setHovered(hasMouseTracking() ? indexAt(event->pos()) : QModelIndex());
}

void CommonTree::leaveEvent(QEvent* event)
{
    XCOMMON::XTreeWidget::leaveEvent(event);
    setHovered(QModelIndex());
}

void CommonTree::keyPressEvent(QKeyEvent* event)
{
    const bool edits = event->key() == Qt::Key_F2;
    const bool deletes = event->key() == Qt::Key_Delete;
    if ((edits || deletes) && event->modifiers() == Qt::NoModifier) {
        event->accept();
        const QWidget* buttons = indexWidget(indexFromItem(getCurSelItem()));
        if (press(buttons, edits ? QStringLiteral("editBt") : QStringLiteral("deleteBt")))
            return;
    }
    XCOMMON::XTreeWidget::keyPressEvent(event);
}

} // namespace qarn_base
