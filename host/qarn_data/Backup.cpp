#include "Backup.h"

#include "SqlStore.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <cstdio>

#include <unistd.h>

namespace qarn_data
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("qarn_data::Backup", text);
}

bool flushToDisk(const QString& filePath)
{
    QFile file(filePath);
    return file.open(QIODevice::ReadWrite) && fsync(file.handle()) == 0;
}

} // namespace

bool backupStore(SqlStore& store, const QString& filePath, QString* reason)
{
    if (QFileInfo(filePath).isDir()) {
        *reason = tr("It is a folder. Choose a file.");
        return false;
    }
    const QString partial =
        filePath + QStringLiteral(".partial-") + QUuid::createUuid().toString(QUuid::Id128);
    if (!store.copyTo(partial))
        *reason = store.cause();
    else if (!flushToDisk(partial) || std::rename(QFile::encodeName(partial).constData(),
                                                  QFile::encodeName(filePath).constData()) != 0)
        *reason = tr("The file cannot be written. Check the disk and your rights there.");
    if (!reason->isEmpty())
        QFile::remove(partial);
    return reason->isEmpty();
}

} // namespace qarn_data
