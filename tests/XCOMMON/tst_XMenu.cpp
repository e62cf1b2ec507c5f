#include <XCOMMON/XMenu.h>

#include <ModalDriver.h>

#include <QSignalSpy>
#include <QtTest>

using XCOMMON::XMenu;

class tst_XMenu : public QObject
{
    Q_OBJECT
private slots:
    void isUsedByKeys();
    void isLeftByEscape();
};

void tst_XMenu::isUsedByKeys()
{
    XMenu menu;
    QAction* first = menu.addAction(QStringLiteral("Delete Checked Persons"));
    QAction* second = menu.addAction(QStringLiteral("Delete All Persons"));
    QSignalSpy firstSpy(first, &QAction::triggered);
    QSignalSpy secondSpy(second, &QAction::triggered);
    ModalDriver driver;
    driver.expect([](QWidget* popup) {
        QTest::keyClick(popup, Qt::Key_Down);
        QTest::keyClick(popup, Qt::Key_Down);
        QTest::keyClick(popup, Qt::Key_Return);
    });
    QCOMPARE(menu.exec(QPoint(10, 10)), second);
    QCOMPARE(firstSpy.count(), 0);
    QCOMPARE(secondSpy.count(), 1);
    QCOMPARE(driver.pending(), 0);
}

void tst_XMenu::isLeftByEscape()
{
    XMenu menu;
    menu.addAction(QStringLiteral("Delete All Persons"));
    ModalDriver driver;
    driver.expect([](QWidget* popup) { QTest::keyClick(popup, Qt::Key_Escape); });
    QCOMPARE(menu.exec(QPoint(10, 10)), nullptr);
    QCOMPARE(driver.pending(), 0);
}

QTEST_MAIN(tst_XMenu)
#include "tst_XMenu.moc"
