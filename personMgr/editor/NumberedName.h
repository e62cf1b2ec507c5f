#pragma once

#include <QSet>
#include <QString>

namespace qarn_personMgr
{

/// The first of base1, base2, ... up to `last` that is not taken; when all are, ten characters of a new
/// unique identifier.
QString firstFreeNumberedName(const QString& base, const QSet<QString>& taken, int last);

} // namespace qarn_personMgr
