#pragma once

#include <QString>
#include <QStringList>

namespace qarn_bench
{

/// Each runs a worker of the module to its end on the open store; ends the program when it reports failure.
void importPersons(const QString& filePath);
void importFaces(const QString& directory, const QString& organizationId);
void exportAllColumns(const QStringList& organizationIds, const QString& filePath);

} // namespace qarn_bench
