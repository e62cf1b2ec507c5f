#include "PageFixture.h"

#include <qarn_base/ComboBox.h>
#include <qarn_base/IconButton.h>

#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>

using namespace qarn_personMgr;

/// What the page is made of: names, texts, sizes, styles, and the columns below their header.
class tst_PersonMgrFormLayout : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_page = std::make_unique<PageFixture>(); }
    void cleanup() { m_page.reset(); }

    void hasItsWidgets();
    void hasItsTexts();
    void hasItsSizes();
    void marksItsStyles();
    void declaresItsSlotsInOrder();
    void showsEveryTextInANarrowWindow();
    void keepsTheHeaderAboveTheColumns_data();
    void keepsTheHeaderAboveTheColumns();

private:
    std::unique_ptr<PageFixture> m_page;
};

void tst_PersonMgrFormLayout::hasItsWidgets()
{
    m_page->open();
    QCOMPARE(m_page->form->objectName(), QStringLiteral("qarn_personMgr__PersonMgrForm"));
    QCOMPARE(m_page->form->windowTitle(), QStringLiteral("PersonMgrForm"));
    QCOMPARE(m_page->form->formType(), 15);
    QVERIFY(m_page->form->parent() == nullptr);
    for (const char* name : {"widget", "widget_2", "searchWt", "treeWidget", "spaceWt", "widget_3",
                             "widget_4", "widget_5", "orderNumWt", "scrollArea", "pageIndexWt"})
        QVERIFY2(m_page->child<QWidget>(name) != nullptr, name);
    QCOMPARE(m_page->child<QScrollArea>("scrollArea")->widget(), m_page->table());
    auto* types = m_page->child<qarn_base::ComboBox>("validType");
    QCOMPARE(types->count(), 3);
    QCOMPARE(types->itemText(0), QStringLiteral("Valid And Invalid"));
    QCOMPARE(types->itemText(1), QStringLiteral("Invalid"));
    QCOMPARE(types->itemText(2), QStringLiteral("Valid"));
    QVERIFY(!m_page->child<QCheckBox>("displayChildren")->isChecked());
    QCOMPARE(m_page->child<QWidget>("widget_5")->layout()->objectName(),
             QStringLiteral("horizontalLayout_12"));
}

void tst_PersonMgrFormLayout::hasItsTexts()
{
    const QList<QPair<const char*, QString>> texts{{"label", "Organizations"},
                                                   {"displayChildren", "display child organization person"},
                                                   {"label_4", "Name"},
                                                   {"label_5", "Serial Num"},
                                                   {"label_6", "Valid Range"},
                                                   {"resetBt", "Reset"},
                                                   {"searchBt", "Search"},
                                                   {"addPersonBt", "Add Person"},
                                                   {"deletePersonsBt", "Del Person"},
                                                   {"movePersonsBt", "Move Person"},
                                                   {"importPersonsBt", "Import Person"},
                                                   {"exportPersonsBt", "Export Person"},
                                                   {"synchronizeToDevBt", "Send to Dev"},
                                                   {"synchronizeFromDevBt", "Sync From Dev"},
                                                   {"setCustomFieldsBt", "CustomProperty"},
                                                   {"addOrganizationBt", ""},
                                                   {"deleteOrganizationBt", ""},
                                                   {"selAll", "All"},
                                                   {"label_7", "Face Image"},
                                                   {"label_9", "Serial Num"},
                                                   {"label_8", "Name"},
                                                   {"label_10", "Sex"},
                                                   {"label_11", "Organization"},
                                                   {"label_12", "Is Valid"},
                                                   {"label_13", "Oper"}};
    m_page->open();
    for (const auto& text : texts)
        QVERIFY2(m_page->child<QWidget>(text.first)->property("text").toString() == text.second, text.first);
    QCOMPARE(m_page->child<QLineEdit>("name")->placeholderText(), QStringLiteral("Please input name..."));
    QCOMPARE(m_page->child<QLineEdit>("serialNum")->placeholderText(),
             QStringLiteral("Please input serail num..."));
    QCOMPARE(m_page->child<QWidget>("addOrganizationBt")->toolTip(), QStringLiteral("add organization"));
    QCOMPARE(m_page->child<QWidget>("deleteOrganizationBt")->toolTip(),
             QStringLiteral("delete organization"));
}

void tst_PersonMgrFormLayout::hasItsSizes()
{
    const int any = -1;
    QList<QPair<const char*, QSize>> sizes{
        {"widget", {258, any}},          {"widget_2", {any, 38}},
        {"addOrganizationBt", {18, 18}}, {"deleteOrganizationBt", {18, 18}},
        {"searchWt", {any, 28}},         {"spaceWt", {1, any}},
        {"widget_3", {any, 50}},         {"name", {165, 28}},
        {"serialNum", {165, 28}},        {"validType", {165, 28}},
        {"widget_4", {any, 50}},         {"widget_5", {any, 30}},
        {"orderNumWt", {125, any}},      {"pageIndexWt", {any, 50}}};
    for (const char* name : {"label_4", "label_5", "label_6", "resetBt", "searchBt", "addPersonBt",
                             "deletePersonsBt", "movePersonsBt", "importPersonsBt", "exportPersonsBt",
                             "synchronizeToDevBt", "synchronizeFromDevBt", "setCustomFieldsBt"})
        sizes.append({name, QSize(any, 28)});
    m_page->open(QSize(1600, 900));
    for (const auto& size : sizes) {
        const QSize actual = m_page->child<QWidget>(size.first)->size();
        QVERIFY2(size.second.width() == any || size.second.width() == actual.width(), size.first);
        QVERIFY2(size.second.height() == any || size.second.height() == actual.height(), size.first);
    }
    for (const char* name : {"resetBt", "searchBt"})
        QCOMPARE(m_page->child<QWidget>(name)->minimumWidth(), 84);
    for (qarn_base::IconButton* button : m_page->form->findChildren<qarn_base::IconButton*>())
        QCOMPARE(button->minimumWidth(), 102);
    for (const char* name :
         {"label_7", "label_8", "label_9", "label_10", "label_11", "label_12", "label_13"}) {
        QCOMPARE(m_page->child<QWidget>(name)->minimumWidth(), 100);
        QCOMPARE(m_page->child<QWidget>(name)->maximumWidth(), 2000);
    }
}

void tst_PersonMgrFormLayout::marksItsStyles()
{
    m_page->open();
    QVERIFY(m_page->child<QWidget>("searchBt")->property("common_bt_style1").toBool());
    QVERIFY(m_page->child<QWidget>("resetBt")->property("common_bt_style2").toBool());
    const auto buttons = m_page->form->findChildren<qarn_base::IconButton*>();
    QCOMPARE(buttons.count(), 8);
    for (qarn_base::IconButton* button : buttons) {
        QVERIFY2(button->property("common_bt_style2").toBool(), qPrintable(button->objectName()));
        QVERIFY2(!button->icon().pixmap(12, 12).isNull(), qPrintable(button->objectName()));
    }
    const QScrollBar* bar = m_page->child<QScrollArea>("scrollArea")->verticalScrollBar();
    QVERIFY(bar->property("common_scrollBar_style3").toBool());
    QVERIFY(m_page->child<QWidget>("selAll")->property("conmmon_checkbox_style1").toBool());
    QCOMPARE(m_page->child<QWidget>("orderNumWt")->styleSheet(), QStringLiteral("background-color:#141f30;"));
}

void tst_PersonMgrFormLayout::declaresItsSlotsInOrder()
{
    const QMetaObject& meta = PersonMgrForm::staticMetaObject;
    QStringList names;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        names.append(QString::fromLatin1(meta.method(i).name()));
    }
    QCOMPARE(names,
             QStringList({"slotAddPersonBtClicked", "slotDeletePersonsBtClicked", "slotMovePersonsBtClicked",
                          "slotExportPersonsBtClicked", "slotImportPersonsBtClicked",
                          "slotSynchronizeToDevBtClicked", "slotSynchronizeFromDevBtClicked",
                          "slotCurPagePersons", "slotAddPersonsToLocalDB", "slotUpdatePersonInLocalDB",
                          "slotDeletePersonsFromLocalDB"}));
}

void tst_PersonMgrFormLayout::showsEveryTextInANarrowWindow()
{
    m_page->open(QSize(1, 1));
    const auto buttons = m_page->form->findChildren<qarn_base::IconButton*>();
    for (const qarn_base::IconButton* button : buttons)
        QVERIFY2(button->width() >= button->sizeHint().width(), qPrintable(button->objectName()));
}

void tst_PersonMgrFormLayout::keepsTheHeaderAboveTheColumns_data()
{
    QTest::addColumn<int>("persons");
    QTest::addColumn<QSize>("size");
    QTest::newRow("no scroll bar") << 3 << QSize(1280, 720);
    QTest::newRow("scroll bar") << 20 << QSize(1280, 720);
    QTest::newRow("scroll bar, odd width") << 20 << QSize(1283, 720);
    QTest::newRow("no scroll bar, wide") << 3 << QSize(2560, 1440);
    QTest::newRow("scroll bar, wide") << 20 << QSize(2560, 1440);
}

void tst_PersonMgrFormLayout::keepsTheHeaderAboveTheColumns()
{
    QFETCH(int, persons);
    QFETCH(QSize, size);
    m_page->addPersons(persons, "east");
    m_page->open(size);
    const bool bar = persons > 10;
    const QMargins margins(0, 1, bar ? 16 : 0, 1);
    QTRY_COMPARE(m_page->child<QWidget>("widget_5")->layout()->contentsMargins(), margins);
    QCOMPARE(m_page->child<QScrollArea>("scrollArea")->verticalScrollBar()->isVisible(), bar);
    const auto middle = [this](QWidget* widget) {
        return widget->mapTo(m_page->form, QPoint(widget->width() / 2, 0)).x();
    };
    const QList<QPair<const char*, const char*>> columns{
        {"label_7", "faceImage"}, {"label_9", "serialNum"},     {"label_8", "name"},
        {"label_10", "sex"},      {"label_11", "organization"}, {"label_12", "isValid"}};
    // The scroll bar's own width is a matter of the host's style, which is not loaded here.
    const int barWidth = m_page->child<QScrollArea>("scrollArea")->verticalScrollBar()->width();
    const int tolerance = 3 + (bar ? qAbs(16 - barWidth) : 0);
    for (const auto& column : columns) {
        auto* cell = m_page->rows().first()->findChild<QWidget*>(column.second);
        QTRY_VERIFY2(qAbs(middle(m_page->child<QWidget>(column.first)) - middle(cell)) <= tolerance,
                     column.second);
    }

    // The margin follows when the bar comes or goes.
    m_page->addPersons(30, "west", "W");
    m_page->selectOrganization(bar ? "inner" : "west");
    const QMargins after(0, 1, bar ? 0 : 16, 1);
    QTRY_COMPARE(m_page->child<QWidget>("widget_5")->layout()->contentsMargins(), after);
}

QTEST_MAIN(tst_PersonMgrFormLayout)
#include "tst_PersonMgrFormLayout.moc"
