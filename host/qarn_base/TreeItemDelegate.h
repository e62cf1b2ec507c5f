#pragma once

#include <QStyledItemDelegate>

namespace qarn_base
{

/// What a search leaves at the items of a tree, in column 0.
enum SearchRole {
    MarkRole = Qt::UserRole + 64, ///< the text that was found; it is painted marked
    WasExpandedRole               ///< the item was expanded before the search
};

/// Paints the items of the host's trees: found text is marked, and a name does not run under the buttons
/// on its item.
class TreeItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

} // namespace qarn_base
