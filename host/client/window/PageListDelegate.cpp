#include "window/PageListDelegate.h"

void PageListDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->decorationPosition = QStyleOptionViewItem::Top;
    option->decorationAlignment = Qt::AlignHCenter | Qt::AlignBottom;
    option->displayAlignment = Qt::AlignHCenter | Qt::AlignVCenter;
}
