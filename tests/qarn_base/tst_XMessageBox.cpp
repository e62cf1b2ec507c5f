#include <qarn_base/XMessageBox.h>

#include "ModalDriver.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

using qarn_base::XMessageBox;

class tst_XMessageBox : public QObject
{
    Q_OBJECT
private slots:
    void okAnswersOne();
    void cancelAnswersTwo();
    void escapeAndCloseAnswerCancel_data();
    void escapeAndCloseAnswerCancel();
    void returnPressesOk();
    void noticeHasOneButton();
    void emptyButtonSetCanBeAnswered();
    void showsTextAsItIs();
    void parentMayGoMeanwhile();
};

static QPushButton* button(QWidget* box, const char* name)
{
    return box->findChild<QPushButton*>(QString::fromLatin1(name));
}

static void press(QWidget* box, const char* name)
{
    QTest::mouseClick(button(box, name), Qt::LeftButton);
}

void tst_XMessageBox::okAnswersOne()
{
    ModalDriver driver;
    QWidget parent;
    driver.expect([](QWidget* box) { press(box, "okBt"); });
    QCOMPARE(int(XMessageBox::question(&parent, QStringLiteral("Delete?"), 3, false)), 1);
}

void tst_XMessageBox::cancelAnswersTwo()
{
    ModalDriver driver;
    driver.expect([](QWidget* box) { press(box, "cancelBt"); });
    QCOMPARE(int(XMessageBox::question(nullptr, QStringLiteral("Delete?"), 3, false)), 2);
}

void tst_XMessageBox::escapeAndCloseAnswerCancel_data()
{
    QTest::addColumn<int>("buttons");
    QTest::addColumn<bool>("byEscape");
    QTest::newRow("question, Escape") << 3 << true;
    QTest::newRow("question, close") << 3 << false;
    QTest::newRow("notice, Escape") << 1 << true;
}

void tst_XMessageBox::escapeAndCloseAnswerCancel()
{
    QFETCH(int, buttons);
    QFETCH(bool, byEscape);
    ModalDriver driver;
    driver.expect([byEscape](QWidget* box) {
        if (byEscape)
            QTest::keyClick(box, Qt::Key_Escape);
        else
            press(box, "closeBt");
    });
    QCOMPARE(int(XMessageBox::question(nullptr, QStringLiteral("?"), quint16(buttons), false)), 2);
}

void tst_XMessageBox::returnPressesOk()
{
    ModalDriver driver;
    driver.expect([](QWidget* box) { QTest::keyClick(box, Qt::Key_Return); });
    QCOMPARE(XMessageBox::question(nullptr, QStringLiteral("?"), 3, false), XMessageBox::Ok);
}

void tst_XMessageBox::noticeHasOneButton()
{
    ModalDriver driver;
    driver.expect([](QWidget* box) {
        QVERIFY(button(box, "cancelBt") == nullptr);
        press(box, "okBt");
    });
    QCOMPARE(XMessageBox::information(nullptr, QStringLiteral("!"), 1, false), XMessageBox::Ok);
}

void tst_XMessageBox::emptyButtonSetCanBeAnswered()
{
    ModalDriver driver;
    driver.expect([](QWidget* box) { press(box, "okBt"); });
    QCOMPARE(XMessageBox::information(nullptr, QStringLiteral("!"), 0, false), XMessageBox::Ok);
}

void tst_XMessageBox::showsTextAsItIs()
{
    const QString text = QStringLiteral("<b>Tom & Jerry</b> ") + QString(400, QLatin1Char('x'));
    ModalDriver driver;
    driver.expect([text](QWidget* box) {
        auto* label = box->findChild<QLabel*>(QStringLiteral("text"));
        QCOMPARE(label->text(), text);
        QCOMPARE(label->textFormat(), Qt::PlainText);
        QVERIFY(box->isModal());
        press(box, "okBt");
    });
    XMessageBox::information(nullptr, text, 1, false);
    QCOMPARE(driver.pending(), 0);
}

void tst_XMessageBox::parentMayGoMeanwhile()
{
    auto parent = std::make_unique<QWidget>();
    ModalDriver driver;
    driver.expect([&parent](QWidget*) { parent.reset(); });
    QCOMPARE(XMessageBox::question(parent.get(), QStringLiteral("?"), 3, false), XMessageBox::Cancel);
}

QTEST_MAIN(tst_XMessageBox)
#include "tst_XMessageBox.moc"
