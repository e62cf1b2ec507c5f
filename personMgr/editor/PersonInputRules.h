#pragma once

#include <QString>

#include <functional>

namespace qarn_personMgr
{

/// Why the editor does not take what was typed.
enum class PersonInputError { None, BlankName, BlankSerialNum, SerialNumExists };

/// The serial number as it is stored: upper-cased, then trimmed.
QString storedSerialNum(const QString& text);

/// The first thing that is wrong with an input, names before serial numbers. Only a new person's serial
/// number must not exist; `serialNumExists` is asked with the normalized number.
PersonInputError checkPersonInput(const QString& name, const QString& serialNum, bool newPerson,
                                  const std::function<bool(const QString&)>& serialNumExists);

} // namespace qarn_personMgr
