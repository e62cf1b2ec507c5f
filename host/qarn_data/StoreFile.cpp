#include "StoreFile.h"

#include "SqliteSchema.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace qarn_data
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("qarn_data::StoreFile", text);
}

// Also for the superuser, whom the system lets write anywhere: a protected file is meant to stay as it is.
bool isWritable(const QFileInfo& info)
{
    constexpr QFile::Permissions anyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    return info.isWritable() && (info.permissions() & anyWrite) != 0;
}

QString folderObjection(const QFileInfo& folder)
{
    if (!folder.exists())
        return tr("The folder does not exist. Create it or choose another place.");
    if (!folder.isDir())
        return tr("Its folder is not a folder. Choose another place.");
    if (!isWritable(folder))
        return tr("The folder is read-only, and the store needs room beside its file. Give yourself the "
                  "right to write there.");
    return {};
}

// The 100 bytes at the start of every SQLite file.
class Header
{
public:
    explicit Header(const QByteArray& bytes) : m_bytes(bytes) {}
    bool isSqlite() const
    {
        return m_bytes.size() == Size && m_bytes.startsWith(QByteArray("SQLite format 3", 16));
    }
    quint32 applicationId() const { return number(68); }
    qint32 schemaVersion() const { return qint32(number(60)); }
    /// Made but never filled, as a creation that was interrupted leaves it: one page holds no table.
    bool isBlank() const { return applicationId() == 0 && schemaVersion() == 0 && fileSize() <= pageSize(); }
    /// What the file must have at least, where the header can be trusted.
    qint64 fileSize() const
    {
        const bool countIsValid = number(24) == number(92);
        return countIsValid ? number(28) * pageSize() : 0;
    }
    static constexpr int Size = 100;

private:
    qint64 pageSize() const
    {
        const int size = qFromBigEndian<quint16>(m_bytes.constData() + 16);
        return size == 1 ? 65536 : size;
    }
    quint32 number(int offset) const { return qFromBigEndian<quint32>(m_bytes.constData() + offset); }
    QByteArray m_bytes;
};

// After an interrupted writer, or while one is at work, the newest pages stand in a journal.
bool hasJournal(const QString& filePath)
{
    return QFileInfo(filePath + QStringLiteral("-wal")).size() > 0 ||
           QFileInfo(filePath + QStringLiteral("-journal")).size() > 0;
}

QString contentObjection(const QString& filePath, int newestSchema)
{
    const bool hadJournal = hasJournal(filePath);
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly))
        return tr("The file cannot be read: %1.").arg(file.errorString());
    if (file.size() == 0)
        return {};
    const Header header(file.read(Header::Size));
    if (!header.isSqlite())
        return tr("The file is not a person register. Choose another file.");
    // The header may be behind then. The database itself looks at what it says in the end.
    if (hadJournal || hasJournal(filePath))
        return {};
    if (header.applicationId() != SqliteApplicationId && !header.isBlank())
        return tr("The file belongs to another program. Choose another file.");
    if (header.schemaVersion() > newestSchema)
        return tr("The file was written by a newer version (%1, this one knows %2). Update this program.")
            .arg(header.schemaVersion())
            .arg(newestSchema);
    // Asked anew: another process may have made the file longer since it was opened.
    if (QFileInfo(filePath).size() < header.fileSize())
        return tr("The file is damaged: its end is missing. Restore it from a backup.");
    return {};
}

} // namespace

QString storeFileObjection(const QString& filePath, int newestSchema)
{
    if (filePath.isEmpty())
        return tr("No file is named.");
    const QFileInfo info(filePath);
    if (info.isDir())
        return tr("It is a folder. Choose a file.");
    const QString folder = folderObjection(QFileInfo(info.absolutePath()));
    if (!folder.isEmpty())
        return folder;
    if (!info.exists())
        return {};
    if (!info.isFile())
        return tr("It is not a regular file. Choose another file.");
    if (!info.isReadable())
        return tr("The file cannot be read. Give yourself the right to read it.");
    if (!isWritable(info))
        return tr("The file is read-only. Give yourself the right to write it.");
    return contentObjection(filePath, newestSchema);
}

} // namespace qarn_data
