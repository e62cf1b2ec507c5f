#include "transfer/FaceFileName.h"
#include "transfer/PersonFileFormat.h"

#include <qarn_data/PersonInfo.h>

#include <QtTest>

using namespace qarn_personMgr;

class tst_FaceFileName : public QObject
{
    Q_OBJECT
private slots:
    void readsTheParts_data();
    void readsTheParts();
    void replacesARefusedSerialNumber();
    void writesTheParts_data();
    void writesTheParts();
    void takesOutWhatNoFileNameHolds();
};

void tst_FaceFileName::readsTheParts_data()
{
    QTest::addColumn<QString>("baseName");
    QTest::addColumn<QList<int>>("rule");
    QTest::addColumn<QString>("serialNum");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("sex"); // 0: the name tells none
    const QList<int> all{SerialNumElement, PersonNameElement, SexElement};
    QTest::newRow("all") << "a1_Anna_Female" << all << "A1"
                         << "Anna" << 2;
    QTest::newRow("male") << "A1_Tom_Male" << all << "A1"
                          << "Tom" << 1;
    QTest::newRow("the word for male is exact") << "A1_Tom_male" << all << "A1"
                                                << "Tom" << 2;
    QTest::newRow("nor trimmed") << "A1_Tom_Male " << all << "A1"
                                 << "Tom" << 2;
    QTest::newRow("an empty sex is there") << "A1_Tom_" << all << "A1"
                                           << "Tom" << 2;
    QTest::newRow("trimmed") << " a1 _ Anna _Male" << all << "A1"
                             << "Anna" << 1;
    QTest::newRow("fewer parts") << "A1" << all << "A1"
                                 << "" << 0;
    QTest::newRow("nothing") << "" << all << ""
                             << "" << 0;
    QTest::newRow("more parts") << "A1_Anna_Male_x_y" << all << "A1"
                                << "Anna" << 1;
    QTest::newRow("empty parts") << "_Anna" << all << ""
                                 << "Anna" << 0;
    QTest::newRow("another order") << "Male_Anna_A1" << QList<int>{2, 1, 0} << "A1"
                                   << "Anna" << 1;
    QTest::newRow("name only") << "Anna_A1" << QList<int>{1} << ""
                               << "Anna" << 0;
    QTest::newRow("twice in the rule: the first") << "A1_B2" << QList<int>{0, 0} << "A1"
                                                  << "" << 0;
    QTest::newRow("no rule") << "A1_Anna" << QList<int>{} << ""
                             << "" << 0;
}

void tst_FaceFileName::readsTheParts()
{
    QFETCH(QString, baseName);
    QFETCH(QList<int>, rule);
    QFETCH(int, sex);
    const FaceFileName read = readFaceFileName(baseName, rule, "Male");
    QTEST(read.serialNum, "serialNum");
    QTEST(read.name, "name");
    QCOMPARE(read.hasSex, sex != 0);
    if (read.hasSex)
        QCOMPARE(read.sex, sex);
}

void tst_FaceFileName::replacesARefusedSerialNumber()
{
    const FaceFileName read = readFaceFileName("A-001_Anna_Male", {0, 1, 2}, "Male");
    QVERIFY(QRegularExpression("\\A\\{[0-9a-f]{8}-\\z").match(read.serialNum).hasMatch());
    QCOMPARE(read.name, QString("Anna"));
    QCOMPARE(read.sex, 1);
}

void tst_FaceFileName::writesTheParts_data()
{
    QTest::addColumn<QList<int>>("elements");
    QTest::addColumn<QString>("name");
    QTest::newRow("serial number") << QList<int>{SerialNumColumn} << "A1";
    QTest::newRow("start") << QList<int>{SerialNumColumn, NameColumn, SexColumn} << "A1_Anna_Female";
    QTest::newRow("order") << QList<int>{PhoneNumColumn, IdentityIdColumn, NameColumn} << "555_ID9_Anna";
    QTest::newRow("any other code") << QList<int>{0, 4, 999} << "ID9_ID9_ID9";
    QTest::newRow("none") << QList<int>{} << "";
}

void tst_FaceFileName::writesTheParts()
{
    QFETCH(QList<int>, elements);
    qarn_data::PersonInfo person;
    person.serialNum = "A1";
    person.name = "Anna";
    person.sex = 0; // whatever is not 1 is female
    person.phoneNum = "555";
    person.identityId = "ID9";
    QTEST(exportedFaceFileName(person, elements), "name");
}

void tst_FaceFileName::takesOutWhatNoFileNameHolds()
{
    qarn_data::PersonInfo person;
    person.serialNum = "../../A/1";
    person.name = "a\\b:c*d?e\"f<g>h|i\n";
    const QString name = exportedFaceFileName(person, {SerialNumColumn, NameColumn});
    QVERIFY(!name.contains('/'));
    QVERIFY(name.endsWith("A1_abcdefghi"));
}

QTEST_GUILESS_MAIN(tst_FaceFileName)
#include "tst_FaceFileName.moc"
