#pragma once

#include <qarn_data/Export.h>

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QList>
#include <QMap>
#include <QMetaType>
#include <QString>

namespace qarn_data
{

/// One person in one organization: a plain value that travels between store, pages, files and devices.
/// A default-made record is ready for the add dialog: male, valid from now for one calendar month,
/// employed today. Times are local; the store keeps them to the millisecond.
struct QARN_DATA_EXPORT PersonInfo {
    enum class Blank { Record };

    PersonInfo();
    /// Without dates and times, hence without asking the clock: for code that fills every member.
    explicit PersonInfo(Blank blank);

    QString id;             ///< names the record; empty until it is first saved
    QString organizationId; ///< empty: in no organization
    QString serialNum;      ///< unique among persons, compared exactly; empty is allowed
    QString name;
    int sex = 1; ///< 1 male, 2 female; any other value is shown as female
    QString email;
    QString phoneNum;
    QDateTime validStartTime;
    QDateTime validEndTime;
    QString remarks;
    QByteArray faceImage1; ///< bytes of a JPEG file; empty: no picture
    QByteArray faceImage2;
    QByteArray faceImage3;
    QDate birthDate;
    int identityType = 0; ///< index into the list of identity documents, 0 to 9
    QString identityId;
    QString job;
    QDate employDate;
    QString address;
    QMap<QString, QString> customFields; ///< value by field name; a missing name means "no value"
};

using PersonList = QList<PersonInfo>;

} // namespace qarn_data

Q_DECLARE_METATYPE(qarn_data::PersonInfo)
