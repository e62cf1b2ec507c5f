#pragma once

#include <QFile>
#include <QString>
#include <QStringList>
#include <QTextStream>

namespace qarn_personMgr
{

/// Reads the data rows of an import file, one by one. Text is in the local 8-bit code page; reading ends
/// at the first empty line. Of a long line only what the fields need is kept in memory.
class PersonFileReader
{
public:
    /// `headerTitle` is the first field of the line above the first row.
    PersonFileReader(const QString& filePath, const QString& headerTitle);

    /// False when the file cannot be opened or is no regular file: a pipe would never answer.
    bool open();
    /// The first ImportFieldCount fields of the next row; false at the end.
    bool readRow(QStringList& fields);
    /// True when the end came from a failure of the medium; `error` names it.
    bool hasFailed(QString* error) const;

private:
    bool readLine(QString& line);
    void readRestOfLine(QString& line);

    QFile m_file;
    QTextStream m_stream;
    const QString m_headerTitle;
    QString m_line;
    bool m_headerSeen = false;
};

} // namespace qarn_personMgr
