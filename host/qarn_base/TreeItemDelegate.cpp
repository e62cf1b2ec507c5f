#include "TreeItemDelegate.h"

#include <qarn_base/HostColors.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>

namespace qarn_base
{

namespace
{

constexpr int RowHeight = 28; ///< pixels, at least

QRect textRectOf(const QStyleOptionViewItem& option)
{
    const QStyle* style = option.widget != nullptr ? option.widget->style() : QApplication::style();
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, option.widget) + 1;
    return style->subElementRect(QStyle::SE_ItemViewItemText, &option, option.widget)
        .adjusted(margin, 0, -margin, 0);
}

int buttonsWidth(const QStyleOptionViewItem& option, const QModelIndex& index)
{
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    const QWidget* buttons = view != nullptr ? view->indexWidget(index) : nullptr;
    return buttons != nullptr ? buttons->sizeHint().width() : 0;
}

} // namespace

void TreeItemDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const int reserved = option->rect.isEmpty() ? 0 : buttonsWidth(*option, index);
    if (reserved > 0) {
        const int room = qMax(0, textRectOf(*option).width() - reserved);
        option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight, room);
    }
}

QSize TreeItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return QStyledItemDelegate::sizeHint(option, index).expandedTo(QSize(0, RowHeight));
}

void TreeItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const QString mark = index.data(MarkRole).toString();
    if (mark.isEmpty())
        return;
    QStyleOptionViewItem shown = option;
    initStyleOption(&shown, index);
    const int from = shown.text.indexOf(mark, 0, Qt::CaseInsensitive);
    if (from < 0)
        return; // elided away
    const QRect textRect = textRectOf(shown);
    const int left = textRect.left() + shown.fontMetrics.horizontalAdvance(shown.text.left(from));
    const int width = shown.fontMetrics.horizontalAdvance(shown.text.mid(from, mark.size()));
    const QRect marked(left, textRect.center().y() - shown.fontMetrics.height() / 2, width,
                       shown.fontMetrics.height());
    QColor color = colors::Accent;
    color.setAlpha(90); // the text stays readable below
    painter->fillRect(marked.intersected(textRect), color);
}

} // namespace qarn_base
