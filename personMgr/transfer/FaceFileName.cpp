#include "transfer/FaceFileName.h"

#include "transfer/PersonFileFormat.h"

#include <XCOMMON/ToolsCollection.h>
#include <qarn_base/BaseTools.h>
#include <qarn_data/PersonInfo.h>

#include <QStringList>

namespace qarn_personMgr
{

namespace
{

constexpr QChar PartSeparator('_');

QString exportedElement(const qarn_data::PersonInfo& person, int element)
{
    switch (element) {
    case SerialNumColumn:
        return person.serialNum;
    case NameColumn:
        return person.name;
    case SexColumn:
        return qarn_base::BaseTools::instance().strSex(person.sex == 1);
    case PhoneNumColumn:
        return person.phoneNum;
    default:
        return person.identityId;
    }
}

} // namespace

FaceFileName readFaceFileName(const QString& baseName, const QList<int>& namingRule, const QString& maleWord)
{
    const QStringList parts = baseName.split(PartSeparator);
    const auto part = [&](ImportNameElement element) {
        return parts.value(namingRule.indexOf(element)); // a null text where there is none
    };
    FaceFileName result;
    result.serialNum = importedSerialNum(part(SerialNumElement));
    result.name = part(PersonNameElement).trimmed();
    const int sexPosition = namingRule.indexOf(SexElement);
    result.hasSex = sexPosition >= 0 && sexPosition < parts.count();
    if (result.hasSex)
        result.sex = parts[sexPosition] == maleWord ? 1 : 2;
    return result;
}

QString exportedFaceFileName(const qarn_data::PersonInfo& person, const QList<int>& faceElements)
{
    QStringList parts;
    for (const int element : faceElements)
        parts.append(exportedElement(person, element));
    QString name = parts.join(PartSeparator);
    return XCOMMON::ToolsCollection::formatLegalFileName(name, QString());
}

} // namespace qarn_personMgr
