#include "editor/NumberedName.h"

#include <QUuid>

namespace qarn_personMgr
{

QString firstFreeNumberedName(const QString& base, const QSet<QString>& taken, int last)
{
    for (int number = 1; number <= last; ++number) {
        const QString candidate = QStringLiteral("%1%2").arg(base, QString::number(number));
        if (!taken.contains(candidate))
            return candidate;
    }
    return QUuid::createUuid().toString().left(10);
}

} // namespace qarn_personMgr
