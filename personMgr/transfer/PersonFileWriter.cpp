#include "transfer/PersonFileWriter.h"

#include "transfer/PersonFileFormat.h"

#include <QFileInfo>

namespace qarn_personMgr
{

namespace
{

constexpr int UsualLineLength = 1024; // kept from row to row

} // namespace

PersonFileWriter::PersonFileWriter(const QString& filePath) : m_file(filePath)
{
    // A file in a directory that takes no new ones can still be rewritten in place.
    m_file.setDirectWriteFallback(true);
    m_line.reserve(UsualLineLength);
}

bool PersonFileWriter::open()
{
    const QFileInfo target(m_file.fileName());
    if (m_file.fileName().isEmpty() || (target.exists() && !target.isFile()))
        return false;
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Text))
        return false;
    m_stream.setDevice(&m_file);
    return true;
}

void PersonFileWriter::writeRow(const QStringList& fields)
{
    m_line.resize(0);
    appendPersonFileLine(m_line, fields);
    m_stream << m_line;
}

bool PersonFileWriter::finish()
{
    m_stream.flush();
    if (m_stream.status() != QTextStream::Ok) // a write that was cut short is no error to the file
        m_file.cancelWriting();
    return m_file.commit();
}

} // namespace qarn_personMgr
