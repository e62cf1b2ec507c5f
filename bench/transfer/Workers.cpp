#include "transfer/Workers.h"

#include "transfer/ExportPersonsThread.h"
#include "transfer/ImportPersonsThread.h"

namespace qarn_bench
{

namespace
{

template <class Thread, class Signal>
void run(Thread& thread, Signal signal)
{
    bool succeeded = false;
    QObject::connect(
        &thread, signal, &thread, [&succeeded](bool success) { succeeded = success; }, Qt::DirectConnection);
    thread.start();
    thread.wait();
    if (!succeeded)
        qFatal("the worker reports a failure");
}

} // namespace

void importPersons(const QString& filePath)
{
    qarn_personMgr::ImportPersonsThread thread(filePath, nullptr);
    run(thread, &qarn_personMgr::ImportPersonsThread::signalImportPersonsInfoResult);
}

void importFaces(const QString& directory, const QString& organizationId)
{
    qarn_personMgr::ImportPersonsThread thread(directory, organizationId, {0, 1}, nullptr);
    run(thread, &qarn_personMgr::ImportPersonsThread::signalImportPersonsInfoResult);
}

void exportAllColumns(const QStringList& organizationIds, const QString& filePath)
{
    const QStringList titles{
        QStringLiteral("*Serail Num"), QStringLiteral("*Person Name"), QStringLiteral("Organization"),
        QStringLiteral("Sex"),         QStringLiteral("Email"),        QStringLiteral("Phone Num"),
        QStringLiteral("Identity ID"), QStringLiteral("Valid Time"),   QStringLiteral("Invalid Time")};
    qarn_personMgr::ExportPersonsThread thread(organizationIds, titles, 511, filePath, nullptr);
    run(thread, &qarn_personMgr::ExportPersonsThread::signalExportPersonsResult);
}

} // namespace qarn_bench
