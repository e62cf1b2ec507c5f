#include <qarn_contact/SystemMsg.h>

#include <QSignalSpy>
#include <QtTest>

using qarn_contact::SystemMsg;

class tst_SystemMsg : public QObject
{
    Q_OBJECT
private slots:
    void announcesTheQuitToEveryListener();
};

void tst_SystemMsg::announcesTheQuitToEveryListener()
{
    QCOMPARE(&SystemMsg::instance(), &SystemMsg::instance());
    QSignalSpy first(&SystemMsg::instance(), &SystemMsg::signalPrepareQuitSystem);
    QSignalSpy second(&SystemMsg::instance(), &SystemMsg::signalPrepareQuitSystem);
    emit SystemMsg::instance().signalPrepareQuitSystem();
    QCOMPARE(first.count(), 1);
    QCOMPARE(second.count(), 1);
}

QTEST_GUILESS_MAIN(tst_SystemMsg)
#include "tst_SystemMsg.moc"
