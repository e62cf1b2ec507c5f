#include "TestStore.h"

#include <dvx_client_sdk/ClientSignals.h>
#include <dvx_client_sdk/FaceRequests.h>
#include <dvx_client_sdk/ResponseCodes.h>
#include <qarn_data/DeviceRegistry.h>

#include <QTcpServer>
#include <QtTest>

#include <memory>

using namespace dvx_sdk;
using qarn_data::DeviceRegistry;

/// The program ends while a device is silent. Makes the application itself, to see it end.
class tst_LinkShutdown : public QObject
{
    Q_OBJECT
private slots:
    void answersWhatRunsAndWhatIsAskedThen();
};

void tst_LinkShutdown::answersWhatRunsAndWhatIsAskedThen()
{
    int argc = 1;
    char name[] = "tst_LinkShutdown";
    char* argv[] = {name, nullptr};
    auto application = std::make_unique<QCoreApplication>(argc, argv);
    const TestStore store;
    QTcpServer silent; // connections are made, but nobody takes them
    QVERIFY(silent.listen(QHostAddress::LocalHost));
    qarn_data::Device device;
    device.id = "silent";
    device.name = "Silent";
    device.address = QUrl(QStringLiteral("http://127.0.0.1:%1").arg(silent.serverPort()));
    device.channels = {{1, "East", qarn_data::FaceListAbility}};
    QVERIFY(DeviceRegistry::instance().saveDevice(device));

    GetFacesCondition condition;
    condition.deviceId = device.id;
    condition.channelNo = 1;
    QList<int> codes;
    const auto askAgain = [&](const Response& response) {
        codes.append(response.code);
        if (codes.count() == 1)
            get_faces_req(condition);
    };
    const QObject context;
    connect(&ClientSignals::instance(), &ClientSignals::signalGetFacesRes, &context, askAgain,
            Qt::DirectConnection);
    get_faces_req(condition);
    application.reset();
    QCOMPARE(codes, (QList<int>{ShuttingDown, ShuttingDown}));
}

QTEST_APPLESS_MAIN(tst_LinkShutdown)
#include "tst_LinkShutdown.moc"
