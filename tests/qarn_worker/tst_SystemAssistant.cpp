#include <XCOMMON/ToolsCollection.h>
#include <qarn_worker/AlertHistory.h>
#include <qarn_worker/DictDef.h>
#include <qarn_worker/SystemAssistant.h>

#include <QSignalSpy>
#include <QThread>
#include <QtTest>

#include <thread>
#include <vector>

using qarn_worker::alertHistory;
using qarn_worker::DictDef;
using qarn_worker::SystemAssistant;

class tst_SystemAssistant : public QObject
{
    Q_OBJECT
private slots:
    void hasTheSharedTitles();
    void announcesAnAlert();
    void announcesInTheGuiThreadInOrder();
    void keepsTheLast500();
    void showsWhatCannotBeLoaded();
};

void tst_SystemAssistant::hasTheSharedTitles()
{
    QCOMPARE(&DictDef::instance(), &DictDef::instance());
    QCOMPARE(DictDef::instance().warningAlertTitle, QStringLiteral("Warning"));
    QCOMPARE(DictDef::instance().successAlertTitle, QStringLiteral("Success"));
    QCOMPARE(DictDef::instance().errorAlertTitle, QStringLiteral("Error"));
}

void tst_SystemAssistant::announcesAnAlert()
{
    QSignalSpy spy(&SystemAssistant::instance(), &SystemAssistant::signalMessageAlert);
    const QDateTime before = QDateTime::currentDateTime();
    SystemAssistant::instance().messageAlert(QStringLiteral("Warning"), QStringLiteral("no room"));
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("Warning"));
    QCOMPARE(spy.at(0).at(1).toString(), QStringLiteral("no room"));
    QCOMPARE(alertHistory().constLast().title, QStringLiteral("Warning"));
    QCOMPARE(alertHistory().constLast().text, QStringLiteral("no room"));
    QVERIFY(alertHistory().constLast().time >= before);
}

void tst_SystemAssistant::announcesInTheGuiThreadInOrder()
{
    constexpr int threads = 4;
    constexpr int alerts = 50;
    QStringList texts;
    bool inGuiThread = true;
    QObject listener;
    connect(
        &SystemAssistant::instance(), &SystemAssistant::signalMessageAlert, &listener,
        [&](const QString&, const QString& text) {
            inGuiThread = inGuiThread && QThread::currentThread() == QCoreApplication::instance()->thread();
            texts.append(text);
        },
        Qt::DirectConnection);
    std::vector<std::thread> senders;
    for (int sender = 0; sender < threads; ++sender) {
        senders.emplace_back([sender] {
            for (int i = 0; i < alerts; ++i)
                SystemAssistant::instance().messageAlert(QString(),
                                                         QStringLiteral("%1:%2").arg(sender).arg(i));
        });
    }
    for (std::thread& sender : senders)
        sender.join(); // nobody waits for the GUI thread, which stands here
    QCOMPARE(texts.size(), 0);
    QTRY_COMPARE(texts.size(), threads * alerts);
    QVERIFY(inGuiThread);
    for (int sender = 0; sender < threads; ++sender) {
        const QStringList own = texts.filter(QStringLiteral("%1:").arg(sender));
        for (int i = 0; i < alerts; ++i)
            QCOMPARE(own.at(i), QStringLiteral("%1:%2").arg(sender).arg(i));
    }
}

void tst_SystemAssistant::keepsTheLast500()
{
    for (int i = 0; i < 510; ++i)
        SystemAssistant::instance().messageAlert(QStringLiteral("Success"), QString::number(i));
    QCOMPARE(alertHistory().size(), 500);
    QCOMPARE(alertHistory().constFirst().text, QStringLiteral("10"));
    QCOMPARE(alertHistory().constLast().text, QStringLiteral("509"));
}

void tst_SystemAssistant::showsWhatCannotBeLoaded()
{
    QSignalSpy spy(&SystemAssistant::instance(), &SystemAssistant::signalMessageAlert);
    std::thread worker([] { XCOMMON::ToolsCollection::loadImage(QStringLiteral("/no/such/face.jpg")); });
    worker.join();
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("Warning"));
    QVERIFY(spy.at(0).at(1).toString().contains(QStringLiteral("/no/such/face.jpg")));
}

QTEST_GUILESS_MAIN(tst_SystemAssistant)
#include "tst_SystemAssistant.moc"
