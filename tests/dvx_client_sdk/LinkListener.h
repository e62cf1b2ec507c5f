#pragma once

#include <dvx_client_sdk/ClientSignals.h>
#include <dvx_client_sdk/FaceRequests.h>

#include <QObject>
#include <QUuid>
#include <QtTest>

/// Sends requests under an id of its own and keeps the answers, as every user of the link does.
class LinkListener : public QObject
{
public:
    struct Page {
        int code = 0;
        dvx_sdk::FaceInfoList faces;
        uint total = 0;
    };

    LinkListener()
    {
        using dvx_sdk::ClientSignals;
        const ClientSignals* answers = &ClientSignals::instance();
        connect(answers, &ClientSignals::signalGetFacesRes, this,
                [this](const dvx_sdk::Response& response, const dvx_sdk::FaceInfoList& faces, uint total) {
                    if (response.requestId == id)
                        pages.append({response.code, faces, total});
                });
        connect(answers, &ClientSignals::signalAddFaceRes, this, [this](const dvx_sdk::Response& response) {
            if (response.requestId == id)
                adds.append(response.code);
        });
        connect(answers, &ClientSignals::signalDelFaceRes, this, [this](const dvx_sdk::Response& response) {
            if (response.requestId == id)
                deletes.append(response.code);
        });
    }

    void askList(const QString& deviceId, int channel, int pageNo = 1, int pageSize = 32, bool images = false)
    {
        dvx_sdk::GetFacesCondition condition;
        condition.requestId = id;
        condition.deviceId = deviceId;
        condition.channelNo = channel;
        condition.pageNo = pageNo;
        condition.pageSize = pageSize;
        condition.includeImages = images;
        dvx_sdk::get_faces_req(condition);
    }

    Page list(const QString& deviceId, int channel, int pageNo = 1, int pageSize = 32, bool images = false)
    {
        const int before = pages.count();
        askList(deviceId, channel, pageNo, pageSize, images);
        wait([&] { return pages.count() > before; });
        return pages.count() > before ? pages.last() : Page{NoAnswer, {}, 0};
    }

    void askAdd(const QString& deviceId, int channel, const QString& serialNum, const QByteArray& jpeg)
    {
        dvx_sdk::ModifyFaceCondition face;
        face.requestId = id;
        face.deviceId = deviceId;
        face.channelNo = channel;
        face.serialNum = serialNum;
        face.name = QStringLiteral("Name of ") + serialNum;
        face.organizationNames = QStringList{QStringLiteral("Root"), QStringLiteral("Größe")};
        face.sex = 2;
        face.presetCode = 18;
        face.listType = dvx_sdk::generalListType;
        face.validStartTime = QDateTime(QDate(2024, 7, 1), QTime(8, 0, 0, 123));
        face.validEndTime = QDateTime(QDate(2034, 1, 1), QTime(23, 59, 59));
        face.faceImages = {jpeg.toBase64()};
        dvx_sdk::add_face_req(face);
    }

    int add(const QString& deviceId, int channel, const QString& serialNum, const QByteArray& jpeg)
    {
        const int before = adds.count();
        askAdd(deviceId, channel, serialNum, jpeg);
        wait([&] { return adds.count() > before; });
        return adds.count() > before ? adds.last() : NoAnswer;
    }

    int del(const QString& deviceId, int channel, int faceId)
    {
        const int before = deletes.count();
        dvx_sdk::del_face_req({id, deviceId, channel, faceId});
        wait([&] { return deletes.count() > before; });
        return deletes.count() > before ? deletes.last() : NoAnswer;
    }

    static constexpr int NoAnswer = -1000;

    const QString id = QUuid::createUuid().toString();
    QList<Page> pages;
    QList<int> adds;
    QList<int> deletes;

private:
    template <typename Condition>
    void wait(Condition condition)
    {
        (void)QTest::qWaitFor(condition, 40000);
    }
};
