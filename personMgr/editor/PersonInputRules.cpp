#include "editor/PersonInputRules.h"

namespace qarn_personMgr
{

QString storedSerialNum(const QString& text)
{
    return text.toUpper().trimmed();
}

PersonInputError checkPersonInput(const QString& name, const QString& serialNum, bool newPerson,
                                  const std::function<bool(const QString&)>& serialNumExists)
{
    if (name.trimmed().isEmpty())
        return PersonInputError::BlankName;
    const QString normalized = storedSerialNum(serialNum);
    if (normalized.isEmpty())
        return PersonInputError::BlankSerialNum;
    if (newPerson && serialNumExists(normalized))
        return PersonInputError::SerialNumExists;
    return PersonInputError::None;
}

} // namespace qarn_personMgr
