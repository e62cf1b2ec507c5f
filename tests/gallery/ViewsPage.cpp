#include "Pages.h"

#include <XCOMMON/PEWidget.h>
#include <qarn_base/EditOperWt.h>
#include <qarn_base/PageEditWt.h>
#include <qarn_base/TableWidget.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

namespace
{

QWidget* makeTable()
{
    auto* table = new qarn_base::TableWidget;
    table->setColumnCount(2);
    table->setHorizontalHeaderLabels({QStringLiteral("Field Name"), QStringLiteral("Oper")});
    table->horizontalHeader()->setStretchLastSection(true);
    table->setColumnWidth(0, 200);
    table->setStyleSheet(QStringLiteral("QTableWidget::item{padding-left:10px; padding-right:10px;}"));
    for (int row = 0; row < 12; ++row) {
        table->insertRow(row);
        table->setItem(row, 0, new QTableWidgetItem(QStringLiteral("field %1").arg(row)));
        table->setCellWidget(row, 1, new qarn_base::EditOperWt(QString::number(row)));
    }
    table->selectRow(1);
    table->setFixedWidth(380);
    return table;
}

/// A row with a style sheet of its own, as the list of persons has them.
QWidget* makeRow(int number, const QString& ground, const QString& text)
{
    auto* row = new XCOMMON::PEWidget;
    row->setFixedHeight(70);
    row->setStyleSheet(QStringLiteral("QWidget{background-color:%1;border-bottom: 1px solid #213147;}"
                                      "QLabel {color:%2; border:0px;} QCheckBox{color:%2; border:0px;}")
                           .arg(ground, text));
    auto* layout = new QHBoxLayout(row);
    auto* box = new QCheckBox(QString::number(number));
    box->setChecked(number % 2 == 0);
    layout->addWidget(box);
    layout->addWidget(new QLabel(QStringLiteral("4711")));
    layout->addWidget(new QLabel(QStringLiteral("Anna Schmidt")));
    for (const char* name : {"edit", "delete"}) {
        auto* button = new QPushButton;
        button->setFixedSize(18, 18);
        button->setToolTip(QLatin1String(name));
        button->setStyleSheet(QStringLiteral("QPushButton{border-image:url(:/images/images/%1_n.png);}"
                                             "QPushButton:hover{border-image:url(:/images/images/%1_h.png);}")
                                  .arg(QLatin1String(name)));
        layout->addWidget(button);
    }
    return row;
}

QWidget* makeRows()
{
    auto* area = new QScrollArea;
    auto* rows = new QWidget;
    auto* column = new QVBoxLayout(rows);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeRow(1, QStringLiteral("#0b121e"), QStringLiteral("#6c7586")));
    column->addWidget(makeRow(2, QStringLiteral("#213147"), QStringLiteral("#6c7586")));
    column->addWidget(makeRow(3, QStringLiteral("#293a56"), QStringLiteral("#ccd3dd")));
    for (int number = 4; number < 12; ++number)
        column->addWidget(makeRow(number, QStringLiteral("#0b121e"), QStringLiteral("#6c7586")));
    area->setWidget(rows);
    area->setWidgetResizable(true);
    area->verticalScrollBar()->setProperty("common_scrollBar_style3", true);
    return area;
}

} // namespace

QWidget* makeViewsPage()
{
    auto* page = new QWidget;
    auto* column = new QVBoxLayout(page);
    column->setContentsMargins(30, 30, 30, 30);
    auto* views = new QHBoxLayout;
    views->setSpacing(30);
    views->addWidget(makeTable());
    views->addWidget(makeRows(), 1);
    column->addLayout(views, 1);
    auto* pages = new qarn_base::PageEditWt;
    pages->setFixedHeight(44);
    pages->updateTotalCnt(1234, 3);
    column->addWidget(pages);
    auto* none = new qarn_base::PageEditWt;
    none->setFixedHeight(44);
    none->updateTotalCnt(0, 0);
    column->addWidget(none);
    return page;
}
