#include <XCOMMON/XPushButton.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>

using XCOMMON::XPushButton;

class tst_XPushButton : public QObject
{
    Q_OBJECT
private slots:
    void isPressedByKeys_data();
    void isPressedByKeys();
    void isReachedByTab();
};

void tst_XPushButton::isPressedByKeys_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Space") << Qt::Key_Space;
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
}

void tst_XPushButton::isPressedByKeys()
{
    QFETCH(Qt::Key, key);
    XPushButton button;
    button.show();
    QSignalSpy spy(&button, &XPushButton::clicked);
    QTest::keyClick(&button, key);
    QCOMPARE(spy.count(), 1);
    button.setEnabled(false);
    QTest::keyClick(&button, key);
    QCOMPARE(spy.count(), 1);
}

void tst_XPushButton::isReachedByTab()
{
    QWidget window;
    QLineEdit edit(&window);
    XPushButton button(&window);
    window.show();
    QApplication::setActiveWindow(&window);
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_Tab);
    QVERIFY(button.hasFocus());
}

QTEST_MAIN(tst_XPushButton)
#include "tst_XPushButton.moc"
