#include <XCOMMON/PEWidget.h>

#include <QMouseEvent>
#include <QtTest>

using XCOMMON::PEWidget;

class tst_PEWidget : public QObject
{
    Q_OBJECT
private slots:
    void paintsWhatItsStyleSheetSays();
    void keepsClicksFromItsParent();
};

void tst_PEWidget::paintsWhatItsStyleSheetSays()
{
    PEWidget row;
    row.resize(40, 40);
    row.setStyleSheet(QStringLiteral("QWidget{background-color:#213147;border-bottom: 1px solid #ff0000;}"));
    const QImage image = row.grab().toImage();
    QCOMPARE(image.pixelColor(20, 20), QColor("#213147"));
    QCOMPARE(image.pixelColor(20, 39), QColor("#ff0000"));
}

void tst_PEWidget::keepsClicksFromItsParent()
{
    struct Parent : QWidget {
        int releases = 0;
        int doubleClicks = 0;
        void mouseReleaseEvent(QMouseEvent*) override { ++releases; }
        void mouseDoubleClickEvent(QMouseEvent*) override { ++doubleClicks; }
    } parent;
    PEWidget row(&parent);
    row.resize(40, 40);
    parent.show();
    QTest::mouseClick(&row, Qt::LeftButton);
    QTest::mouseDClick(&row, Qt::LeftButton);
    QCOMPARE(parent.releases, 0);
    QCOMPARE(parent.doubleClicks, 0);
}

QTEST_MAIN(tst_PEWidget)
#include "tst_PEWidget.moc"
