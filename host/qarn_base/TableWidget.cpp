#include <qarn_base/TableWidget.h>

#include <qarn_base/TableOperWt.h>

#include <QMouseEvent>
#include <QStyledItemDelegate>

namespace qarn_base
{

namespace
{

/// Shows all cells of the hovered row as under the mouse. The cells' data stays untouched, so that nobody
/// who listens for edits hears of the mouse.
class RowHoverDelegate : public QStyledItemDelegate
{
public:
    RowHoverDelegate(const int& hoveredRow, QObject* parent)
        : QStyledItemDelegate(parent),
          m_hoveredRow(hoveredRow)
    {
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state.setFlag(QStyle::State_MouseOver, index.row() == m_hoveredRow);
    }

private:
    const int& m_hoveredRow;
};

} // namespace

TableWidget::TableWidget(QWidget* parent) : XCOMMON::XTableWidget(parent)
{
    setItemDelegate(new RowHoverDelegate(m_hoveredRow, this));
    connect(this, &QTableWidget::itemSelectionChanged, this, [this] { styleRow(m_hoveredRow, true); });
}

void TableWidget::mouseMoveEvent(QMouseEvent* event)
{
    XCOMMON::XTableWidget::mouseMoveEvent(event);
    setHoveredRow(hasMouseTracking() ? rowAt(event->pos().y()) : -1);
}

void TableWidget::leaveEvent(QEvent* event)
{
    XCOMMON::XTableWidget::leaveEvent(event);
    setHoveredRow(-1);
}

void TableWidget::setHoveredRow(int row)
{
    if (row == m_hoveredRow)
        return;
    const int previous = std::exchange(m_hoveredRow, row);
    styleRow(previous, false);
    styleRow(row, true);
    viewport()->update();
}

void TableWidget::styleRow(int row, bool hovered)
{
    const bool selected = selectionModel()->isRowSelected(row, QModelIndex());
    const TableOperWt::WidgetStyle style = !hovered   ? TableOperWt::NormalStyle
                                           : selected ? TableOperWt::SelectedStyle
                                                      : TableOperWt::HoverStyle;
    for (int column = 0; row >= 0 && column < columnCount(); ++column) {
        if (auto* operWt = qobject_cast<TableOperWt*>(cellWidget(row, column)))
            operWt->setWtStyle(style);
    }
}

} // namespace qarn_base
