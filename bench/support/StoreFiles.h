#pragma once

#include <qarn_data/PersonInfo.h>

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace qarn_bench
{

/// The store files of a measurement, in a directory that goes with this object (below the directory that
/// QARN_BENCH_DIR names, else below the system's one).
class StoreFiles
{
public:
    StoreFiles();

    QString path(const QString& name) const { return m_directory.filePath(name); }
    /// A closed copy of a closed store.
    QString copy(const QString& from, const QString& name) const;

private:
    QTemporaryDir m_directory;
};

void openStore(const QString& path);
void closeStore();
/// Makes the ways to find a person, which are made when first needed, or in the client by the thread that
/// reads the register.
void findSomebody();

/// Organizations below the root of the open store.
QStringList addOrganizations(int count);

/// Makes a store of `count` invented persons in 50 organizations and closes it.
QString makeStore(const StoreFiles& files, const QString& name, int count);

} // namespace qarn_bench
