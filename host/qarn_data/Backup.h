#pragma once

#include <QString>

namespace qarn_data
{

class SqlStore;

/// Writes a consistent copy of the store to `filePath`. A file that is there gives way once the copy is
/// complete. False, with the reason, when it cannot be done.
bool backupStore(SqlStore& store, const QString& filePath, QString* reason);

} // namespace qarn_data
