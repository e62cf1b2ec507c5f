#include "OrganizationIndex.h"

#include <QtTest>

using namespace qarn_data;

class tst_OrganizationIndex : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void findsItsWay();
    void moves();
    void removes();

private:
    OrganizationIndex m_index;
};

void tst_OrganizationIndex::init()
{
    m_index = OrganizationIndex();
    m_index.put({1, {"r", "", "Root"}});
    m_index.put({2, {"a", "r", "A"}});
    m_index.put({3, {"b", "a", "B"}});
    m_index.put({4, {"twin", "a", "B"}});
}

void tst_OrganizationIndex::findsItsWay()
{
    QCOMPARE(m_index.rootId(), QString("r"));
    QCOMPARE(m_index.lastNumber(), 4);
    QCOMPARE(m_index.names("b"), QStringList({"Root", "A", "B"}));
    QCOMPARE(m_index.names("unknown"), QStringList());
    QCOMPARE(m_index.childNamed("a", "B"), QString("b")); // the one added first
    QCOMPARE(m_index.childNamed("a", "b"), QString());
    QCOMPARE(m_index.children("a"), QStringList({"b", "twin"}));
    QVERIFY(m_index.isSameOrBelow("b", "r"));
    QVERIFY(m_index.isSameOrBelow("b", "b"));
    QVERIFY(!m_index.isSameOrBelow("a", "b"));
    QVERIFY(!m_index.isSameOrBelow("unknown", "r"));
}

void tst_OrganizationIndex::moves()
{
    m_index.put({2, {"a", "r", "A2"}});
    m_index.put({3, {"b", "r", "B"}});
    QCOMPARE(m_index.names("twin"), QStringList({"Root", "A2", "B"}));
    QCOMPARE(m_index.names("b"), QStringList({"Root", "B"}));
    QCOMPARE(m_index.childNamed("a", "B"), QString("twin"));
    QCOMPARE(m_index.childNamed("r", "A"), QString());
    QCOMPARE(m_index.all().size(), 4);
}

void tst_OrganizationIndex::removes()
{
    m_index.remove(3);
    m_index.remove(3);
    m_index.remove(99);
    QVERIFY(!m_index.contains("b"));
    QCOMPARE(m_index.childNamed("a", "B"), QString("twin"));
    QCOMPARE(m_index.children("a"), QStringList({"twin"}));
    QCOMPARE(m_index.all().size(), 3);
}

QTEST_GUILESS_MAIN(tst_OrganizationIndex)
#include "tst_OrganizationIndex.moc"
