#pragma once

#include <QByteArray>
#include <QList>

namespace qarn_bench
{

/// Adds so many persons to the open store. Each has one of the photographs, in turn, but in bytes of its own.
void addPhotographedPersons(int count, const QList<QByteArray>& photographs);

} // namespace qarn_bench
