#include "editor/CustomFieldRules.h"
#include "editor/NumberedName.h"

#include <QtTest>

using namespace qarn_personMgr;

Q_DECLARE_METATYPE(qarn_personMgr::RenameDecision)

class tst_CustomFieldRules : public QObject
{
    Q_OBJECT
private slots:
    void proposesTheFirstFreeNumber_data();
    void proposesTheFirstFreeNumber();
    void fallsBackToAnIdentifier();
    void keepsPlaceMarksOfTheBase();
    void decidesRenames_data();
    void decidesRenames();
};

void tst_CustomFieldRules::proposesTheFirstFreeNumber_data()
{
    QTest::addColumn<QStringList>("taken");
    QTest::addColumn<QString>("proposed");
    QTest::newRow("none") << QStringList() << "F1";
    QTest::newRow("gap") << QStringList{"F1", "F3"} << "F2";
    QTest::newRow("case counts") << QStringList{"f1"} << "F1";
    QTest::newRow("the base alone is no number") << QStringList{"F"} << "F1";
    QTest::newRow("last") << QStringList{"F1", "F2", "F3", "F4", "F5", "F6", "F7", "F8"} << "F9";
}

void tst_CustomFieldRules::proposesTheFirstFreeNumber()
{
    QFETCH(QStringList, taken);
    QTEST(defaultCustomFieldName("F", QSet<QString>(taken.cbegin(), taken.cend())), "proposed");
}

void tst_CustomFieldRules::fallsBackToAnIdentifier()
{
    QSet<QString> taken;
    for (int i = 1; i <= MaxCustomFields; ++i)
        taken.insert(QStringLiteral("F%1").arg(i));
    const QString first = defaultCustomFieldName("F", taken);
    QVERIFY(QRegularExpression("^\\{[0-9a-f]{8}-$").match(first).hasMatch());
    QVERIFY(first != defaultCustomFieldName("F", taken));
}

void tst_CustomFieldRules::keepsPlaceMarksOfTheBase()
{
    QCOMPARE(firstFreeNumberedName("%2 of %1", {}, 1), QString("%2 of %11"));
}

void tst_CustomFieldRules::decidesRenames_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<RenameDecision>("decision");
    QTest::newRow("own name") << "Job" << RenameDecision::Unchanged;
    QTest::newRow("free") << "Task" << RenameDecision::Accepted;
    QTest::newRow("taken") << "Site" << RenameDecision::Refused;
    QTest::newRow("case differs") << "site" << RenameDecision::Accepted;
    QTest::newRow("blank added") << "Site " << RenameDecision::Accepted;
    QTest::newRow("empty") << "" << RenameDecision::Accepted;
}

void tst_CustomFieldRules::decidesRenames()
{
    QFETCH(QString, typed);
    QTEST(decideRename("Job", typed, {"Site", "Floor"}), "decision");
}

QTEST_GUILESS_MAIN(tst_CustomFieldRules)
#include "tst_CustomFieldRules.moc"
