#include "transfer/Workers.h"

#include "transfer/ExportPersonsThread.h"
#include "transfer/ImportPersonsThread.h"

#include "support/ChildRun.h"
#include "support/Figure.h"
#include "support/StoreFiles.h"

#include <qarn_data/PersonData.h>

#include <QProcess>

using qarn_data::PersonData;

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

int measureImport(const QString& filePath, const QString& store, int serialNums)
{
    openStore(store);
    const double elapsed = milliseconds([&] { importPersons(filePath); });
    const int held = PersonData::instance().getAllPersonsSerialNum().count();
    if (held != serialNums)
        qFatal("the store holds %d serial numbers instead of %d", held, serialNums);
    closeStore();
    return printMeasure(elapsed);
}

QStringList allOrganizationIds()
{
    QStringList ids;
    for (const qarn_data::OrganizationInfo& organization : PersonData::instance().getAllOrganizations())
        ids.append(organization.id);
    return ids;
}

void runProgram(const QString& program, const QStringList& arguments, const QByteArray& input)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        qFatal("%s %s fails", qPrintable(program), qPrintable(arguments.join(QLatin1Char(' '))));
}

} // namespace qarn_bench
