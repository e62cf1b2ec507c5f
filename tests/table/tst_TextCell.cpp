#include "table/TextCell.h"

#include <QHelpEvent>
#include <QSignalSpy>
#include <QToolTip>
#include <QtTest>

using qarn_personMgr::TextCell;

class tst_TextCell : public QObject
{
    Q_OBJECT
private slots:
    void asksForNoWidth_data();
    void asksForNoWidth();
    void breaksLongWords();
    void showsTheWholeTextOfACutCell();
    void takesMarkUpAsText();

private:
    /// Columns, from the left, that hold a bright pixel.
    static QPair<int, int> inkedColumns(const QImage& image);
    static int inkedRows(const QImage& image);
};

QPair<int, int> tst_TextCell::inkedColumns(const QImage& image)
{
    int first = -1;
    int last = -1;
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (qGray(image.pixel(x, y)) > 100) {
                first = first < 0 ? x : first;
                last = x;
            }
        }
    }
    return {first, last};
}

int tst_TextCell::inkedRows(const QImage& image)
{
    int rows = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qGray(image.pixel(x, y)) > 100) {
                ++rows;
                break;
            }
        }
    }
    return rows;
}

void tst_TextCell::asksForNoWidth_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("one long word") << QString(64, QLatin1Char('W'));
    QTest::newRow("emoji") << QString::fromUtf8("😀").repeated(64);
    QTest::newRow("lines") << QStringLiteral("a\nb\nc\nd\ne\nf\ng\nh\ni\nj");
}

void tst_TextCell::asksForNoWidth()
{
    QFETCH(QString, text);
    TextCell cell;
    cell.setWordWrap(true);
    cell.setText(text);
    QCOMPARE(cell.text(), text);
    QCOMPARE(cell.minimumSizeHint().width(), 0);
    QVERIFY(!cell.hasHeightForWidth());
    cell.resize(100, 120);
    QVERIFY(!cell.grab().isNull());
    cell.resize(0, 0);
    cell.resize(1, 1);
    QVERIFY(!cell.grab().isNull());
}

void tst_TextCell::breaksLongWords()
{
    TextCell cell;
    cell.setStyleSheet(QStringLiteral("background-color:black;color:white;"));
    cell.resize(100, 120);
    cell.setText(QStringLiteral("MM"));
    const QImage shortText = cell.grab().toImage();
    cell.setText(QString(20, QLatin1Char('M')));
    const QImage longText = cell.grab().toImage();

    QVERIFY(inkedRows(shortText) > 0);
    QVERIFY2(inkedRows(longText) > 1.5 * inkedRows(shortText), "more than one line");
    const auto columns = inkedColumns(longText);
    QVERIFY2(columns.first > 0 && columns.second < 99, "nothing is cut off at the sides");
    const auto centred = inkedColumns(shortText);
    QVERIFY(qAbs(centred.first + centred.second - 99) <= 4);
}

void tst_TextCell::showsTheWholeTextOfACutCell()
{
    TextCell cell;
    cell.resize(100, 40);
    cell.show();
    QVERIFY(QTest::qWaitForWindowExposed(&cell));
    const auto askForToolTip = [&cell] {
        QHelpEvent help(QEvent::ToolTip, QPoint(50, 20), cell.mapToGlobal(QPoint(50, 20)));
        QApplication::sendEvent(&cell, &help);
    };
    cell.setText(QStringLiteral("short"));
    askForToolTip();
    QVERIFY(!QToolTip::isVisible());
    const QString text = QStringLiteral("a rather long text of many words <b>that</b> does not fit in here");
    cell.setText(text);
    askForToolTip();
    QTRY_VERIFY(QToolTip::isVisible());
    QVERIFY2(QToolTip::text().contains(text.toHtmlEscaped()), qPrintable(QToolTip::text()));
    QToolTip::hideText();
}

void tst_TextCell::takesMarkUpAsText()
{
    TextCell plain;
    plain.resize(200, 40);
    plain.setStyleSheet(QStringLiteral("background-color:black;color:white;"));
    plain.setText(QStringLiteral("<b></b>"));
    QVERIFY(inkedRows(plain.grab().toImage()) > 0);
}

QTEST_MAIN(tst_TextCell)
#include "tst_TextCell.moc"
