#include <qarn_base/EditOperWt.h>

#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

using qarn_base::EditOperWt;
using qarn_base::TableOperWt;

class tst_EditOperWt : public QObject
{
    Q_OBJECT
private slots:
    void reportsItsId();
    void worksByKey();
    void styleShows();
};

static QPushButton* button(const QWidget& in, const char* name)
{
    return in.findChild<QPushButton*>(QString::fromLatin1(name));
}

void tst_EditOperWt::reportsItsId()
{
    EditOperWt buttons(QStringLiteral("{row}"));
    buttons.show();
    QSignalSpy edit(&buttons, &EditOperWt::signalEditBtClicked);
    QSignalSpy remove(&buttons, &EditOperWt::signalDeleteBtClicked);
    QTest::mouseClick(button(buttons, "editBt"), Qt::LeftButton);
    QCOMPARE(edit.count(), 1);
    QCOMPARE(edit.at(0).at(0).toString(), QStringLiteral("{row}"));
    QCOMPARE(remove.count(), 0);
    QTest::mouseClick(button(buttons, "deleteBt"), Qt::LeftButton);
    QCOMPARE(remove.at(0).at(0).toString(), QStringLiteral("{row}"));
}

void tst_EditOperWt::worksByKey()
{
    EditOperWt buttons(QStringLiteral("{row}"));
    buttons.show();
    QSignalSpy edit(&buttons, &EditOperWt::signalEditBtClicked);
    QTest::keyClick(button(buttons, "editBt"), Qt::Key_Return);
    QCOMPARE(edit.count(), 1);
    QVERIFY(!button(buttons, "editBt")->accessibleName().isEmpty());
    QVERIFY(button(buttons, "deleteBt")->accessibleName() != button(buttons, "editBt")->accessibleName());
}

void tst_EditOperWt::styleShows()
{
    EditOperWt buttons(QStringLiteral("{row}"));
    buttons.resize(200, 36);
    TableOperWt& row = buttons;
    row.setWtStyle(TableOperWt::NormalStyle);
    const QColor normal = buttons.grab().toImage().pixelColor(150, 5);
    row.setWtStyle(TableOperWt::HoverStyle);
    QCOMPARE(buttons.grab().toImage().pixelColor(150, 5), QColor(QStringLiteral("#213147")));
    row.setWtStyle(TableOperWt::SelectedStyle);
    QCOMPARE(buttons.grab().toImage().pixelColor(150, 5), QColor(QStringLiteral("#293a56")));
    row.setWtStyle(TableOperWt::NormalStyle);
    QCOMPARE(buttons.grab().toImage().pixelColor(150, 5), normal);
}

QTEST_MAIN(tst_EditOperWt)
#include "tst_EditOperWt.moc"
