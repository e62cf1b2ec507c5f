#include <qarn_base/BaseTools.h>

#include "DeviceStore.h"

#include <QtTest>

using qarn_base::BaseTools;

class tst_BaseTools : public QObject
{
    Q_OBJECT
private slots:
    void texts();
    void channelNames_data();
    void channelNames();
    void rootParent();
};

void tst_BaseTools::texts()
{
    const BaseTools& tools = BaseTools::instance();
    QCOMPARE(&tools, &BaseTools::instance());
    QCOMPARE(tools.strSex(true), QStringLiteral("Male"));
    QCOMPARE(tools.strSex(false), QStringLiteral("Female"));
    QCOMPARE(tools.strValid(true), QStringLiteral("Valid"));
    QCOMPARE(tools.strValid(false), QStringLiteral("Invalid"));
}

void tst_BaseTools::channelNames_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<int>("channel");
    QTest::addColumn<QString>("name");
    QTest::newRow("known") << "gate" << 1 << "Gate-East";
    QTest::newRow("channel without a name") << "gate" << 2 << "Gate-2";
    QTest::newRow("channel that is not known") << "gate" << 9 << "Gate-9";
    QTest::newRow("device that is not known") << "nowhere" << 3 << "nowhere-3";
    QTest::newRow("a place marker in the name") << "odd" << 1 << "%2-East";
}

void tst_BaseTools::channelNames()
{
    const DeviceStore store;
    store.add("gate", "Gate", {{1, "East", 16}, {2, "", 16}});
    store.add("odd", "%2", {{1, "East", 16}});
    QFETCH(QString, device);
    QFETCH(int, channel);
    QTEST(BaseTools::instance().getChannelName({device, channel}), "name");
}

void tst_BaseTools::rootParent()
{
    QWidget window;
    auto* page = new QWidget(&window);
    auto* field = new QWidget(page);
    QCOMPARE(BaseTools::instance().getRootParentWt(field), &window);
    QCOMPARE(BaseTools::instance().getRootParentWt(&window), &window);
    QVERIFY(BaseTools::instance().getRootParentWt(nullptr) == nullptr);
}

QTEST_MAIN(tst_BaseTools)
#include "tst_BaseTools.moc"
