#include "transfer/PersonFileReader.h"

#include "transfer/PersonFileFormat.h"

#include <QFileInfo>

namespace qarn_personMgr
{

namespace
{

/// Characters that are read at a time; no ordinary row is longer.
constexpr int PieceLength = 64 * 1024;

} // namespace

PersonFileReader::PersonFileReader(const QString& filePath, const QString& headerTitle)
    : m_file(filePath),
      m_headerTitle(headerTitle)
{
}

bool PersonFileReader::open()
{
    if (!QFileInfo(m_file).isFile() || !m_file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    m_stream.setDevice(&m_file);
    return true;
}

bool PersonFileReader::readRow(QStringList& fields)
{
    while (readLine(m_line) && !m_line.isEmpty()) {
        fields = importFields(m_line);
        if (fields.count() < ImportFieldCount)
            continue;
        if (fields.first() == m_headerTitle)
            m_headerSeen = true;
        else if (m_headerSeen)
            return true;
    }
    return false;
}

bool PersonFileReader::hasFailed(QString* error) const
{
    *error = m_file.errorString();
    return m_file.error() != QFile::NoError;
}

bool PersonFileReader::readLine(QString& line)
{
    if (!m_stream.readLineInto(&line, PieceLength))
        return false;
    if (line.length() == PieceLength)
        readRestOfLine(line);
    return true;
}

void PersonFileReader::readRestOfLine(QString& line)
{
    // A piece of full length is followed by the rest of its line, be it empty.
    int separators = line.count(PersonFileSeparator);
    QString piece;
    do {
        if (!m_stream.readLineInto(&piece, PieceLength))
            return;
        if (separators < ImportFieldCount)
            line.append(piece);
        separators += piece.count(PersonFileSeparator);
    } while (piece.length() == PieceLength);
}

} // namespace qarn_personMgr
