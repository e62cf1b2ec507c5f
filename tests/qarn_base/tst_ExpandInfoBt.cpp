#include <qarn_base/ExpandInfoBt.h>

#include <QSignalSpy>
#include <QtTest>

using qarn_base::ExpandInfoBt;

class tst_ExpandInfoBt : public QObject
{
    Q_OBJECT
private slots:
    void unfoldsAndFolds();
    void worksByKey();
    void showsItsState();
};

void tst_ExpandInfoBt::unfoldsAndFolds()
{
    ExpandInfoBt button;
    button.setText(QStringLiteral("Custom Info"));
    button.resize(300, 28);
    button.show();
    QSignalSpy expand(&button, &ExpandInfoBt::signalExpand);
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(expand.count(), 2);
    QCOMPARE(expand.at(0).at(0).toBool(), true);
    QCOMPARE(expand.at(1).at(0).toBool(), false);
}

void tst_ExpandInfoBt::worksByKey()
{
    ExpandInfoBt button;
    button.show();
    QSignalSpy expand(&button, &ExpandInfoBt::signalExpand);
    QTest::keyClick(&button, Qt::Key_Space);
    QCOMPARE(expand.count(), 1);
}

void tst_ExpandInfoBt::showsItsState()
{
    ExpandInfoBt button;
    button.setText(QStringLiteral("Custom Info"));
    button.resize(300, 28);
    button.show();
    const QImage folded = button.grab().toImage();
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(button.grab().toImage() != folded);
    QVERIFY(button.isChecked());
}

QTEST_MAIN(tst_ExpandInfoBt)
#include "tst_ExpandInfoBt.moc"
