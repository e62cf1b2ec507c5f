#include "dvx_client_sdk/DeviceRuns.h"

#include "FaceJson.h"
#include "FaceService.h"
#include "SimulatedDevice.h"
#include "dvx_client_sdk/CurlClient.h"
#include "support/Figure.h"
#include "sync/FaceConversion.h"
#include "sync/SynchronizeFacesThread.h"

#include <dvx_client_sdk/ClientSignals.h>
#include <dvx_client_sdk/FaceRequests.h>

#include <QEventLoop>

using qarn_data::PersonList;
using qarn_personMgr::SynchronizeFacesThread;

namespace qarn_bench
{

PersonList personsWithPhotos(int count, int photoBytes)
{
    PersonList persons;
    for (int i = 0; i < count; ++i) {
        qarn_data::PersonInfo person;
        person.serialNum = QStringLiteral("P%1").arg(i, 6, 10, QLatin1Char('0'));
        person.name = QStringLiteral("Person %1").arg(i);
        if (photoBytes > 0)
            person.faceImage1 = testPhoto(photoBytes, static_cast<quint32>(i));
        persons.append(person);
    }
    return persons;
}

QList<QByteArray> bodiesOf(const PersonList& persons)
{
    dvx_sdk::FaceService service;
    service.schemaUrn = QStringLiteral("urn:face-device:schemas:1.0:Face");
    QList<QByteArray> bodies;
    for (const qarn_data::PersonInfo& person : persons)
        bodies.append(dvx_sdk::faceToJson(qarn_personMgr::faceOfPerson(person, {}), service));
    return bodies;
}

double pushAll(const PersonList& persons, const QList<QPair<QString, int>>& channels, bool mayFail)
{
    return milliseconds([&] {
        QEventLoop loop;
        SynchronizeFacesThread worker(persons, channels, false, nullptr);
        QObject::connect(&worker, &SynchronizeFacesThread::signalSyncFinished, &loop, &QEventLoop::quit);
        if (!mayFail)
            QObject::connect(&worker, &SynchronizeFacesThread::signalSyncMsg, &loop,
                             [](const QString& text, bool isNormal) {
                                 if (!isNormal)
                                     qFatal("%s", qPrintable(text));
                             });
        worker.start();
        loop.exec();
    });
}

double postAll(const QUrl& address, const QList<QByteArray>& bodies)
{
    return milliseconds([&] {
        CurlClient client(address);
        for (const QByteArray& body : bodies)
            client.post("/Faces", body);
    });
}

double readAll(const QString& deviceId, int faces)
{
    return milliseconds([&] {
        QEventLoop loop;
        dvx_sdk::GetFacesCondition condition;
        condition.deviceId = deviceId;
        condition.channelNo = 1;
        condition.includeImages = true;
        QObject::connect(&dvx_sdk::ClientSignals::instance(), &dvx_sdk::ClientSignals::signalGetFacesRes,
                         &loop, [&](const dvx_sdk::Response& response, const dvx_sdk::FaceInfoList& page) {
                             if (response.code != 0 || page.first().faceImages.isEmpty())
                                 qFatal("reading failed with %d", response.code);
                             if (++condition.pageNo > faces)
                                 loop.quit();
                             else
                                 dvx_sdk::get_faces_req(condition);
                         });
        dvx_sdk::get_faces_req(condition);
        loop.exec();
    });
}

} // namespace qarn_bench
