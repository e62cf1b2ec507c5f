#include "entry/PersonMgrSignals.h"

#include <QtTest>

using qarn_personMgr::PersonMgrSignals;

class tst_PersonMgrSignals : public QObject
{
    Q_OBJECT
private slots:
    void isOneObject();
    void announcesNothingYet();
};

void tst_PersonMgrSignals::isOneObject()
{
    QCOMPARE(&PersonMgrSignals::instance(), &PersonMgrSignals::instance());
    QVERIFY(PersonMgrSignals::instance().parent() == nullptr);
}

void tst_PersonMgrSignals::announcesNothingYet()
{
    const QMetaObject& meta = PersonMgrSignals::staticMetaObject;
    QCOMPARE(QByteArray(meta.className()), QByteArray("qarn_personMgr::PersonMgrSignals"));
    QCOMPARE(meta.methodCount(), QObject::staticMetaObject.methodCount());
}

QTEST_GUILESS_MAIN(tst_PersonMgrSignals)
#include "tst_PersonMgrSignals.moc"
