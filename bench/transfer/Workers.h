#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace qarn_bench
{

/// Each runs a worker of the module to its end on the open store; ends the program when it reports failure.
void importPersons(const QString& filePath);
void importFaces(const QString& directory, const QString& organizationId);
void exportAllColumns(const QStringList& organizationIds, const QString& filePath);

/// Imports a person file into a store, prints the milliseconds for measureInChild() and returns what main()
/// gives back. Ends the program unless the store then holds so many serial numbers.
int measureImport(const QString& filePath, const QString& store, int serialNums);

QStringList allOrganizationIds(); ///< of the open store

/// Runs another program to its end with text as its input; ends this one when it fails.
void runProgram(const QString& program, const QStringList& arguments, const QByteArray& input = QByteArray());

} // namespace qarn_bench
