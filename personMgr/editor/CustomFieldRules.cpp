#include "editor/CustomFieldRules.h"

#include "editor/NumberedName.h"

namespace qarn_personMgr
{

QString defaultCustomFieldName(const QString& base, const QSet<QString>& taken)
{
    return firstFreeNumberedName(base, taken, MaxCustomFields);
}

RenameDecision decideRename(const QString& acceptedName, const QString& typedName,
                            const QStringList& otherNames)
{
    if (typedName == acceptedName)
        return RenameDecision::Unchanged;
    return otherNames.contains(typedName) ? RenameDecision::Refused : RenameDecision::Accepted;
}

} // namespace qarn_personMgr
