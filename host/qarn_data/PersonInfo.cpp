#include <qarn_data/PersonInfo.h>

namespace qarn_data
{

PersonInfo::PersonInfo(Blank) {}

PersonInfo::PersonInfo()
    : validStartTime(QDateTime::currentDateTime()),
      validEndTime(validStartTime.addMonths(1)),
      birthDate(1986, 10, 22),
      employDate(validStartTime.date())
{
}

} // namespace qarn_data
