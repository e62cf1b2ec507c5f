#include <XCOMMON/XTableWidget.h>

#include <QHeaderView>
#include <QPointer>
#include <QPushButton>
#include <QtTest>

using XCOMMON::XTableWidget;

class tst_XTableWidget : public QObject
{
    Q_OBJECT
private slots:
    void selectsWholeRows();
    void keepsItsRowHeight();
    void removesARowFromItsOwnButton();
    void ignoresRowsThatAreNotThere();
};

void tst_XTableWidget::selectsWholeRows()
{
    XTableWidget table;
    table.setColumnCount(2);
    for (int row = 0; row < 3; ++row) {
        table.insertRow(row);
        for (int column = 0; column < 2; ++column)
            table.setItem(row, column, new QTableWidgetItem(QString::number(10 * row + column)));
    }
    table.show();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier,
                      table.visualItemRect(table.item(1, 0)).center());
    QCOMPARE(table.selectedItems().size(), 2);
    QTest::keyClick(&table, Qt::Key_Down);
    QCOMPARE(table.selectedItems().size(), 2);
    QVERIFY(table.item(2, 1)->isSelected());
    QVERIFY(!table.verticalHeader()->isVisible());
    QVERIFY(!table.showGrid());
}

void tst_XTableWidget::keepsItsRowHeight()
{
    XTableWidget table;
    table.insertRow(0);
    const int height = table.rowHeight(0);
    table.setRowHeight(0, 3 * height);
    table.insertRow(0);
    QCOMPARE(table.rowHeight(0), height);
    QCOMPARE(table.rowHeight(1), 3 * height);
}

void tst_XTableWidget::removesARowFromItsOwnButton()
{
    XTableWidget table;
    table.setColumnCount(1);
    table.insertRow(0);
    table.insertRow(1);
    auto* button = new QPushButton(QStringLiteral("delete"));
    QPointer<QPushButton> guard(button);
    table.setCellWidget(0, 0, button);
    connect(button, &QPushButton::clicked, &table, [&table] { table.removeRow(0); });
    table.show();
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(table.rowCount(), 1);
    QVERIFY(!guard.isNull()); // its click is only now over
    QTRY_VERIFY(guard.isNull());
}

void tst_XTableWidget::ignoresRowsThatAreNotThere()
{
    XTableWidget table;
    table.insertRow(5);
    table.insertRow(-1);
    table.removeRow(7);
    QCOMPARE(table.rowCount(), 0);
}

QTEST_MAIN(tst_XTableWidget)
#include "tst_XTableWidget.moc"
