#include <qarn_base/EditOperWt.h>
#include <qarn_base/TableWidget.h>

#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using qarn_base::EditOperWt;
using qarn_base::TableOperWt;
using qarn_base::TableWidget;

Q_DECLARE_METATYPE(QTableWidgetItem*)

class NotingOperWt : public EditOperWt
{
public:
    using EditOperWt::EditOperWt;
    WidgetStyle style = NormalStyle;
    void setWtStyle(WidgetStyle newStyle) override
    {
        style = newStyle;
        EditOperWt::setWtStyle(newStyle);
    }
};

class tst_TableWidget : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_table.reset(); }

    void hoverStylesTheRow();
    void selectedRowStaysSelectedUnderTheMouse();
    void hoverIsNoEdit();
    void noHoverWithoutMouseTracking();
    void hoverThroughTheRowsButtons();
    void hoveredRowMayGo();

private:
    void moveTo(int row) const
    {
        QTest::mouseMove(m_table->viewport(), QPoint(20, m_table->rowViewportPosition(row) + 5));
    }

    std::unique_ptr<TableWidget> m_table;
    QList<NotingOperWt*> m_buttons;
};

void tst_TableWidget::init()
{
    qRegisterMetaType<QTableWidgetItem*>();
    m_table = std::make_unique<TableWidget>();
    m_buttons.clear();
    m_table->setColumnCount(2);
    m_table->setMouseTracking(true);
    for (int row = 0; row < 3; ++row) {
        m_table->insertRow(row);
        m_table->setItem(row, 0, new QTableWidgetItem(QString::number(row)));
        m_buttons.append(new NotingOperWt(QString::number(row)));
        m_table->setCellWidget(row, 1, m_buttons.last());
    }
    m_table->resize(400, 300);
    m_table->show();
    QVERIFY(QTest::qWaitForWindowActive(m_table.get()));
}

void tst_TableWidget::hoverStylesTheRow()
{
    moveTo(1);
    QCOMPARE(m_buttons.at(1)->style, TableOperWt::HoverStyle);
    QCOMPARE(m_buttons.at(0)->style, TableOperWt::NormalStyle);
    moveTo(2);
    QCOMPARE(m_buttons.at(1)->style, TableOperWt::NormalStyle);
    QCOMPARE(m_buttons.at(2)->style, TableOperWt::HoverStyle);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(m_table.get(), &leave);
    QCOMPARE(m_buttons.at(2)->style, TableOperWt::NormalStyle);
}

void tst_TableWidget::selectedRowStaysSelectedUnderTheMouse()
{
    moveTo(1);
    m_table->selectRow(1);
    QCOMPARE(m_buttons.at(1)->style, TableOperWt::SelectedStyle);
    m_table->clearSelection();
    QCOMPARE(m_buttons.at(1)->style, TableOperWt::HoverStyle);
}

void tst_TableWidget::hoverIsNoEdit()
{
    QSignalSpy changed(m_table.get(), &QTableWidget::itemChanged);
    moveTo(1);
    moveTo(0);
    QCOMPARE(changed.count(), 0);
}

void tst_TableWidget::noHoverWithoutMouseTracking()
{
    m_table->setMouseTracking(false);
    QMouseEvent move(QEvent::MouseMove, QPointF(20, m_table->rowViewportPosition(1) + 5), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(m_table->viewport(), &move);
    QCOMPARE(m_buttons.at(1)->style, TableOperWt::NormalStyle);
}

void tst_TableWidget::hoverThroughTheRowsButtons()
{
    QWidget* editBt = m_buttons.at(2)->findChild<QPushButton*>(QStringLiteral("editBt"));
    QTest::mouseMove(m_table->windowHandle(), editBt->mapTo(m_table.get(), editBt->rect().center()));
    QTRY_COMPARE(m_buttons.at(2)->style, TableOperWt::HoverStyle);
}

void tst_TableWidget::hoveredRowMayGo()
{
    moveTo(2);
    m_table->removeRow(2);
    QCoreApplication::processEvents();
    moveTo(0);
    QCOMPARE(m_buttons.at(0)->style, TableOperWt::HoverStyle);
}

QTEST_MAIN(tst_TableWidget)
#include "tst_TableWidget.moc"
