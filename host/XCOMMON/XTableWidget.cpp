#include <XCOMMON/XTableWidget.h>

#include <QHeaderView>

namespace XCOMMON
{

namespace
{
constexpr int RowHeight = 36; // pixels
}

XTableWidget::XTableWidget(QWidget* parent) : QTableWidget(parent)
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false); // Tab leaves the table
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(RowHeight);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void XTableWidget::insertRow(int row)
{
    QTableWidget::insertRow(row);
    if (row >= 0 && row < rowCount())
        setRowHeight(row, RowHeight);
}

void XTableWidget::removeRow(int row)
{
    QTableWidget::removeRow(row);
}

} // namespace XCOMMON
