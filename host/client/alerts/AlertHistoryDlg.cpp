#include "alerts/AlertHistoryDlg.h"

#include <XCOMMON/XPushButton.h>
#include <qarn_base/TableWidget.h>
#include <qarn_worker/AlertHistory.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

namespace
{

enum Column { TimeColumn, TitleColumn, TextColumn, ColumnCount };

} // namespace

AlertHistoryDlg::AlertHistoryDlg(QWidget* parent) : CommonDialog(parent)
{
    setObjectName(QStringLiteral("AlertHistoryDlg"));
    setTitle(tr("Messages"));
    setFixedSize(720, 460);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, TitleBarHeight + 16, 20, 16);
    column->setSpacing(14);
    column->addWidget(qarn_worker::alertHistory().isEmpty() ? makeEmptyText() : makeTable(), 1);

    auto* close = new XCOMMON::XPushButton(this);
    close->setObjectName(QStringLiteral("okBt"));
    close->setText(tr("Close"));
    close->setProperty("common_bt_style2", true);
    close->setMinimumSize(96, 28);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(close);
    column->addLayout(row);
}

QWidget* AlertHistoryDlg::makeTable()
{
    const QList<qarn_worker::Alert> alerts = qarn_worker::alertHistory();
    auto* table = new qarn_base::TableWidget(this);
    table->setObjectName(QStringLiteral("alertTable"));
    table->setAccessibleName(tr("Messages"));
    table->setColumnCount(ColumnCount);
    table->setHorizontalHeaderLabels({tr("Time"), tr("Kind"), tr("Message")});
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setWordWrap(true);
    table->setRowCount(alerts.count());
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table->horizontalHeader()->setSectionResizeMode(TextColumn, QHeaderView::Stretch);
    for (int row = 0; row < alerts.count(); ++row) {
        const qarn_worker::Alert& alert = alerts.at(alerts.count() - 1 - row);
        const QString time = QLocale().toString(alert.time, QLocale::ShortFormat);
        table->setItem(row, TimeColumn, new QTableWidgetItem(time));
        table->setItem(row, TitleColumn, new QTableWidgetItem(alert.title));
        auto* text = new QTableWidgetItem(alert.text);
        text->setToolTip(alert.text.toHtmlEscaped());
        table->setItem(row, TextColumn, text);
    }
    // Not once: the width that the texts wrap in is known only when the dialog is laid out.
    table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    return table;
}

QWidget* AlertHistoryDlg::makeEmptyText()
{
    auto* label = new QLabel(tr("No messages yet"), this);
    label->setObjectName(QStringLiteral("emptyText"));
    label->setAlignment(Qt::AlignCenter);
    return label;
}
