#pragma once

#include <QString>

namespace qarn_personMgr
{

/// Tell the operator something under the client's titles, without stopping the work. Any thread.
void alertWarning(const QString& text);
void alertSuccess(const QString& text);
void alertError(const QString& text);

} // namespace qarn_personMgr
