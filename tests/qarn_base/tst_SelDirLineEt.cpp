#include <qarn_base/SelDirLineEt.h>

#include <QDialog>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

using qarn_base::SelDirLineEt;

class tst_SelDirLineEt : public QObject
{
    Q_OBJECT
private slots:
    void asksOnClickReturnAndSpace();
    void pressReleasedOutsideAsksNothing();
    void cannotBeTypedInto();
    void returnDoesNotReachTheDialog();
};

void tst_SelDirLineEt::asksOnClickReturnAndSpace()
{
    SelDirLineEt field;
    QSignalSpy clicked(&field, &SelDirLineEt::signalClicked);
    field.show();
    QTest::mouseClick(&field, Qt::LeftButton);
    QTest::keyClick(&field, Qt::Key_Return);
    QTest::keyClick(&field, Qt::Key_Space);
    QCOMPARE(clicked.count(), 3);
    field.setEnabled(false);
    QTest::mouseClick(&field, Qt::LeftButton);
    QCOMPARE(clicked.count(), 3);
}

void tst_SelDirLineEt::pressReleasedOutsideAsksNothing()
{
    SelDirLineEt field;
    QSignalSpy clicked(&field, &SelDirLineEt::signalClicked);
    field.show();
    QTest::mousePress(&field, Qt::LeftButton);
    QTest::mouseRelease(&field, Qt::LeftButton, Qt::NoModifier, QPoint(-20, -20));
    QCOMPARE(clicked.count(), 0);
}

void tst_SelDirLineEt::cannotBeTypedInto()
{
    SelDirLineEt field;
    field.setText(QStringLiteral("/tmp/faces"));
    field.show();
    QTest::keyClicks(&field, QStringLiteral("xyz"));
    QTest::keyClick(&field, Qt::Key_Backspace);
    QCOMPARE(field.text(), QStringLiteral("/tmp/faces"));
}

void tst_SelDirLineEt::returnDoesNotReachTheDialog()
{
    QDialog dialog;
    auto* field = new SelDirLineEt(&dialog);
    auto* okBt = new QPushButton(&dialog);
    okBt->setDefault(true);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(field);
    layout->addWidget(okBt);
    QSignalSpy pressed(okBt, &QPushButton::clicked);
    QSignalSpy clicked(field, &SelDirLineEt::signalClicked);
    dialog.show();
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(pressed.count(), 0);
}

QTEST_MAIN(tst_SelDirLineEt)
#include "tst_SelDirLineEt.moc"
