#pragma once

#include <QString>

#include <string>

namespace qarn_bench
{

/// Writes an import file of `count` invented persons. Behind the fields that an import reads stands an id of
/// each person, so that a table beside ours can have the same unique indexes.
void writePersonTable(const QString& path, int count);

/// Lines above the first person.
constexpr int personTableTitleLines = 6;

/// The columns of a plain table for such a file, and the indexes that our register keeps unique.
std::string personTableSchema();

/// The register's own journal settings.
std::string journalSettings();

/// Runs a program to its end with text as its input; ends this program when it fails.
void runProgram(const QString& program, const QStringList& arguments, const QByteArray& input = QByteArray());

} // namespace qarn_bench
