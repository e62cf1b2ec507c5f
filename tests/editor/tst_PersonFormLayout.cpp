#include "FormFixture.h"

#include <qarn_base/DatetimeSpanSelWt.h>
#include <qarn_base/TimeSpaceLineEt.h>

#include <QComboBox>
#include <QDateEdit>
#include <QDateTimeEdit>
#include <QLabel>
#include <QRadioButton>
#include <QScrollBar>
#include <QtTest>

using namespace qarn_personMgr;
using qarn_base::DatetimeSpanSelWt;
using qarn_base::TimeSpaceLineEt;
using qarn_data::PersonData;
using qarn_data::PersonInfo;

class tst_PersonFormLayout : public QObject, protected FormFixture
{
    Q_OBJECT
private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void hasTheSizesOfItsFields();
    void keepsItsSizesUnderAStyleSheet();
    void switchesFaceSlots();
    void unfoldsAndFoldsOneSection_data();
    void unfoldsAndFoldsOneSection();
    void unfoldsBothAndFoldsCustom();
    void unfoldsBothAndFoldsExtra();
    void scrollsToAnUnfoldedSection();
    void leavesTheWheelToTheScrollArea();
    void picksThePeriod();
    void refusesAPeriodOverThreeYears();
};

void tst_PersonFormLayout::hasTheSizesOfItsFields()
{
    for (const char* name : {"name", "serailNum", "sex", "email", "phoneNum"})
        QCOMPARE(child<QWidget>(m_form, name)->size(), QSize(205, 28));
    for (const char* name : {"validTimeRange", "remarks"})
        QCOMPARE(child<QWidget>(m_form, name)->size(), QSize(295, 28));
    QCOMPARE(child<QWidget>(m_form, "faceImage")->size(), QSize(166, 218));
    QVERIFY(child<QRadioButton>(m_form, "faceImage1")->isChecked());
    QVERIFY(!child<QWidget>(m_form, "customInfoWt")->isVisible());
    QVERIFY(!child<QWidget>(m_form, "extraInfoWt")->isVisible());
    QCOMPARE(m_form->height(), 470); // fits without scrolling
    QCOMPARE(m_form->width(), 731);
}

void tst_PersonFormLayout::keepsItsSizesUnderAStyleSheet()
{
    // A minimum in a style sheet takes the place of the form's own.
    qApp->setStyleSheet("QLineEdit, QComboBox, QDateEdit { min-height: 18px; border: 1px solid gray; }");
    toggle("customInfoExpandBt");
    toggle("extraInfoExpandBt");
    QCOMPARE(child<QWidget>(m_form, "customInfoWt")->height(), CustomHeight);
    const auto edits = m_form->findChildren<QLineEdit*>();
    for (const QLineEdit* edit : edits) {
        if (edit->isVisible() && edit->objectName() != "qt_spinbox_lineedit")
            QCOMPARE(edit->height(), 28);
    }
    for (const char* name : {"sex", "identityType", "birthDate", "employDate"})
        QCOMPARE(child<QWidget>(m_form, name)->size(), QSize(205, 28));
    qApp->setStyleSheet(QString());
}

void tst_PersonFormLayout::switchesFaceSlots()
{
    PersonInfo person = stored();
    person.faceImage2 = plainPicture(Qt::green);
    m_form->setPersonInfo(person);
    const auto* hint = child<QLabel>(child<QWidget>(m_form, "faceImage"), "label");
    QVERIFY(hint->isVisible());
    click(m_form, "faceImage2");
    QVERIFY(!hint->isVisible());
    QTest::keyClick(child<QWidget>(m_form, "faceImage2"), Qt::Key_Right);
    QVERIFY(child<QRadioButton>(m_form, "faceImage3")->isChecked());
    QVERIFY(hint->isVisible());
    click(m_form, "faceImage1");
    QVERIFY(hint->isVisible());
}

void tst_PersonFormLayout::unfoldsAndFoldsOneSection_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QByteArray>("section");
    QTest::addColumn<int>("sectionHeight");
    QTest::newRow("custom") << QByteArray("customInfoExpandBt") << QByteArray("customInfoWt") << CustomHeight;
    QTest::newRow("extra") << QByteArray("extraInfoExpandBt") << QByteArray("extraInfoWt") << ExtraHeight;
}

void tst_PersonFormLayout::unfoldsAndFoldsOneSection()
{
    QFETCH(QByteArray, button);
    QFETCH(QByteArray, section);
    QFETCH(int, sectionHeight);
    const int base = m_form->height();
    for (int i = 0; i < 2; ++i) {
        toggle(button.constData());
        QVERIFY(child<QWidget>(m_form, section.constData())->isVisible());
        QCOMPARE(m_form->height(), base + sectionHeight);
        QCOMPARE(child<QWidget>(m_form, section.constData())->height(), sectionHeight);
        toggle(button.constData());
        QVERIFY(!child<QWidget>(m_form, section.constData())->isVisible());
        QCOMPARE(m_form->height(), base);
    }
}

void tst_PersonFormLayout::unfoldsBothAndFoldsCustom()
{
    const int base = m_form->height();
    toggle("customInfoExpandBt");
    toggle("extraInfoExpandBt");
    QCOMPARE(m_form->height(), base + CustomHeight + ExtraHeight);
    toggle("customInfoExpandBt");
    QCOMPARE(m_form->height(), base + ExtraHeight);
    toggle("customInfoExpandBt");
    QCOMPARE(m_form->height(), base + CustomHeight + ExtraHeight);
    toggle("customInfoExpandBt");
    toggle("extraInfoExpandBt");
    QCOMPARE(m_form->height(), base);
}

void tst_PersonFormLayout::unfoldsBothAndFoldsExtra()
{
    const int base = m_form->height();
    toggle("extraInfoExpandBt");
    toggle("customInfoExpandBt");
    QCOMPARE(m_form->height(), base + CustomHeight + ExtraHeight);
    toggle("extraInfoExpandBt");
    QCOMPARE(m_form->height(), base + CustomHeight);
    toggle("customInfoExpandBt");
    QCOMPARE(m_form->height(), base);
}

void tst_PersonFormLayout::scrollsToAnUnfoldedSection()
{
    const auto visibleIn = [this](const char* name) {
        const QWidget* section = child<QWidget>(m_form, name);
        const QRect place(section->mapTo(m_area->viewport(), QPoint(0, 0)), section->size());
        return m_area->viewport()->rect().contains(place);
    };
    toggle("customInfoExpandBt");
    QVERIFY(visibleIn("customInfoWt"));
    toggle("extraInfoExpandBt");
    QVERIFY(visibleIn("extraInfoWt"));
    QVERIFY(m_area->verticalScrollBar()->maximum() > 0);
    QCOMPARE(m_area->verticalScrollBar()->value(), m_area->verticalScrollBar()->maximum());
}

void tst_PersonFormLayout::leavesTheWheelToTheScrollArea()
{
    m_form->setPersonInfo(stored());
    toggle("extraInfoExpandBt");
    for (const char* name : {"birthDate", "employDate", "identityType", "sex"}) {
        auto* field = child<QWidget>(m_form, name);
        const QPoint at = field->rect().center();
        QWheelEvent wheel(at, field->mapToGlobal(at), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(field, &wheel);
        QVERIFY2(!wheel.isAccepted(), name); // goes on to what scrolls
    }
    QCOMPARE(m_form->getPersonInfo().birthDate, stored().birthDate);
    QCOMPARE(m_form->getPersonInfo().employDate, stored().employDate);
    QCOMPARE(m_form->getPersonInfo().identityType, stored().identityType);
    QCOMPARE(m_form->getPersonInfo().sex, stored().sex);
}

void tst_PersonFormLayout::picksThePeriod()
{
    m_form->setPersonInfo(stored());
    auto* picker = m_form->findChild<DatetimeSpanSelWt*>();
    QVERIFY(picker != nullptr);
    QVERIFY(!picker->isVisible());
    QTest::mouseClick(line("validTimeRange"), Qt::LeftButton);
    QVERIFY(picker->isVisible());
    const QPoint below = line("validTimeRange")->mapToGlobal(QPoint(0, line("validTimeRange")->height() + 1));
    QCOMPARE(picker->pos(), below);
    QCOMPARE(child<QDateTimeEdit>(picker, "startDateTime")->date(), stored().validStartTime.date());
    QCOMPARE(child<QDateTimeEdit>(picker, "endDateTime")->date(), stored().validEndTime.date());
    child<QDateTimeEdit>(picker, "endDateTime")->setDate(QDate(2026, 1, 1));
    click(picker, "okBt");
    QVERIFY(!picker->isVisible());
    QVERIFY(line("validTimeRange")->text().contains("2026"));
    QCOMPARE(m_form->getPersonInfo().validStartTime, stored().validStartTime);
    QCOMPARE(m_form->getPersonInfo().validEndTime.date(), QDate(2026, 1, 1));
}

void tst_PersonFormLayout::refusesAPeriodOverThreeYears()
{
    PersonInfo person = stored();
    person.validStartTime = QDateTime(QDate(2021, 1, 1), QTime(0, 0));
    person.validEndTime = person.validStartTime.addSecs(94608000);
    m_form->setPersonInfo(person);
    auto* picker = m_form->findChild<DatetimeSpanSelWt*>();
    QTest::keyClick(line("validTimeRange"), Qt::Key_Return);
    QVERIFY(picker->isVisible());
    auto* end = child<QDateTimeEdit>(picker, "endDateTime");
    end->setDateTime(person.validEndTime.addSecs(1));
    click(picker, "okBt");
    QVERIFY(picker->isVisible());
    QCOMPARE(m_form->getPersonInfo().validEndTime, person.validEndTime);
    end->setDateTime(person.validEndTime);
    click(picker, "okBt");
    QVERIFY(!picker->isVisible());
}

QTEST_MAIN(tst_PersonFormLayout)
#include "tst_PersonFormLayout.moc"
