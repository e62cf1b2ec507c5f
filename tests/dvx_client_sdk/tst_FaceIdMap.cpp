#include "FaceIdMap.h"

#include <QtTest>

using dvx_sdk::FaceIdMap;

class tst_FaceIdMap : public QObject
{
    Q_OBJECT
private slots:
    void numbersStandForThemselves();
    void textsGetNumbersOfTheirOwn();
    void channelsAreApart();
    void forgets();
    void remembersOnlySoMany();
};

void tst_FaceIdMap::numbersStandForThemselves()
{
    FaceIdMap map;
    QCOMPARE(map.number("c", "17"), 17);
    QCOMPARE(map.id("c", 17), QString("17"));
    for (const char* text : {"017", "+17", " 17", "-17", "0", "17.0", "4294967296"}) {
        QVERIFY(map.number("c", text) >= FaceIdMap::FirstNumber);
        QCOMPARE(map.id("c", map.number("c", text)), QString(text));
    }
    QCOMPARE(map.id("c", 0), QString());
    QCOMPARE(map.id("c", -5), QString());
}

void tst_FaceIdMap::textsGetNumbersOfTheirOwn()
{
    FaceIdMap map;
    const int one = map.number("c", "one");
    const int two = map.number("c", "two");
    QVERIFY(one != two);
    QCOMPARE(map.number("c", "one"), one);
    QCOMPARE(map.id("c", two), QString("two"));
    QCOMPARE(map.id("c", two + 1), QString());
}

void tst_FaceIdMap::channelsAreApart()
{
    FaceIdMap map;
    const int one = map.number("c", "same");
    QVERIFY(map.number("d", "same") != one);
    QCOMPARE(map.id("d", one), QString());
}

void tst_FaceIdMap::forgets()
{
    FaceIdMap map;
    const int one = map.number("c", "one");
    map.forget("c", "one");
    map.forget("c", "never known");
    QCOMPARE(map.id("c", one), QString());
    QVERIFY(map.number("c", "one") != one);
}

void tst_FaceIdMap::remembersOnlySoMany()
{
    FaceIdMap map(3);
    QList<int> numbers;
    for (int i = 0; i < 10; ++i)
        numbers.append(map.number("c", QString("id%1").arg(i)));
    QCOMPARE(map.id("c", numbers.at(6)), QString());
    QCOMPARE(map.id("c", numbers.at(7)), QString("id7"));
    QCOMPARE(map.id("c", numbers.at(9)), QString("id9"));
}

QTEST_GUILESS_MAIN(tst_FaceIdMap)
#include "tst_FaceIdMap.moc"
