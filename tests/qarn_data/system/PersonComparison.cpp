#include "PersonComparison.h"

#include <qarn_data/PersonInfo.h>

using qarn_data::PersonInfo;

namespace
{

template <typename Member>
struct Named {
    const char* name;
    Member PersonInfo::*member;
};

template <typename Member, std::size_t N>
QString firstDifference(const Named<Member> (&members)[N], const PersonInfo& a, const PersonInfo& b)
{
    for (const Named<Member>& entry : members) {
        if (a.*entry.member != b.*entry.member)
            return QString::fromLatin1(entry.name);
    }
    return {};
}

const Named<QString> texts[] = {{"id", &PersonInfo::id},
                                {"organizationId", &PersonInfo::organizationId},
                                {"serialNum", &PersonInfo::serialNum},
                                {"name", &PersonInfo::name},
                                {"email", &PersonInfo::email},
                                {"phoneNum", &PersonInfo::phoneNum},
                                {"remarks", &PersonInfo::remarks},
                                {"identityId", &PersonInfo::identityId},
                                {"job", &PersonInfo::job},
                                {"address", &PersonInfo::address}};
const Named<int> numbers[] = {{"sex", &PersonInfo::sex}, {"identityType", &PersonInfo::identityType}};
const Named<QDateTime> times[] = {{"validStartTime", &PersonInfo::validStartTime},
                                  {"validEndTime", &PersonInfo::validEndTime}};
const Named<QDate> dates[] = {{"birthDate", &PersonInfo::birthDate}, {"employDate", &PersonInfo::employDate}};
const Named<QByteArray> images[] = {{"faceImage1", &PersonInfo::faceImage1},
                                    {"faceImage2", &PersonInfo::faceImage2},
                                    {"faceImage3", &PersonInfo::faceImage3}};
const Named<QMap<QString, QString>> maps[] = {{"customFields", &PersonInfo::customFields}};

} // namespace

QString differingMember(const PersonInfo& a, const PersonInfo& b)
{
    for (const QString& name :
         {firstDifference(texts, a, b), firstDifference(numbers, a, b), firstDifference(times, a, b),
          firstDifference(dates, a, b), firstDifference(images, a, b), firstDifference(maps, a, b)}) {
        if (!name.isEmpty())
            return name;
    }
    return {};
}
