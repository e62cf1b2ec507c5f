#pragma once

#include <QString>

namespace qarn_bench
{

class StoreFiles;

/// What operators do with the register of a large site. Each checks its result, ends the program when that is
/// wrong, prints its figure and returns 0 when the figure keeps its limit, else 1. measureStart() wants the
/// store closed and measureOpen() opens it; all others want it open.
int measureStart(const StoreFiles& files, const QString& store);
int measureOpen(const QString& store);
int measurePageTurn();
int measureSearch(const QString& store);
int measureExport(const StoreFiles& files);
int measureImport(const StoreFiles& files);
int measureSend(const StoreFiles& files);

} // namespace qarn_bench
