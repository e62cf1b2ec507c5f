#pragma once

#include <QString>

namespace qarn_data
{

/// Why the SQLite file at `filePath` must not be opened, told from the outside without changing it; empty
/// when nothing speaks against it. A file that does not exist yet, or is empty, is a new store.
QString storeFileObjection(const QString& filePath, int newestSchema);

} // namespace qarn_data
