#include <qarn_worker/DiskManager.h>
#include <qarn_worker/SystemAssistant.h>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using qarn_worker::DiskManager;
using qarn_worker::SystemAssistant;

class tst_DiskManager : public QObject
{
    Q_OBJECT
private slots:
    void acceptsAPlaceThatCanBeUsed();
    void tellsTheOperatorWhenAsked();
};

void tst_DiskManager::acceptsAPlaceThatCanBeUsed()
{
    QTemporaryDir directory;
    QSignalSpy spy(&SystemAssistant::instance(), &SystemAssistant::signalMessageAlert);
    QVERIFY(DiskManager::instance().isPathAvailable(directory.path(), true));
    QVERIFY(DiskManager::instance().isPathAvailable(directory.filePath(QStringLiteral("new.csv")), true));
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 0);
}

void tst_DiskManager::tellsTheOperatorWhenAsked()
{
    QSignalSpy spy(&SystemAssistant::instance(), &SystemAssistant::signalMessageAlert);
    const QString path = QStringLiteral("/no/such/place/new.csv");
    QVERIFY(!DiskManager::instance().isPathAvailable(path, false));
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 0);
    QVERIFY(!DiskManager::instance().isPathAvailable(path, true));
    QTRY_COMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("Warning"));
    QVERIFY(spy.at(0).at(1).toString().contains(QStringLiteral("/no/such/place")));
}

QTEST_GUILESS_MAIN(tst_DiskManager)
#include "tst_DiskManager.moc"
