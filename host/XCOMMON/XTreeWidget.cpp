#include <XCOMMON/XTreeWidget.h>

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>

namespace XCOMMON
{

XTreeWidget::XTreeWidget(QWidget* parent) : QTreeWidget(parent)
{
    setSelectionMode(SingleSelection);
    setDragEnabled(false);
    setUniformRowHeights(true);
    connect(this, &QTreeWidget::itemSelectionChanged, this, &XTreeWidget::reportSelection);
    connect(model(), &QAbstractItemModel::rowsRemoved, this, &XTreeWidget::reportRemoval);
}

QTreeWidgetItem* XTreeWidget::getCurSelItem() const
{
    // selectedItems() would leave out an item that a filter hides for the moment
    const QModelIndexList indexes = selectionModel()->selectedIndexes();
    return indexes.isEmpty() ? nullptr : itemFromIndex(indexes.constFirst());
}

void XTreeWidget::setCurSelItem(QTreeWidgetItem* item)
{
    if (item == nullptr)
        selectionModel()->clear();
    else if (item->treeWidget() == this)
        setCurrentItem(item, 0, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void XTreeWidget::expandItemToRootItem(QTreeWidgetItem* item)
{
    if (item == nullptr)
        return;
    for (QTreeWidgetItem* above = item->parent(); above != nullptr; above = above->parent())
        above->setExpanded(true);
}

void XTreeWidget::startDrag(Qt::DropActions /*supportedActions*/)
{
    // items stay where they are
}

void XTreeWidget::keyPressEvent(QKeyEvent* event)
{
    QTreeWidgetItem* item = currentItem();
    const Qt::ItemFlags checkable = Qt::ItemIsUserCheckable | Qt::ItemIsEnabled;
    if (event->key() != Qt::Key_Space || item == nullptr || (item->flags() & checkable) != checkable ||
        !item->data(0, Qt::CheckStateRole).isValid()) {
        QTreeWidget::keyPressEvent(event);
        return;
    }
    item->setCheckState(0, item->checkState(0) == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    event->accept();
}

void XTreeWidget::rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end)
{
    const auto goes = [&](QModelIndex index) {
        while (index.isValid() && index.parent() != parent)
            index = index.parent();
        return index.isValid() && index.row() >= start && index.row() <= end;
    };
    // Nothing takes the place of a removed item: what the operator did not choose is never selected.
    if (m_reportedItem != nullptr && goes(indexFromItem(m_reportedItem))) {
        m_reportedItem = nullptr;
        m_removingReported = true;
        selectionModel()->clearSelection();
    }
    if (goes(currentIndex()))
        selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
    QTreeWidget::rowsAboutToBeRemoved(parent, start, end);
}

void XTreeWidget::reportRemoval()
{
    if (!m_removingReported)
        return;
    m_removingReported = false;
    m_reportedItem = getCurSelItem();
    emit signalCurSelItemChanged(m_reportedItem, nullptr);
}

void XTreeWidget::reportSelection()
{
    QTreeWidgetItem* current = getCurSelItem();
    if (m_removingReported || current == m_reportedItem)
        return;
    QTreeWidgetItem* previous = m_reportedItem;
    m_reportedItem = current;
    emit signalCurSelItemChanged(current, previous);
}

} // namespace XCOMMON
