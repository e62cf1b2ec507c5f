#pragma once

#include <QStyledItemDelegate>

/// Draws the pages' icons above their titles, so that the list of pages takes little of the width.
class PageListDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
