#include "FieldsFixture.h"

#include <QHeaderView>
#include <QLabel>
#include <QtTest>

using namespace qarn_personMgr;
using qarn_data::PersonData;

class tst_CustomFieldRename : public QObject, protected FieldsFixture
{
    Q_OBJECT
private slots:
    void init() { prepare(); }
    void cleanup() { close(); }

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
    void mayGoWhileEditing();
};

void tst_CustomFieldRename::opensTheEditor_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("edit button") << "button";
    QTest::newRow("double click") << "mouse";
    QTest::newRow("F2") << "key";
}

void tst_CustomFieldRename::opensTheEditor()
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

void tst_CustomFieldRename::leavesTheOperColumnAlone()
{
    open({"Zone"});
    QWidget* oper = m_table->cellWidget(0, 1);
    QTest::mouseDClick(oper, Qt::LeftButton, {}, QPoint(oper->width() - 2, 2));
    QCOMPARE(editor(), nullptr);
    QCOMPARE(m_table->cellWidget(0, 1), oper);
}

void tst_CustomFieldRename::acceptsANewName_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("Return") << "return";
    QTest::newRow("Tab") << "tab";
    QTest::newRow("mouse on another row") << "row";
    QTest::newRow("mouse on another row's button") << "button";
}

void tst_CustomFieldRename::acceptsANewName()
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

void tst_CustomFieldRename::refusesATakenName_data()
{
    QTest::addColumn<QString>("way");
    for (const char* way : {"return", "tab", "row", "button", "add", "delete"})
        QTest::newRow(way) << way;
}

void tst_CustomFieldRename::refusesATakenName()
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

void tst_CustomFieldRename::undoesOnEscape()
{
    open({"Zone", "Badge"});
    QTest::keyClicks(edit(0), "Badge");
    QTest::keyClick(editor(), Qt::Key_Escape);
    QTRY_VERIFY(m_table->hasMouseTracking());
    QCOMPARE(names(), (QStringList{"Zone", "Badge"}));
    QCOMPARE(alerts(), QStringList());
    QVERIFY(m_dialog->isVisible()); // Escape ends the edit, not the dialog
}

void tst_CustomFieldRename::ignoresTheOwnName()
{
    open({"Zone", "Badge"});
    QTest::keyClicks(edit(0), "Zone");
    QTest::keyClick(editor(), Qt::Key_Return);
    QTRY_VERIFY(m_table->hasMouseTracking());
    QCOMPARE(names(), (QStringList{"Zone", "Badge"}));
    QCOMPARE(alerts(), QStringList());
}

void tst_CustomFieldRename::comparesExactly()
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

void tst_CustomFieldRename::savesWhatIsStillBeingTyped_data()
{
    QTest::addColumn<bool>("byMouse");
    QTest::newRow("mouse") << true;
    QTest::newRow("without a change of focus") << false;
}

void tst_CustomFieldRename::savesWhatIsStillBeingTyped()
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

void tst_CustomFieldRename::savesTheOldNameForARefusedOne()
{
    open({"Zone", "Badge"});
    QTest::keyClicks(edit(1), "Zone");
    click(m_dialog.get(), "okBt");
    QCOMPARE(PersonData::instance().getCustomFields(), (QStringList{"Zone", "Badge"}));
    QTRY_COMPARE(alerts(), QStringList{TakenAlert});
}

void tst_CustomFieldRename::settlesANameBeforeTheNextField()
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

void tst_CustomFieldRename::mayGoWhileEditing()
{
    open({"Zone", "Badge"});
    QTest::keyClicks(edit(0), "Badge");
    m_dialog.reset(); // the editor dies with it
    QCOMPARE(alerts(), QStringList());
    QCOMPARE(PersonData::instance().getCustomFields(), (QStringList{"Zone", "Badge"}));
}

QTEST_MAIN(tst_CustomFieldRename)
#include "tst_CustomFieldRename.moc"
