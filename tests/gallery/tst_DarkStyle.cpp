#include "style/DarkStyle.h"
#include "style/Palette.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTreeWidget>
#include <QtTest>

#include <cmath>

namespace
{

constexpr double readable = 4.5;

double channel(double value)
{
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * channel(color.redF()) + 0.7152 * channel(color.greenF()) +
           0.0722 * channel(color.blueF());
}

double contrast(const QColor& first, const QColor& second)
{
    const double lighter = qMax(luminance(first), luminance(second));
    const double darker = qMin(luminance(first), luminance(second));
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace

class tst_DarkStyle : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { applyDarkStyle(*qApp); }
    void textsCanBeRead();
    void sheetIsUnderstood();
    void namesOnlyImagesThatAreThere();
    void paintsWhatItSays();
    void leavesFixedSizesOfForms();
    void measuresRowsOfAViewBuiltWithoutParent();
};

void tst_DarkStyle::textsCanBeRead()
{
    QVERIFY(qAbs(contrast(Qt::black, Qt::white) - 21) < 0.01);
    for (const palette::TextOnGround& pair : palette::readablePairs()) {
        const QColor text = palette::color(pair.text);
        const QColor ground = palette::color(pair.ground);
        QVERIFY2(contrast(text, ground) >= readable, qPrintable(QStringLiteral("%1 on %2: %3")
                                                                    .arg(text.name(), ground.name())
                                                                    .arg(contrast(text, ground), 0, 'f', 2)));
    }
}

void tst_DarkStyle::sheetIsUnderstood()
{
    static int warnings;
    warnings = 0;
    const QString sheet = qApp->styleSheet();
    QVERIFY(!sheet.isEmpty());
    QVERIFY(!sheet.contains(QLatin1Char('@')));
    const QtMessageHandler before =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { ++warnings; });
    qApp->setStyleSheet(QStringLiteral("QLabel { color: ; } }")); // so that the test would notice
    QPushButton().ensurePolished();
    const int ofABadSheet = warnings;
    warnings = 0;
    qApp->setStyleSheet(sheet);
    QPushButton().ensurePolished();
    qInstallMessageHandler(before);
    QVERIFY(ofABadSheet > 0);
    QCOMPARE(warnings, 0);
}

void tst_DarkStyle::namesOnlyImagesThatAreThere()
{
    static const QRegularExpression image(QStringLiteral("url\\(([^)]+)\\)"));
    int images = 0;
    QRegularExpressionMatchIterator matches = image.globalMatch(qApp->styleSheet());
    while (matches.hasNext()) {
        const QString path = matches.next().captured(1);
        QVERIFY2(QFile::exists(path), qPrintable(path));
        ++images;
    }
    QVERIFY(images > 10);
}

void tst_DarkStyle::paintsWhatItSays()
{
    QPushButton primary;
    primary.setFixedSize(96, 28);
    primary.setProperty("common_bt_style1", true);
    QCOMPARE(primary.grab().toImage().pixelColor(10, 14), palette::color(palette::AccentFill));
    QPushButton number; // a number instead of a truth value means the same
    number.setFixedSize(96, 28);
    number.setProperty("common_bt_style1", 1);
    QCOMPARE(number.grab().toImage().pixelColor(10, 14), palette::color(palette::AccentFill));
    QPushButton other;
    other.setFixedSize(96, 28);
    other.setProperty("common_bt_style2", true);
    QCOMPARE(other.grab().toImage().pixelColor(10, 14), palette::color(palette::Button));
    other.setEnabled(false);
    QCOMPARE(other.grab().toImage().pixelColor(10, 14), palette::color(palette::Line));
}

void tst_DarkStyle::leavesFixedSizesOfForms()
{
    QWidget form;
    for (QWidget* field :
         {static_cast<QWidget*>(new QLineEdit(&form)), static_cast<QWidget*>(new QComboBox(&form)),
          static_cast<QWidget*>(new QSpinBox(&form)), static_cast<QWidget*>(new QPushButton(&form))})
        field->setFixedSize(96, 22);
    form.show();
    for (const QWidget* field : form.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        QCOMPARE(field->minimumSize(), QSize(96, 22));
        QCOMPARE(field->maximumSize(), QSize(96, 22));
    }
}

void tst_DarkStyle::measuresRowsOfAViewBuiltWithoutParent()
{
    auto* tree = new QTreeWidget;
    auto* item = new QTreeWidgetItem(tree, {QStringLiteral("item")});
    QWidget page;
    tree->setParent(&page);
    page.show();
    QTRY_COMPARE(tree->visualItemRect(item).height(), 28);
}

QTEST_MAIN(tst_DarkStyle)
#include "tst_DarkStyle.moc"
