#pragma once

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>

namespace dvx_sdk
{

/// Words for ModifyFaceCondition::listType, and the prefix of this library's log lines.
inline const QString generalListType = QStringLiteral("general");
inline const QString seniorListType = QStringLiteral("senior");
inline const QString blackListType = QStringLiteral("blacklist");
inline const QString whiteListType = QStringLiteral("whitelist");
inline const QString logPrefix = QStringLiteral("[dvx_client_sdk:]");

/// Asks for one page of a channel's faces. The reserved members keep their defaults.
struct GetFacesCondition {
    QString requestId; ///< comes back in the answer
    QString deviceId;
    int channelNo = 0;
    QString reservedText1;
    int reservedNumber1 = 0;
    QList<int> reservedList1;
    int pageNo = 1; ///< counted from 1
    int pageSize = 1;
    int reservedNumber2 = 0;
    QString reservedText2;
    bool includeImages = false;
    QString reservedText3;
    qint64 reservedScalar1 = 0;
    QString reservedText4;
    QString reservedText5;
};

/// One face to add to a channel. Images are Base64 text.
struct ModifyFaceCondition {
    QString requestId;
    QString deviceId;
    int channelNo = 0;
    QString reservedText1;
    int reservedNumber1 = 0;
    QString serialNum;
    QString name;
    QStringList organizationNames; ///< from the root down
    QList<int> reservedList1;
    QDate reservedDate1;
    int sex = 1;
    int reservedNumber2 = 0;
    int presetCode = 0;
    QString listType;
    QDateTime validStartTime;
    QDateTime validEndTime;
    QList<QByteArray> faceImages;
    QList<QByteArray> reservedImages1;
};

/// One face to delete from a channel.
struct DelFaceCondition {
    QString requestId;
    QString deviceId;
    int channelNo = 0;
    int faceId = 0;
};

/// One face as a device holds it.
struct FaceInfo {
    qint32 faceId = 0; ///< the number that DelFaceCondition takes
    qint32 reservedNumber1 = 0;
    QString serialNum;
    QString name;
    int sex = 1;
    qint32 reservedNumber2 = 0;
    qint64 reservedNumber3 = 0;
    QList<int> reservedList1;
    QString reservedText1;
    QString reservedText2;
    QString reservedText3;
    qint64 reservedNumber4 = 0;
    QString reservedText4;
    qint64 reservedNumber5 = 0;
    QList<QByteArray> faceImages; ///< Base64 text; empty when not asked for
    QList<QByteArray> reservedImages1;
    qint64 reservedNumber6 = 0;
    QDateTime validStartTime; ///< invalid when the device has none
    QDateTime validEndTime;
    QStringList reservedList2;
};

using FaceInfoList = QList<FaceInfo>;

/// How a request ended.
struct Response {
    QString requestId; ///< of the request
    int code = 0;      ///< 0 success; an HTTP status, or a negative code of this library
};

} // namespace dvx_sdk

Q_DECLARE_METATYPE(dvx_sdk::GetFacesCondition)
Q_DECLARE_METATYPE(dvx_sdk::ModifyFaceCondition)
Q_DECLARE_METATYPE(dvx_sdk::DelFaceCondition)
Q_DECLARE_METATYPE(dvx_sdk::FaceInfo)
Q_DECLARE_METATYPE(dvx_sdk::Response)
