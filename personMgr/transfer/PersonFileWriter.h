#pragma once

#include <QSaveFile>
#include <QString>
#include <QStringList>
#include <QTextStream>

namespace qarn_personMgr
{

/// Writes a person file in the local 8-bit code page. What stood under its name before stays as it is
/// until finish() has succeeded, so that a full disk costs nothing.
class PersonFileWriter
{
public:
    explicit PersonFileWriter(const QString& filePath);

    /// False when the file cannot be opened, or is there and no regular file: a pipe could block for ever.
    bool open();
    void writeRow(const QStringList& fields);
    /// False when anything could not be written; then there is no new file.
    bool finish();

private:
    QSaveFile m_file;
    QTextStream m_stream;
    QString m_line;
};

} // namespace qarn_personMgr
