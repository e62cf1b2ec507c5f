#include "editor/PersonInputRules.h"

#include <QtTest>

using namespace qarn_personMgr;

Q_DECLARE_METATYPE(qarn_personMgr::PersonInputError)

class tst_PersonInputRules : public QObject
{
    Q_OBJECT
private slots:
    void normalizesSerialNumbers_data();
    void normalizesSerialNumbers();
    void checksInput_data();
    void checksInput();
};

void tst_PersonInputRules::normalizesSerialNumbers_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored");
    QTest::newRow("lower case in blanks") << " ab12 "
                                          << "AB12";
    QTest::newRow("inner blanks stay") << "a b"
                                       << "A B";
    QTest::newRow("braces") << "{ab}"
                            << "{AB}";
    QTest::newRow("other white space") << "\tx\n"
                                       << "X";
    QTest::newRow("blanks only") << "   "
                                 << "";
    QTest::newRow("grows, then is trimmed") << QString::fromUtf8(" straße ") << "STRASSE";
}

void tst_PersonInputRules::normalizesSerialNumbers()
{
    QFETCH(QString, typed);
    QTEST(storedSerialNum(typed), "stored");
}

void tst_PersonInputRules::checksInput_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("serialNum");
    QTest::addColumn<bool>("newPerson");
    QTest::addColumn<PersonInputError>("error");
    QTest::newRow("good") << "Ann"
                          << "B2" << true << PersonInputError::None;
    QTest::newRow("name first") << "  "
                                << "" << true << PersonInputError::BlankName;
    QTest::newRow("name before a taken number") << ""
                                                << "A1" << true << PersonInputError::BlankName;
    QTest::newRow("blank number") << "Ann"
                                  << "  " << true << PersonInputError::BlankSerialNum;
    QTest::newRow("blank number of a known person") << "Ann"
                                                    << "" << false << PersonInputError::BlankSerialNum;
    QTest::newRow("taken") << "Ann"
                           << "A1" << true << PersonInputError::SerialNumExists;
    QTest::newRow("taken after normalizing") << "Ann"
                                             << " a1 " << true << PersonInputError::SerialNumExists;
    QTest::newRow("own number") << "Ann"
                                << "A1" << false << PersonInputError::None;
}

void tst_PersonInputRules::checksInput()
{
    QFETCH(QString, name);
    QFETCH(QString, serialNum);
    QFETCH(bool, newPerson);
    const auto exists = [](const QString& number) { return number == QLatin1String("A1"); };
    QTEST(checkPersonInput(name, serialNum, newPerson, exists), "error");
}

QTEST_GUILESS_MAIN(tst_PersonInputRules)
#include "tst_PersonInputRules.moc"
