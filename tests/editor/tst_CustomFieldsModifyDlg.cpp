#include "FieldsFixture.h"

#include <QHeaderView>
#include <QLabel>
#include <QtTest>

using namespace qarn_personMgr;
using qarn_data::PersonData;

class tst_CustomFieldsModifyDlg : public QObject, protected FieldsFixture
{
    Q_OBJECT
private slots:
    void init() { prepare(); }
    void cleanup() { close(); }

    void showsTheFieldsInOrder();
    void describesEachRow();
    void opensAnEditorForANewField();
    void fillsGaps();
    void stopsAtNine();
    void deletesAfterAQuestion();
    void deletesTheRowThatIsEdited();
    void storesOrderOnOk();
    void storesNothingOnCancel_data();
    void storesNothingOnCancel();
};

void tst_CustomFieldsModifyDlg::showsTheFieldsInOrder()
{
    open({"Zone", "Badge", "Floor"});
    QCOMPARE(names(), (QStringList{"Zone", "Badge", "Floor"}));
    QCOMPARE(child<QLabel>(m_dialog.get(), "title")->text(), QString("Custom Fields Set"));
    QCOMPARE(m_table->columnWidth(0), 200);
    QCOMPARE(m_table->horizontalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
    QCOMPARE(m_table->horizontalHeader()->sectionResizeMode(1), QHeaderView::Stretch);
    QCOMPARE(child<QPushButton>(m_dialog.get(), "addFieldBt")->text(), QString("Add"));
    QCOMPARE(child<QPushButton>(m_dialog.get(), "okBt")->text(), QString("Ok"));
    QCOMPARE(child<QPushButton>(m_dialog.get(), "cancelBt")->text(), QString("Cancel"));
    QVERIFY(child<QWidget>(m_dialog.get(), "addFieldBt")->property("common_bt_style2").toBool());
    QVERIFY(child<QWidget>(m_dialog.get(), "okBt")->property("common_bt_style1").toBool());
    QVERIFY(child<QWidget>(m_dialog.get(), "cancelBt")->property("common_bt_style2").toBool());
}

void tst_CustomFieldsModifyDlg::describesEachRow()
{
    open({"Zone", "Badge"});
    QSet<QString> rowIds;
    for (int row = 0; row < 2; ++row) {
        const QTableWidgetItem* item = m_table->item(row, 0);
        QVERIFY(item->flags().testFlag(Qt::ItemIsEditable));
        QCOMPARE(item->textAlignment(), int(Qt::AlignLeft | Qt::AlignVCenter));
        QCOMPARE(item->toolTip(), item->text());
        QCOMPARE(item->data(Qt::UserRole).toString(), item->text());
        const QString rowId = item->data(Qt::UserRole + 1).toString();
        QVERIFY(!QUuid(rowId).isNull());
        rowIds.insert(rowId);
    }
    QCOMPARE(rowIds.count(), 2);
}

void tst_CustomFieldsModifyDlg::opensAnEditorForANewField()
{
    open({});
    QVERIFY(m_table->hasMouseTracking());
    click(m_dialog.get(), "addFieldBt");
    QCOMPARE(names(), QStringList{"Custom Field1"});
    QVERIFY(editor() != nullptr);
    QCOMPARE(editor()->text(), QString("Custom Field1"));
    QCOMPARE(editor()->maxLength(), 32);
    QVERIFY(editor()->hasFocus());
    QVERIFY(!m_table->hasMouseTracking());
    QTest::keyClicks(editor(), QString(40, 'n')); // replaces the selected default name
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_VERIFY(m_table->hasMouseTracking());
    QVERIFY(m_dialog->isVisible()); // Return ends the edit, not the dialog
    QCOMPARE(names(), QStringList{QString(32, 'n')});
}

void tst_CustomFieldsModifyDlg::fillsGaps()
{
    open({"Custom Field1", "Custom Field3"});
    click(m_dialog.get(), "addFieldBt");
    QCOMPARE(names(), (QStringList{"Custom Field1", "Custom Field3", "Custom Field2"}));
}

void tst_CustomFieldsModifyDlg::stopsAtNine()
{
    open({});
    for (int i = 0; i < 9; ++i)
        click(m_dialog.get(), "addFieldBt");
    QCOMPARE(names().count(), 9);
    QCOMPARE(names().last(), QString("Custom Field9"));
    QCOMPARE(alerts(), QStringList());
    click(m_dialog.get(), "addFieldBt");
    QCOMPARE(names().count(), 9);
    QTRY_COMPARE(alerts(), QStringList{FullAlert});

    expectAnswer(m_modal, "okBt");
    press(4, "deleteBt");
    QCOMPARE(names().count(), 8);
    click(m_dialog.get(), "addFieldBt");
    QCOMPARE(names().last(), QString("Custom Field5"));
    QCOMPARE(alerts().count(), 1);
}

void tst_CustomFieldsModifyDlg::deletesAfterAQuestion()
{
    open({"Zone", "Badge", "Floor"});
    expectAnswer(m_modal, "cancelBt");
    press(1, "deleteBt");
    QCOMPARE(names().count(), 3);
    QString question;
    m_modal.expect([&](QWidget* window) {
        question = child<QLabel>(window, "text")->text();
        click(window, "okBt");
    });
    press(1, "deleteBt");
    QCOMPARE(question, QString("Do you want to delete this custom field?"));
    QCOMPARE(names(), (QStringList{"Zone", "Floor"}));
    QCOMPARE(PersonData::instance().getCustomFields().count(), 3); // not before Ok
    press(1, "editBt");
    QCOMPARE(editor()->text(), QString("Floor")); // the buttons follow their row
}

void tst_CustomFieldsModifyDlg::deletesTheRowThatIsEdited()
{
    open({"Zone", "Badge"});
    QTest::keyClicks(edit(0), "Region");
    expectAnswer(m_modal, "okBt");
    press(0, "deleteBt");
    QCOMPARE(names(), QStringList{"Badge"});
    QTRY_VERIFY(m_table->hasMouseTracking());
    QCOMPARE(alerts(), QStringList());
}

void tst_CustomFieldsModifyDlg::storesOrderOnOk()
{
    open({"Zone", "Badge"});
    click(m_dialog.get(), "addFieldBt");
    expectAnswer(m_modal, "okBt");
    press(0, "deleteBt");
    click(m_dialog.get(), "okBt");
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(PersonData::instance().getCustomFields(), (QStringList{"Badge", "Custom Field1"}));
}

void tst_CustomFieldsModifyDlg::storesNothingOnCancel_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("cancel") << "cancelBt";
    QTest::newRow("close") << "closeBt";
}

void tst_CustomFieldsModifyDlg::storesNothingOnCancel()
{
    QFETCH(QString, button);
    open({"Zone", "Badge", "Floor"});
    click(m_dialog.get(), "addFieldBt");
    expectAnswer(m_modal, "okBt");
    press(0, "deleteBt");
    QTest::keyClicks(edit(0), "Card");
    click(m_dialog.get(), button.toLatin1().constData());
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
    QCOMPARE(PersonData::instance().getCustomFields(), (QStringList{"Zone", "Badge", "Floor"}));
}

QTEST_MAIN(tst_CustomFieldsModifyDlg)
#include "tst_CustomFieldsModifyDlg.moc"
