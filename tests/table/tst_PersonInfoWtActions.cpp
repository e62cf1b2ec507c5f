#include "ModalDriver.h"
#include "RowFixture.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>

using namespace qarn_personMgr;
using qarn_data::PersonData;
using qarn_data::PersonInfo;

/// What a row does under the operator's hands.
class tst_PersonInfoWtActions : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_fixture = std::make_unique<RowFixture>(); }
    void cleanup() { m_fixture.reset(); }

    void reportsAClickOnTheBox();
    void followsTheMouse();
    void selectsOnAClick();
    void keepsTheSelectedStyle();
    void editsTheRecord_data();
    void editsTheRecord();
    void asksBeforeDeleting();
    void deletesThePersonThatWasAskedAbout();
    void survivesItsEndWhileADialogIsOpen();

private:
    std::unique_ptr<RowFixture> m_fixture;
};

void tst_PersonInfoWtActions::reportsAClickOnTheBox()
{
    QSignalSpy checks(m_fixture->row, &PersonInfoWt::signalCheckState);
    QSignalSpy selections(m_fixture->row, &PersonInfoWt::signalSelected);
    m_fixture->row->setChecked(true);
    m_fixture->row->setChecked(false);
    QCOMPARE(checks.count(), 0);
    auto* box = m_fixture->child<QCheckBox>("orderNum");
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    QTest::keyClick(box, Qt::Key_Space);
    QCOMPARE(checks.count(), 2);
    QCOMPARE(checks.at(0).at(0).toBool(), true);
    QCOMPARE(checks.at(1).at(0).toBool(), false);
    QCOMPARE(selections.count(), 0);
}

void tst_PersonInfoWtActions::followsTheMouse()
{
    QTest::mouseMove(&m_fixture->window, QPoint(500, 210));
    QTRY_COMPARE(m_fixture->background(), m_fixture->hovered);
    m_fixture->row->setSelected(true);
    QCOMPARE(m_fixture->background(), m_fixture->selected);
    m_fixture->row->setSelected(false);
    QCOMPARE(m_fixture->background(), m_fixture->hovered);
    QTest::mouseMove(&m_fixture->window, QPoint(500, 50));
    QTRY_COMPARE(m_fixture->background(), m_fixture->normal);
    m_fixture->row->setSelected(true);
    m_fixture->row->setSelected(false);
    QCOMPARE(m_fixture->background(), m_fixture->normal);
}

void tst_PersonInfoWtActions::selectsOnAClick()
{
    QString styleAtSignal;
    connect(m_fixture->row, &PersonInfoWt::signalSelected, m_fixture->row, [&](PersonInfoWt* row) {
        QCOMPARE(row, m_fixture->row.data());
        styleAtSignal = m_fixture->background();
    });
    QTest::mouseClick(m_fixture->child<QLabel>("name"), Qt::LeftButton);
    QVERIFY(!styleAtSignal.isEmpty() && styleAtSignal != m_fixture->selected);
    QCOMPARE(m_fixture->background(), m_fixture->selected);
    styleAtSignal.clear();
    QTest::mouseClick(m_fixture->row, Qt::LeftButton, {}, QPoint(500, 4));
    QCOMPARE(styleAtSignal, m_fixture->selected);
    QCOMPARE(m_fixture->background(), m_fixture->selected);
}

void tst_PersonInfoWtActions::keepsTheSelectedStyle()
{
    m_fixture->row->setSelected(true);
    QTest::mouseMove(&m_fixture->window, QPoint(500, 210));
    QTest::qWait(1);
    QCOMPARE(m_fixture->background(), m_fixture->selected);
    QTest::mouseMove(&m_fixture->window, QPoint(500, 50));
    QTest::qWait(1);
    QCOMPARE(m_fixture->background(), m_fixture->selected);
}

void tst_PersonInfoWtActions::editsTheRecord_data()
{
    QTest::addColumn<QString>("target");
    QTest::newRow("button") << "editBt";
    QTest::newRow("double click on a text") << "name";
    QTest::newRow("double click on the row") << QString();
}

void tst_PersonInfoWtActions::editsTheRecord()
{
    QFETCH(QString, target);
    QVERIFY(PersonData::instance().addPersons({m_fixture->row->getPersonInfo()}));
    ModalDriver driver;
    QString shown;
    driver.expect([&](QWidget* window) {
        shown = window->metaObject()->className();
        QCOMPARE(window->parentWidget(), &m_fixture->window);
        QCOMPARE(window->findChild<QLineEdit*>("name")->text(), QStringLiteral("Ada"));
        QTest::keyClick(window, Qt::Key_Escape);
    });
    if (target == "editBt")
        QTest::mouseClick(m_fixture->child<QPushButton>("editBt"), Qt::LeftButton);
    else if (target == "name")
        QTest::mouseDClick(m_fixture->child<QLabel>("name"), Qt::LeftButton);
    else
        QTest::mouseDClick(m_fixture->row, Qt::LeftButton, {}, QPoint(500, 4));
    QCOMPARE(driver.pending(), 0);
    QCOMPARE(shown, QStringLiteral("qarn_personMgr::PersonInfoModifyDlg"));
    QVERIFY(m_fixture->window.findChildren<QDialog*>().isEmpty());
}

void tst_PersonInfoWtActions::asksBeforeDeleting()
{
    QVERIFY(PersonData::instance().addPersons({m_fixture->row->getPersonInfo()}));
    ModalDriver driver;
    QString question;
    const auto answer = [&](const char* button) {
        driver.expect([&question, button](QWidget* window) {
            question = window->findChild<QLabel*>("text")->text();
            if (button == nullptr)
                QTest::keyClick(window, Qt::Key_Escape);
            else
                QTest::mouseClick(window->findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
        });
        QTest::mouseClick(m_fixture->child<QPushButton>("deleteBt"), Qt::LeftButton);
        QCOMPARE(driver.pending(), 0);
    };
    answer("cancelBt");
    QCOMPARE(question, QStringLiteral("Do you want to delete the person: Ada?"));
    answer(nullptr);
    QCOMPARE(PersonData::instance().getAllPersons(false).count(), 1);
    answer("okBt");
    QCOMPARE(PersonData::instance().getAllPersons(false).count(), 0);
}

/// The page may turn under an open question.
void tst_PersonInfoWtActions::deletesThePersonThatWasAskedAbout()
{
    QVERIFY(PersonData::instance().addPersons(
        {makePerson("1", "Ada", m_fixture->root), makePerson("2", "Bob", m_fixture->root)}));
    ModalDriver driver;
    driver.expect([this](QWidget* window) {
        m_fixture->row->setPersonInfo(makePerson("2", "Bob", m_fixture->root));
        QTest::mouseClick(window->findChild<QPushButton*>("okBt"), Qt::LeftButton);
    });
    QTest::mouseClick(m_fixture->child<QPushButton>("deleteBt"), Qt::LeftButton);
    const QList<PersonInfo> left = PersonData::instance().getAllPersons(false);
    QCOMPARE(left.count(), 1);
    QCOMPARE(left.first().name, QStringLiteral("Bob"));
}

void tst_PersonInfoWtActions::survivesItsEndWhileADialogIsOpen()
{
    ModalDriver driver;
    driver.expect([this](QWidget* window) {
        m_fixture->row->setParent(nullptr);
        m_fixture->row->deleteLater();
        QCoreApplication::sendPostedEvents(m_fixture->row, QEvent::DeferredDelete);
        QTest::keyClick(window, Qt::Key_Escape);
    });
    QTest::mouseClick(m_fixture->child<QPushButton>("editBt"), Qt::LeftButton);
    QCOMPARE(driver.pending(), 0);
    QTRY_VERIFY(m_fixture->row.isNull());
}

QTEST_MAIN(tst_PersonInfoWtActions)
#include "tst_PersonInfoWtActions.moc"
