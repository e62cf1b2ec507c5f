#include "table/PersonInfoWt.h"
#include "table/PersonsTableWt.h"

#include "TestPersons.h"
#include "TestStore.h"

#include <qarn_data/PersonData.h>

#include <QCheckBox>
#include <QLabel>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

using namespace qarn_personMgr;
using qarn_data::OrganizationInfo;
using qarn_data::PersonData;
using qarn_data::PersonInfo;

class tst_PersonsTableWt : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { qRegisterMetaType<Qt::CheckState>(); }
    void init();
    void cleanup();

    void isEmptyAtFirst();
    void saysSoWhenEmpty();
    void showsAPage();
    void continuesTheNumbering();
    void usesRowsAgain();
    void dropsSurplusRows();
    void combinesTheCheckMarks();
    void reportsOnlyTheOperatorsMarks();
    void checksAllSilently();
    void listsCheckedPersonsInOrder();
    void keepsMarksOfPersonsThatStay();
    void selectsOneRow();
    void losesTheSelectionWithThePage();
    void updatesRowsOfAPerson();
    void followsARenamedOrganization();
    void ignoresARefusedRenaming();

private:
    QList<PersonInfoWt*> rows() const;
    QCheckBox* box(int row) const { return rows().at(row)->findChild<QCheckBox*>("orderNum"); }
    QString label(int row, const char* name) const
    {
        return rows().at(row)->findChild<QLabel*>(QLatin1String(name))->text();
    }
    bool isSelected(int row) const
    {
        return rows().at(row)->styleSheet().contains("background-color:#293a56");
    }

    std::unique_ptr<TestStore> m_store;
    std::unique_ptr<PersonsTableWt> m_table;
    QString m_root;
};

void tst_PersonsTableWt::init()
{
    m_store = std::make_unique<TestStore>();
    m_root = PersonData::instance().getRootOrganizationId();
    m_table = std::make_unique<PersonsTableWt>(nullptr);
    m_table->resize(1000, 200);
    m_table->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_table.get()));
}

void tst_PersonsTableWt::cleanup()
{
    m_table.reset();
    m_store.reset();
}

QList<PersonInfoWt*> tst_PersonsTableWt::rows() const
{
    QList<PersonInfoWt*> rows;
    for (int i = 0; i < m_table->layout()->count(); ++i) {
        if (auto* row = qobject_cast<PersonInfoWt*>(m_table->layout()->itemAt(i)->widget()))
            rows.append(row);
    }
    return rows;
}

void tst_PersonsTableWt::isEmptyAtFirst()
{
    auto* layout = qobject_cast<QVBoxLayout*>(m_table->layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 90));
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->stretch(0), 1);
    QCOMPARE(m_table->checkState(), Qt::Unchecked);
    m_table->setPersons({}, 1);
    QCOMPARE(m_table->height(), 200);
    QCOMPARE(m_table->minimumHeight(), 200);
    QCOMPARE(m_table->maximumHeight(), 200);
    QCOMPARE(m_table->checkState(), Qt::Unchecked);
    QVERIFY(m_table->getCheckedPersonIds().isEmpty());
}

void tst_PersonsTableWt::saysSoWhenEmpty()
{
    const auto brightPixels = [this] {
        const QImage image = m_table->grab().toImage();
        int count = 0;
        for (int y = 80; y < 120; ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += qGray(image.pixel(x, y)) > 60 ? 1 : 0;
        }
        return count;
    };
    m_table->setPersons({}, 1);
    QVERIFY2(brightPixels() > 100, "a text in the middle");
    QCOMPARE(m_table->grab().toImage().pixelColor(3, 3), QColor(0x0b, 0x12, 0x1e));
}

void tst_PersonsTableWt::showsAPage()
{
    m_table->setPersons(makePersons(3, m_root), 1);
    QCOMPARE(rows().count(), 3);
    QCOMPARE(m_table->height(), 3 * 138 + 90);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(box(i)->text(), QString::number(i + 1));
        QCOMPARE(label(i, "name"), QStringLiteral("Person ") + QString::number(i + 1));
    }
    QTRY_COMPARE(rows().at(2)->geometry().top(), 2 * 138);
}

void tst_PersonsTableWt::continuesTheNumbering()
{
    m_table->setPersons(makePersons(50, m_root), 1);
    m_table->setPersons(makePersons(50, m_root), 51);
    QCOMPARE(box(0)->text(), QStringLiteral("51"));
    QCOMPARE(box(49)->text(), QStringLiteral("100"));
}

void tst_PersonsTableWt::usesRowsAgain()
{
    m_table->setPersons(makePersons(3, m_root), 1);
    const QList<PersonInfoWt*> before = rows();
    m_table->setPersons(makePersons(5, m_root).mid(1), 1);
    QCOMPARE(rows().mid(0, 3), before);
    QCOMPARE(rows().count(), 4);
    QCOMPARE(label(0, "name"), QStringLiteral("Person 2"));
    QCOMPARE(label(3, "name"), QStringLiteral("Person 5"));
}

void tst_PersonsTableWt::dropsSurplusRows()
{
    m_table->setPersons(makePersons(5, m_root), 1);
    QList<QPointer<PersonInfoWt>> before;
    for (PersonInfoWt* row : rows())
        before.append(row);
    m_table->setPersons(makePersons(2, m_root), 1);
    QCOMPARE(rows().count(), 2);
    QCOMPARE(m_table->findChildren<PersonInfoWt*>().count(), 2);
    QCOMPARE(m_table->layout()->count(), 3);
    QCOMPARE(m_table->height(), 2 * 138 + 90);
    QTRY_VERIFY(before.at(2).isNull() && before.at(3).isNull() && before.at(4).isNull());
    QCOMPARE(rows().first(), before.first().data());
    m_table->setPersons({}, 1);
    QCOMPARE(rows().count(), 0);
    QCOMPARE(m_table->height(), 200);
}

void tst_PersonsTableWt::combinesTheCheckMarks()
{
    m_table->setPersons(makePersons(3, m_root), 1);
    QCOMPARE(m_table->checkState(), Qt::Unchecked);
    rows().at(1)->setChecked(true);
    QCOMPARE(m_table->checkState(), Qt::PartiallyChecked);
    rows().at(0)->setChecked(true);
    rows().at(2)->setChecked(true);
    QCOMPARE(m_table->checkState(), Qt::Checked);
}

void tst_PersonsTableWt::reportsOnlyTheOperatorsMarks()
{
    m_table->setPersons(makePersons(2, m_root), 1);
    QSignalSpy states(m_table.get(), &PersonsTableWt::signalCheckState);
    rows().at(0)->setChecked(true);
    QCOMPARE(states.count(), 0);
    box(1)->click();
    box(0)->click();
    box(1)->click();
    QCOMPARE(states.count(), 3);
    QCOMPARE(states.at(0).at(0).value<Qt::CheckState>(), Qt::Checked);
    QCOMPARE(states.at(1).at(0).value<Qt::CheckState>(), Qt::PartiallyChecked);
    QCOMPARE(states.at(2).at(0).value<Qt::CheckState>(), Qt::Unchecked);
}

void tst_PersonsTableWt::checksAllSilently()
{
    m_table->setPersons(makePersons(3, m_root), 1);
    QSignalSpy states(m_table.get(), &PersonsTableWt::signalCheckState);
    m_table->setAllChecked(true);
    QCOMPARE(m_table->checkState(), Qt::Checked);
    m_table->setAllChecked(false);
    QCOMPARE(m_table->checkState(), Qt::Unchecked);
    QCOMPARE(states.count(), 0);
}

void tst_PersonsTableWt::listsCheckedPersonsInOrder()
{
    m_table->setPersons(makePersons(4, m_root), 1);
    QVERIFY(m_table->getCheckedPersons().isEmpty());
    rows().at(3)->setChecked(true);
    rows().at(1)->setChecked(true);
    QCOMPARE(m_table->getCheckedPersonIds(), QStringList({"2", "4"}));
    const QList<PersonInfo> persons = m_table->getCheckedPersons();
    QCOMPARE(persons.count(), 2);
    QCOMPARE(persons.first().serialNum, QStringLiteral("S2"));
    QCOMPARE(persons.last().name, QStringLiteral("Person 4"));
}

void tst_PersonsTableWt::keepsMarksOfPersonsThatStay()
{
    m_table->setPersons(makePersons(3, m_root), 1);
    m_table->setAllChecked(true);
    QList<PersonInfo> next = makePersons(3, m_root);
    next[1] = makePerson("other", "Other", m_root);
    m_table->setPersons(next, 1);
    QCOMPARE(m_table->getCheckedPersonIds(), QStringList({"1", "3"}));
}

void tst_PersonsTableWt::selectsOneRow()
{
    m_table->setPersons(makePersons(3, m_root), 1);
    QTest::mouseClick(rows().at(0)->findChild<QLabel*>("name"), Qt::LeftButton);
    QVERIFY(isSelected(0));
    QTest::mouseClick(rows().at(2)->findChild<QLabel*>("sex"), Qt::LeftButton);
    QVERIFY(!isSelected(0));
    QVERIFY(isSelected(2));
    QTest::mouseClick(rows().at(2)->findChild<QLabel*>("sex"), Qt::LeftButton);
    QVERIFY(isSelected(2));
}

void tst_PersonsTableWt::losesTheSelectionWithThePage()
{
    m_table->setPersons(makePersons(3, m_root), 1);
    QTest::mouseClick(rows().at(1)->findChild<QLabel*>("name"), Qt::LeftButton);
    m_table->setPersons(makePersons(3, m_root), 1);
    for (int i = 0; i < 3; ++i)
        QVERIFY(!isSelected(i));
    QTest::mouseClick(rows().at(0)->findChild<QLabel*>("name"), Qt::LeftButton);
    QVERIFY(isSelected(0));
}

void tst_PersonsTableWt::updatesRowsOfAPerson()
{
    m_table->setPersons(makePersons(3, m_root), 1);
    m_table->setAllChecked(true);
    PersonInfo info = makePerson("template", "Changed", "elsewhere");
    m_table->updatePersons(info, {"not here"});
    QCOMPARE(label(0, "name"), QStringLiteral("Person 1"));
    m_table->updatePersons(info, {"3", "1", "unknown", "1"});
    for (int row : {0, 2}) {
        QCOMPARE(label(row, "name"), QStringLiteral("Changed"));
        QCOMPARE(label(row, "serialNum"), QStringLiteral("Stemplate"));
        QCOMPARE(rows().at(row)->getPersonInfo().organizationId, m_root);
        QVERIFY(rows().at(row)->isChecked());
    }
    QCOMPARE(rows().at(0)->getPersonInfo().id, QStringLiteral("1"));
    QCOMPARE(label(1, "name"), QStringLiteral("Person 2"));
}

void tst_PersonsTableWt::followsARenamedOrganization()
{
    QVERIFY(PersonData::instance().addOrganization({"upper", m_root, "Upper"}));
    QVERIFY(PersonData::instance().addOrganization({"lower", "upper", "Lower"}));
    m_table->setPersons({makePerson("1", "a", "upper"), makePerson("2", "b", "lower"),
                         makePerson("3", "c", m_root), makePerson("4", "d", "upper")},
                        1);
    QVERIFY(PersonData::instance().updateOrganization({"upper", m_root, "Renamed"}));
    QTRY_COMPARE(label(0, "organization"), QStringLiteral("Renamed"));
    QCOMPARE(label(3, "organization"), QStringLiteral("Renamed"));
    QCOMPARE(label(1, "organization"), QStringLiteral("Lower"));
    QCOMPARE(label(2, "organization"), PersonData::instance().getOrganizationName(m_root));
}

void tst_PersonsTableWt::ignoresARefusedRenaming()
{
    QVERIFY(PersonData::instance().addOrganization({"upper", m_root, "Upper"}));
    m_table->setPersons({makePerson("1", "a", "upper")}, 1);
    QVERIFY(!PersonData::instance().updateOrganization({"upper", "unknown parent", "Renamed"}));
    QTest::qWait(1);
    QCOMPARE(label(0, "organization"), QStringLiteral("Upper"));
}

QTEST_MAIN(tst_PersonsTableWt)
#include "tst_PersonsTableWt.moc"
