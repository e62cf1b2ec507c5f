#include "DialogParts.h"

#include "transfer/ExportPersonsDlg.h"

#include <qarn_worker/SystemAssistant.h>

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTreeWidget>

using dialogParts::part;
using qarn_personMgr::ExportPersonsDlg;
using qarn_worker::SystemAssistant;

namespace
{

const char* const info = "personInfoTreeWt";
const char* const face = "personFaceTreeWt";

QTreeWidgetItem* item(const QWidget& dialog, const char* tree, int position)
{
    return part<QTreeWidget>(dialog, tree)->topLevelItem(position);
}

QStringList texts(const QWidget& dialog, const char* tree)
{
    QStringList result;
    for (int i = 0; i < part<QTreeWidget>(dialog, tree)->topLevelItemCount(); ++i)
        result.append(item(dialog, tree, i)->text(0));
    return result;
}

/// "x" checked, "-" unchecked, "~" partly, one character an item.
QString states(const QWidget& dialog, const char* tree)
{
    QString result;
    for (int i = 0; i < part<QTreeWidget>(dialog, tree)->topLevelItemCount(); ++i)
        result += QStringLiteral("-~x").at(item(dialog, tree, i)->checkState(0));
    return result;
}

/// Clicks the box of an item with the mouse, or its text.
void clickItem(const QWidget& dialog, const char* tree, int position, bool onText = false)
{
    auto* widget = part<QTreeWidget>(dialog, tree);
    const QRect row = widget->visualItemRect(widget->topLevelItem(position));
    QVERIFY(row.isValid());
    QTest::mouseClick(widget->viewport(), Qt::LeftButton, Qt::NoModifier,
                      QPoint(onText ? row.left() + 60 : row.left() + 9, row.center().y()));
}

QString rule(const QWidget& dialog)
{
    return part<QLineEdit>(dialog, "namingRules")->text();
}

} // namespace

class tst_ExportPersonsDlg : public QObject
{
    Q_OBJECT
private slots:
    void startsWithAllColumns();
    void holdsItsTexts();
    void startsWithThreeFaceElements();
    void givesColumnsInFileOrder();
    void givesColumnsInFaceMode();
    void followsTheFirstItem();
    void updatesTheFirstItem();
    void ignoresAClickOnTheText();
    void movesARecheckedElementToTheEnd();
    void addsAndRemovesAllElements();
    void startsARuleFromNothing();
    void leavesTheRuleInFileMode();
    void takesOtherWordsForTheIdentity();
    void changesBoxesByKeyboard();
    void refusesWithoutColumns_data();
    void refusesWithoutColumns();
    void acceptsAndRejects();

private:
    static void show(ExportPersonsDlg& dialog, bool faceMode);
};

void tst_ExportPersonsDlg::show(ExportPersonsDlg& dialog, bool faceMode)
{
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    part<QRadioButton>(dialog, faceMode ? "faceChecked" : "personChecked")->click();
}

void tst_ExportPersonsDlg::startsWithAllColumns()
{
    const ExportPersonsDlg dialog(nullptr);
    QCOMPARE(dialog.objectName(), QString("qarn_personMgr__ExportPersonsDlg"));
    QVERIFY(!dialog.isFaceMode());
    QVERIFY(dialog.isExportChildren());
    QVERIFY(part<QRadioButton>(dialog, "personChecked")->isChecked());
    QCOMPARE(part<QStackedWidget>(dialog, "stackedWidget")->currentIndex(), 0);
    QCOMPARE(texts(dialog, info),
             (QStringList{"Sel All Columns", "Serail Num", "Person Name", "Organization", "Gender", "Email",
                          "Phone Num", "Identity ID", "Valid Time", "Invalid Time"}));
    QCOMPARE(states(dialog, info), QString("xxxxxxxxxx"));
    QStringList titles{"of an earlier call"};
    QCOMPARE(dialog.getColumns(titles), 511);
    QCOMPARE(titles, (QStringList{"*Serail Num", "*Person Name", "Organization", "Sex", "Email", "Phone Num",
                                  "Identity ID", "Valid Time", "Invalid Time"}));
}

void tst_ExportPersonsDlg::holdsItsTexts()
{
    const ExportPersonsDlg dialog(nullptr);
    QCOMPARE(part<QLabel>(dialog, "label")->text(), QString("Export"));
    QCOMPARE(part<QLabel>(dialog, "label_2")->text(), QString("Sel expot colums"));
    QCOMPARE(part<QLabel>(dialog, "label_3")->text(), QString("Column order"));
    QCOMPARE(part<QLabel>(dialog, "label_3")->parentWidget()->objectName(), QString("namingRulesWt"));
    const QList<QPair<const char*, const char*>> buttons{
        {"personChecked", "Person Info"},
        {"faceChecked", "Person Face"},
        {"exportChildren", "Export child organization persons"},
        {"exportBt", "Export"},
        {"cancelBt", "Cancel"}};
    for (const auto& button : buttons)
        QCOMPARE(part<QAbstractButton>(dialog, button.first)->text(), QString(button.second));
    QVERIFY(part<QPushButton>(dialog, "exportBt")->property("common_bt_style1").toBool());
    QVERIFY(part<QPushButton>(dialog, "cancelBt")->property("common_bt_style2").toBool());
}

void tst_ExportPersonsDlg::startsWithThreeFaceElements()
{
    ExportPersonsDlg dialog(nullptr);
    show(dialog, true);
    QVERIFY(dialog.isFaceMode());
    QCOMPARE(part<QStackedWidget>(dialog, "stackedWidget")->currentIndex(), 1);
    QCOMPARE(texts(dialog, face), (QStringList{"Sel All Columns", "Serail Num", "Person Name", "Gender",
                                               "Phone Num", "Identity ID"}));
    QCOMPARE(states(dialog, face), QString("~xxx--"));
    QCOMPARE(rule(dialog), QString("Serail Num_Person Name_Gender"));
    QVERIFY(part<QLineEdit>(dialog, "namingRules")->isReadOnly());
    QCOMPARE(dialog.getFaceElements(), (QList<int>{1, 2, 8}));
}

void tst_ExportPersonsDlg::givesColumnsInFileOrder()
{
    ExportPersonsDlg dialog(nullptr);
    show(dialog, false);
    clickItem(dialog, info, 0); // none
    for (const int position : {9, 4, 1})
        clickItem(dialog, info, position);
    QStringList titles;
    QCOMPARE(dialog.getColumns(titles), 256 + 8 + 1);
    QCOMPARE(titles, (QStringList{"*Serail Num", "Sex", "Invalid Time"}));
}

void tst_ExportPersonsDlg::givesColumnsInFaceMode()
{
    ExportPersonsDlg dialog(nullptr);
    show(dialog, true);
    QStringList titles;
    QCOMPARE(dialog.getColumns(titles), 1 + 2 + 8);
    QCOMPARE(titles, (QStringList{"*Serail Num", "*Person Name", "Sex"}));
    clickItem(dialog, face, 0);
    QCOMPARE(dialog.getColumns(titles), 1 + 2 + 8 + 32 + 64);
    QCOMPARE(titles, (QStringList{"*Serail Num", "*Person Name", "Sex", "Phone Num", "Identity ID"}));
}

void tst_ExportPersonsDlg::followsTheFirstItem()
{
    ExportPersonsDlg dialog(nullptr);
    show(dialog, false);
    clickItem(dialog, info, 0);
    QCOMPARE(states(dialog, info), QString("----------"));
    clickItem(dialog, info, 0);
    QCOMPARE(states(dialog, info), QString("xxxxxxxxxx"));
    QCOMPARE(states(dialog, face), QString("~xxx--"));
}

void tst_ExportPersonsDlg::updatesTheFirstItem()
{
    ExportPersonsDlg dialog(nullptr);
    show(dialog, false);
    clickItem(dialog, info, 3);
    QCOMPARE(states(dialog, info), QString("~xx-xxxxxx"));
    clickItem(dialog, info, 3);
    QCOMPARE(states(dialog, info), QString("xxxxxxxxxx"));
    for (int i = 1; i <= 9; ++i)
        clickItem(dialog, info, i);
    QCOMPARE(states(dialog, info), QString("----------"));
}

void tst_ExportPersonsDlg::ignoresAClickOnTheText()
{
    ExportPersonsDlg dialog(nullptr);
    show(dialog, true);
    for (int i = 0; i <= 5; ++i)
        clickItem(dialog, face, i, true);
    QCOMPARE(states(dialog, face), QString("~xxx--"));
    QCOMPARE(rule(dialog), QString("Serail Num_Person Name_Gender"));
}

void tst_ExportPersonsDlg::movesARecheckedElementToTheEnd()
{
    ExportPersonsDlg dialog(nullptr);
    show(dialog, true);
    clickItem(dialog, face, 2);
    QCOMPARE(rule(dialog), QString("Serail Num_Gender"));
    clickItem(dialog, face, 2);
    QCOMPARE(rule(dialog), QString("Serail Num_Gender_Person Name"));
    QCOMPARE(dialog.getFaceElements(), (QList<int>{1, 8, 2}));
    QCOMPARE(states(dialog, face), QString("~xxx--"));
}

void tst_ExportPersonsDlg::addsAndRemovesAllElements()
{
    ExportPersonsDlg dialog(nullptr);
    show(dialog, true);
    clickItem(dialog, face, 0);
    QCOMPARE(states(dialog, face), QString("xxxxxx"));
    QCOMPARE(rule(dialog), QString("Serail Num_Person Name_Gender_Phone Num_Identity ID"));
    QCOMPARE(dialog.getFaceElements(), (QList<int>{1, 2, 8, 32, 64}));
    clickItem(dialog, face, 0);
    QCOMPARE(states(dialog, face), QString("------"));
    QCOMPARE(rule(dialog), QString());
}

void tst_ExportPersonsDlg::startsARuleFromNothing()
{
    ExportPersonsDlg dialog(nullptr);
    show(dialog, true);
    for (const int position : {1, 2, 3})
        clickItem(dialog, face, position);
    QCOMPARE(rule(dialog), QString());
    clickItem(dialog, face, 4);
    clickItem(dialog, face, 1);
    QCOMPARE(rule(dialog), QString("Phone Num_Serail Num"));
    QCOMPARE(dialog.getFaceElements(), (QList<int>{32, 1}));
}

void tst_ExportPersonsDlg::leavesTheRuleInFileMode()
{
    ExportPersonsDlg dialog(nullptr);
    show(dialog, false);
    clickItem(dialog, info, 1);
    QCOMPARE(rule(dialog), QString("Serail Num_Person Name_Gender"));
}

void tst_ExportPersonsDlg::takesOtherWordsForTheIdentity()
{
    const ExportPersonsDlg dialog(nullptr);
    part<QLineEdit>(dialog, "namingRules")->setText(" Gender_whatever_Serail Num ");
    QCOMPARE(dialog.getFaceElements(), (QList<int>{8, 64, 1}));
}

void tst_ExportPersonsDlg::changesBoxesByKeyboard()
{
    ExportPersonsDlg dialog(nullptr);
    show(dialog, true);
    auto* tree = part<QTreeWidget>(dialog, face);
    tree->setFocus();
    tree->setCurrentItem(tree->topLevelItem(4));
    QTest::keyClick(tree, Qt::Key_Space);
    QCOMPARE(states(dialog, face), QString("~xxxx-"));
    QCOMPARE(rule(dialog), QString("Serail Num_Person Name_Gender_Phone Num"));
}

void tst_ExportPersonsDlg::refusesWithoutColumns_data()
{
    QTest::addColumn<bool>("faceMode");
    QTest::addColumn<int>("clicks"); // on the first item, until nothing is checked
    QTest::newRow("person file") << false << 1;
    QTest::newRow("face files") << true << 2;
}

void tst_ExportPersonsDlg::refusesWithoutColumns()
{
    QFETCH(bool, faceMode);
    QFETCH(int, clicks);
    ExportPersonsDlg dialog(nullptr);
    show(dialog, faceMode);
    for (int i = 0; i < clicks; ++i)
        clickItem(dialog, faceMode ? face : info, 0);
    QSignalSpy alerts(&SystemAssistant::instance(), &SystemAssistant::signalMessageAlert);
    part<QPushButton>(dialog, "exportBt")->click();
    QTRY_COMPARE(alerts.count(), 1);
    QCOMPARE(alerts[0], (QVariantList{"Warning", "Please select export columns"}));
    QVERIFY(dialog.isVisible());
    clickItem(dialog, faceMode ? face : info, 1); // partly is enough
    part<QPushButton>(dialog, "exportBt")->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(alerts.count(), 1);
}

void tst_ExportPersonsDlg::acceptsAndRejects()
{
    ModalDriver driver;
    const QList<QPair<const char*, int>> ends{{"exportBt", 1}, {"cancelBt", 0}};
    for (const auto& end : ends) {
        ExportPersonsDlg dialog(nullptr);
        driver.expect([end](QWidget* window) { part<QPushButton>(*window, end.first)->click(); });
        QCOMPARE(dialog.exec(), end.second);
    }
    ExportPersonsDlg dialog(nullptr);
    part<QCheckBox>(dialog, "exportChildren")->click();
    QVERIFY(!dialog.isExportChildren());
}

QTEST_MAIN(tst_ExportPersonsDlg)
#include "tst_ExportPersonsDlg.moc"
