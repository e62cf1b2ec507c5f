#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

namespace qarn_personMgr
{

constexpr int MaxCustomFields = 9;
constexpr int CustomFieldNameMaxLength = 32;

/// The name of a newly added field: `base` followed by the first free number.
QString defaultCustomFieldName(const QString& base, const QSet<QString>& taken);

enum class RenameDecision { Unchanged, Refused, Accepted };

/// What becomes of a name that was typed over `acceptedName`. `otherNames` are those of all other rows; they
/// are compared exactly, case and blanks included.
RenameDecision decideRename(const QString& acceptedName, const QString& typedName,
                            const QStringList& otherNames);

} // namespace qarn_personMgr
