#pragma once

#include "SimulatedDevice.h"

#include <dvx_client_sdk/ClientSignals.h>
#include <dvx_client_sdk/FaceRequests.h>
#include <qarn_data/PersonInfo.h>

#include <QMap>
#include <QtTest>

/// The faces that a channel holds, as a synchronisation would read them.
inline dvx_sdk::FaceInfoList facesOn(const QString& deviceId, int channel, bool images = false)
{
    QObject context;
    dvx_sdk::FaceInfoList faces;
    int answers = 0;
    QObject::connect(&dvx_sdk::ClientSignals::instance(), &dvx_sdk::ClientSignals::signalGetFacesRes,
                     &context, [&](const dvx_sdk::Response& response, const dvx_sdk::FaceInfoList& page) {
                         if (response.requestId != QLatin1String("check"))
                             return;
                         faces = page;
                         ++answers;
                     });
    dvx_sdk::GetFacesCondition condition;
    condition.requestId = QStringLiteral("check");
    condition.deviceId = deviceId;
    condition.channelNo = channel;
    condition.pageSize = 1000;
    condition.includeImages = images;
    dvx_sdk::get_faces_req(condition);
    (void)QTest::qWaitFor([&] { return answers > 0; }, 20000);
    return faces;
}

inline QStringList serialNumsOn(const QString& deviceId, int channel)
{
    QStringList serialNums;
    const auto faces = facesOn(deviceId, channel);
    for (const dvx_sdk::FaceInfo& face : faces)
        serialNums.append(face.serialNum);
    return serialNums;
}

inline qarn_data::PersonInfo person(const QString& serialNum, const QString& name, quint32 photoSeed = 1)
{
    qarn_data::PersonInfo info;
    info.id = QUuid::createUuid().toString();
    info.serialNum = serialNum;
    info.name = name;
    info.faceImage1 = testPhoto(2000, photoSeed);
    return info;
}

/// A line of the file that a simulated device starts with.
inline QByteArray faceLine(int channel, const QByteArray& serialNum, const QByteArray& name,
                           const QByteArray& more = {})
{
    QByteArray face = "{\"channel\":" + QByteArray::number(channel) + ",\"face\":{\"schemas\":[\"x\"],";
    face += "\"externalId\":\"" + serialNum + "\",\"name\":\"" + name + "\"" + more + "}}\n";
    return face;
}

/// A device that holds these faces from the start.
class FilledDevice
{
public:
    explicit FilledDevice(const QByteArray& lines, const QStringList& options = {})
        : m_file(write(lines)),
          sim(QStringList{QStringLiteral("--data"), m_file} + options)
    {
        sim.addToRegistry();
    }

private:
    QString write(const QByteArray& lines)
    {
        QFile file(m_directory.filePath(QStringLiteral("faces.jsonl")));
        if (!file.open(QIODevice::WriteOnly) || file.write(lines) != lines.size())
            qFatal("cannot write a device's faces");
        return file.fileName();
    }

    QTemporaryDir m_directory;
    QString m_file;

public:
    SimulatedDevice sim;
};
