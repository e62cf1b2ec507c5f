#include "editor/CustomFieldsModifyDlg.h"

#include "EditorTools.h"
#include "TestStore.h"

#include <qarn_data/PersonData.h>
#include <qarn_worker/SystemAssistant.h>

#include <QHeaderView>
#include <QLabel>
#include <QSignalSpy>
#include <QTableWidget>
#include <QtTest>

using namespace qarn_personMgr;
using qarn_data::PersonData;
using qarn_worker::SystemAssistant;

namespace
{
const QString TakenAlert = QStringLiteral("custom field name has exist");
const QString FullAlert = QStringLiteral("the maximum number of custom fields has been reached");
} // namespace

class tst_CustomFieldsModifyDlg : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void showsTheFieldsInOrder();
    void describesEachRow();
    void opensAnEditorForANewField();
    void fillsGaps();
    void stopsAtNine();
    void opensTheEditor_data();
    void opensTheEditor();
    void leavesTheOperColumnAlone();
    void acceptsANewName_data();
    void acceptsANewName();
    void refusesATakenName_data();
    void refusesATakenName();
    void undoesOnEscape();
    void ignoresTheOwnName();
    void comparesExactly();
    void savesWhatIsStillBeingTyped_data();
    void savesWhatIsStillBeingTyped();
    void savesTheOldNameForARefusedOne();
    void settlesANameBeforeTheNextField();
    void deletesAfterAQuestion();
    void deletesTheRowThatIsEdited();
    void storesOrderOnOk();
    void storesNothingOnCancel_data();
    void storesNothingOnCancel();
    void mayGoWhileEditing();

private:
    void open(const QStringList& fields);
    QStringList names() const;
    QLineEdit* editor() const;
    QLineEdit* edit(int row);
    void press(int row, const char* button) { click(m_table->cellWidget(row, 1), button); }
    QStringList alerts() const;

    std::unique_ptr<TestStore> m_store;
    std::unique_ptr<CustomFieldsModifyDlg> m_dialog;
    std::unique_ptr<QSignalSpy> m_alerts;
    ModalDriver m_modal;
    QTableWidget* m_table = nullptr;
};

void tst_CustomFieldsModifyDlg::init()
{
    m_store = std::make_unique<TestStore>();
    m_alerts =
        std::make_unique<QSignalSpy>(&SystemAssistant::instance(), &SystemAssistant::signalMessageAlert);
}

void tst_CustomFieldsModifyDlg::cleanup()
{
    QCOMPARE(m_modal.pending(), 0);
    m_dialog.reset();
    m_store.reset();
}

void tst_CustomFieldsModifyDlg::open(const QStringList& fields)
{
    PersonData::instance().resetCustomFields(fields);
    m_dialog = std::make_unique<CustomFieldsModifyDlg>(nullptr);
    m_table = child<QTableWidget>(m_dialog.get(), "tableWidget");
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

QStringList tst_CustomFieldsModifyDlg::names() const
{
    QStringList texts;
    for (int row = 0; row < m_table->rowCount(); ++row)
        texts.append(m_table->item(row, 0)->text());
    return texts;
}

QLineEdit* tst_CustomFieldsModifyDlg::editor() const
{
    for (int row = 0; row < m_table->rowCount(); ++row) {
        if (auto* lineEdit = qobject_cast<QLineEdit*>(m_table->cellWidget(row, 0)))
            return lineEdit;
    }
    return nullptr;
}

QLineEdit* tst_CustomFieldsModifyDlg::edit(int row)
{
    press(row, "editBt");
    QLineEdit* lineEdit = editor();
    if (lineEdit == nullptr)
        qFatal("no editor");
    lineEdit->selectAll();
    return lineEdit;
}

QStringList tst_CustomFieldsModifyDlg::alerts() const
{
    QCoreApplication::processEvents();
    QStringList texts;
    for (const QList<QVariant>& alert : *m_alerts)
        texts.append(alert.at(1).toString());
    return texts;
}

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

void tst_CustomFieldsModifyDlg::opensTheEditor_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("edit button") << "button";
    QTest::newRow("double click") << "mouse";
    QTest::newRow("F2") << "key";
}

void tst_CustomFieldsModifyDlg::opensTheEditor()
{
    QFETCH(QString, way);
    open({"Zone", "Badge"});
    const QPoint cell = m_table->visualItemRect(m_table->item(1, 0)).center();
    if (way == "button") {
        press(1, "editBt");
    } else if (way == "mouse") {
        QTest::mouseClick(m_table->viewport(), Qt::LeftButton, {}, cell);
        QTest::mouseDClick(m_table->viewport(), Qt::LeftButton, {}, cell);
    } else {
        m_table->setCurrentCell(1, 0);
        m_table->setFocus();
        QTest::keyClick(m_table, Qt::Key_F2);
    }
    QVERIFY(editor() != nullptr);
    QCOMPARE(editor()->text(), QString("Badge"));
    QCOMPARE(editor()->maxLength(), 32);
    QVERIFY(!m_table->hasMouseTracking());
    editor()->selectAll();
    QTest::keyClicks(editor(), "Zone");
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_COMPARE(alerts(), QStringList{TakenAlert}); // checked however it was opened
    QCOMPARE(names(), (QStringList{"Zone", "Badge"}));
    QTRY_VERIFY(m_table->hasMouseTracking());
}

void tst_CustomFieldsModifyDlg::leavesTheOperColumnAlone()
{
    open({"Zone"});
    QWidget* oper = m_table->cellWidget(0, 1);
    QTest::mouseDClick(oper, Qt::LeftButton, {}, QPoint(oper->width() - 2, 2));
    QCOMPARE(editor(), nullptr);
    QCOMPARE(m_table->cellWidget(0, 1), oper);
}

void tst_CustomFieldsModifyDlg::acceptsANewName_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("Return") << "return";
    QTest::newRow("Tab") << "tab";
    QTest::newRow("mouse on another row") << "row";
    QTest::newRow("mouse on another row's button") << "button";
}

void tst_CustomFieldsModifyDlg::acceptsANewName()
{
    QFETCH(QString, way);
    open({"Zone", "Badge"});
    QTest::keyClicks(edit(0), "Region");
    if (way == "return")
        QTest::keyClick(editor(), Qt::Key_Return);
    else if (way == "tab")
        QTest::keyClick(editor(), Qt::Key_Tab);
    else if (way == "row")
        QTest::mouseClick(m_table->viewport(), Qt::LeftButton, {},
                          m_table->visualItemRect(m_table->item(1, 0)).center());
    else
        press(1, "editBt");
    QTRY_COMPARE(names(), (QStringList{"Region", "Badge"}));
    QTRY_COMPARE(m_table->item(0, 0)->data(Qt::UserRole).toString(), QString("Region"));
    QCOMPARE(m_table->item(0, 0)->toolTip(), QString("Region"));
    QCOMPARE(alerts(), QStringList());
    QTRY_COMPARE(m_table->hasMouseTracking(), way != "button"); // off while the next one is edited
}

void tst_CustomFieldsModifyDlg::refusesATakenName_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"return", "tab", "row", "button", "add", "delete"})
        QTest::newRow(way) << way;
}

void tst_CustomFieldsModifyDlg::refusesATakenName()
{
    QFETCH(QString, way);
    open({"Zone", "Badge", "Floor"});
    QTest::keyClicks(edit(0), "Badge");
    if (way == "return") {
        QTest::keyClick(editor(), Qt::Key_Return);
    } else if (way == "tab") {
        QTest::keyClick(editor(), Qt::Key_Tab);
    } else if (way == "row") {
        QTest::mouseClick(m_table->viewport(), Qt::LeftButton, {},
                          m_table->visualItemRect(m_table->item(2, 0)).center());
    } else if (way == "button") {
        press(2, "editBt");
    } else if (way == "add") {
        click(m_dialog.get(), "addFieldBt");
    } else {
        expectAnswer(m_modal, "cancelBt");
        press(2, "deleteBt");
    }
    QTRY_COMPARE(alerts(), QStringList{TakenAlert});
    QTest::qWait(20); // the editor has gone by now, and did not check a second time
    QCOMPARE(alerts(), QStringList{TakenAlert});
    QCOMPARE(names().mid(0, 3), (QStringList{"Zone", "Badge", "Floor"}));
    QCOMPARE(m_table->item(0, 0)->data(Qt::UserRole).toString(), QString("Zone"));
    QCOMPARE(m_table->item(0, 0)->toolTip(), QString("Zone"));
}

void tst_CustomFieldsModifyDlg::undoesOnEscape()
{
    open({"Zone", "Badge"});
    QTest::keyClicks(edit(0), "Badge");
    QTest::keyClick(editor(), Qt::Key_Escape);
    QTRY_VERIFY(m_table->hasMouseTracking());
    QCOMPARE(names(), (QStringList{"Zone", "Badge"}));
    QCOMPARE(alerts(), QStringList());
    QVERIFY(m_dialog->isVisible()); // Escape ends the edit, not the dialog
}

void tst_CustomFieldsModifyDlg::ignoresTheOwnName()
{
    open({"Zone", "Badge"});
    QTest::keyClicks(edit(0), "Zone");
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_VERIFY(m_table->hasMouseTracking());
    QCOMPARE(names(), (QStringList{"Zone", "Badge"}));
    QCOMPARE(alerts(), QStringList());
}

void tst_CustomFieldsModifyDlg::comparesExactly()
{
    open({"Zone", "Badge", "Floor"});
    QTest::keyClicks(edit(0), "badge");
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_VERIFY(m_table->hasMouseTracking());
    QTest::keyClicks(edit(2), "Badge ");
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_VERIFY(m_table->hasMouseTracking());
    QTest::keyClick(edit(1), Qt::Key_Delete); // an empty name is not refused
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_VERIFY(m_table->hasMouseTracking());
    QCOMPARE(names(), (QStringList{"badge", "", "Badge "}));
    QCOMPARE(alerts(), QStringList());
}

void tst_CustomFieldsModifyDlg::savesWhatIsStillBeingTyped_data()
{
    QTest::addColumn<bool>("byMouse");
    QTest::newRow("mouse") << true;
    QTest::newRow("without a change of focus") << false;
}

void tst_CustomFieldsModifyDlg::savesWhatIsStillBeingTyped()
{
    QFETCH(bool, byMouse);
    open({"Zone", "Badge"});
    QTest::keyClicks(edit(1), "Card");
    if (byMouse)
        click(m_dialog.get(), "okBt");
    else
        child<QPushButton>(m_dialog.get(), "okBt")->click();
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QCOMPARE(PersonData::instance().getCustomFields(), (QStringList{"Zone", "Card"}));
}

void tst_CustomFieldsModifyDlg::savesTheOldNameForARefusedOne()
{
    open({"Zone", "Badge"});
    QTest::keyClicks(edit(1), "Zone");
    click(m_dialog.get(), "okBt");
    QCOMPARE(PersonData::instance().getCustomFields(), (QStringList{"Zone", "Badge"}));
    QTRY_COMPARE(alerts(), QStringList{TakenAlert});
}

void tst_CustomFieldsModifyDlg::settlesANameBeforeTheNextField()
{
    open({"Zone"});
    QTest::keyClicks(edit(0), "Custom Field1");
    click(m_dialog.get(), "addFieldBt");
    QCOMPARE(names(), (QStringList{"Custom Field1", "Custom Field2"}));
    QVERIFY(editor() != nullptr);
    QCOMPARE(editor()->text(), QString("Custom Field2"));
    QTest::qWait(20); // the first editor goes; the second one is still open
    QVERIFY(!m_table->hasMouseTracking());
    QCOMPARE(alerts(), QStringList());
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

void tst_CustomFieldsModifyDlg::mayGoWhileEditing()
{
    open({"Zone", "Badge"});
    QTest::keyClicks(edit(0), "Badge");
    m_dialog.reset(); // the editor dies with it
    QCOMPARE(alerts(), QStringList());
    QCOMPARE(PersonData::instance().getCustomFields(), (QStringList{"Zone", "Badge"}));
}

QTEST_MAIN(tst_CustomFieldsModifyDlg)
#include "tst_CustomFieldsModifyDlg.moc"
