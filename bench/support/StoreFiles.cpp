#include "support/StoreFiles.h"

#include "support/People.h"

#include <qarn_data/DataService.h>
#include <qarn_data/PersonData.h>

#include <QDir>
#include <QFile>

namespace qarn_bench
{

namespace
{

constexpr quint32 Seed = 20240229;
constexpr int OrganizationCount = 50;

QString directoryTemplate()
{
    return qEnvironmentVariable("QARN_BENCH_DIR", QDir::tempPath()) + QStringLiteral("/qarn-bench-XXXXXX");
}

} // namespace

StoreFiles::StoreFiles() : m_directory(directoryTemplate())
{
    if (!m_directory.isValid())
        qFatal("%s", qPrintable(m_directory.errorString()));
}

QString StoreFiles::copy(const QString& from, const QString& name) const
{
    const QString to = path(name);
    for (const QString& suffix : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")})
        QFile::remove(to + suffix);
    if (QFile::exists(from + QStringLiteral("-wal")) || !QFile::copy(from, to))
        qFatal("cannot copy the store %s", qPrintable(from));
    return to;
}

void openStore(const QString& path)
{
    QString error;
    if (!qarn_data::DataService::instance().open(path, &error))
        qFatal("%s", qPrintable(error));
}

void closeStore()
{
    qarn_data::DataService::instance().close();
}

void findSomebody()
{
    const qarn_data::PersonData& data = qarn_data::PersonData::instance();
    const qarn_data::PersonList all = data.getAllPersons(false);
    if (!all.isEmpty())
        data.getPersonBySerialNum(all.first().serialNum, false);
}

QStringList addOrganizations(int count)
{
    QStringList ids;
    for (int i = 0; i < count; ++i)
        ids.append(qarn_data::PersonData::instance().createOrganization(
            {QStringLiteral("Site %1").arg(i / 10), QStringLiteral("Department %1").arg(i)}));
    return ids;
}

QString makeStore(const StoreFiles& files, const QString& name, int count)
{
    const QString path = files.path(name);
    openStore(path);
    const QStringList organizations = addOrganizations(OrganizationCount);
    if (count > 0 && !qarn_data::PersonData::instance().addPersons(People(Seed).make(count, organizations)))
        qFatal("the store does not take the persons");
    closeStore();
    return path;
}

} // namespace qarn_bench
