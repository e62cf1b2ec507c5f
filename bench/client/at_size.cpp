// The whole at the size of a large site: 100,000 persons in 2,000 organizations, 20,000 with photographs.
// Prints what each step took, and the resident memory after it, as a JSON line.

#include "demo/Portrait.h"
#include "query/PersonMgrWorker.h"
#include "query/PersonQueryCondition.h"
#include "support/Figure.h"
#include "support/Memory.h"
#include "support/People.h"
#include "support/Photographs.h"
#include "support/StoreFiles.h"
#include "sync/SynchronizeFacesThread.h"
#include "table/PageWindow.h"
#include "transfer/PersonTable.h"
#include "transfer/Workers.h"

#include <qarn_data/DeviceRegistry.h>
#include <qarn_data/PersonData.h>

#include <QApplication>
#include <QBuffer>
#include <QEventLoop>
#include <QProcess>

#include <cstdio>
#include <functional>

using namespace qarn_bench;
using qarn_data::PersonData;
using qarn_personMgr::SynchronizeFacesThread;

namespace
{

constexpr quint32 Seed = 20240511;
constexpr int Persons = 100000;
constexpr int Organizations = 2000;
constexpr int EveryPhoto = 5; // 20,000 have one
constexpr int DistinctPortraits = 300;
constexpr QSize PortraitSize(300, 400);
constexpr int Imported = 10000;
constexpr int Sent = 1000;
constexpr int Channels = 2;

void measure(const char* step, const std::function<void()>& action)
{
    const double elapsed = milliseconds(action);
    std::printf(R"({"name": "at_size_%s_ms", "ours": %.1f, "rss_mb": %.1f})"
                "\n",
                step, elapsed, residentBytes() / 1048576.0);
    std::fflush(stdout);
}

QList<QByteArray> portraits()
{
    QList<QByteArray> all;
    for (int i = 0; i < DistinctPortraits; ++i) {
        QBuffer buffer;
        drawPortrait(quint32(i + 1), PortraitSize).save(&buffer, "jpg", 82);
        all.append(buffer.data());
    }
    return all;
}

void fill()
{
    const QStringList organizations = addOrganizations(Organizations);
    qarn_data::PersonList persons = People(Seed).make(Persons, organizations);
    const QList<QByteArray> faces = portraits();
    for (int i = 0; i < persons.count(); ++i) {
        // Not the numbers of the imported table, whose persons come as new ones.
        persons[i].serialNum.prepend(QLatin1Char('S'));
        if (i % EveryPhoto == 0)
            persons[i].faceImage1 = withComment(faces.at(i / EveryPhoto % faces.count()), i);
    }
    if (!PersonData::instance().addPersons(persons))
        qFatal("the store does not take the persons");
}

void startClient(const QString& store)
{
    if (QProcess::execute(QStringLiteral(QARN_CLIENT),
                          {QStringLiteral("--self-test"), QStringLiteral("--store"), store}) != 0)
        qFatal("the client's self-test fails");
}

void search()
{
    qarn_personMgr::PersonQueryCondition condition;
    condition.name = QStringLiteral("an");
    condition.validType = qarn_personMgr::ValidPersons;
    qarn_personMgr::PersonMgrWorker::instance().queryPersons(condition);
}

QStringList organizationIds()
{
    QStringList ids;
    const auto organizations = PersonData::instance().getAllOrganizations();
    for (const auto& organization : organizations)
        ids.append(organization.id);
    return ids;
}

qarn_data::Device startDevice(QProcess& process)
{
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral(QARN_SIMULATOR), {QStringLiteral("--until-stdin-closes"),
                                                   QStringLiteral("--channels"), QString::number(Channels)});
    while (!process.canReadLine() && process.waitForReadyRead(10000)) {
    }
    const QByteArray line = process.readLine().trimmed();
    const QByteArray ready = "listening on ";
    if (!line.startsWith(ready))
        qFatal("the simulated device does not start");
    qarn_data::Device device;
    device.id = QStringLiteral("gate");
    device.name = QStringLiteral("Gate");
    device.address = QUrl(QString::fromLatin1(line.mid(ready.size())));
    for (int number = 1; number <= Channels; ++number)
        device.channels.append({number, QString::number(number), qarn_data::FaceListAbility});
    return device;
}

void send(const QString& deviceId)
{
    qarn_data::PersonList persons;
    const qarn_data::PersonList all = PersonData::instance().getAllPersons(false);
    for (int i = 0; persons.count() < Sent; ++i) {
        if (!all.at(i).faceImage1.isEmpty())
            persons.append(all.at(i));
    }
    QList<SynchronizeFacesThread::Channel> channels;
    for (int number = 1; number <= Channels; ++number)
        channels.append({deviceId, number});
    SynchronizeFacesThread thread(persons, channels, false, nullptr);
    int failures = 0;
    QEventLoop loop;
    QObject::connect(&thread, &SynchronizeFacesThread::signalSyncMsg, &loop,
                     [&failures](const QString&, bool isNormal) { failures += isNormal ? 0 : 1; });
    QObject::connect(&thread, &SynchronizeFacesThread::signalSyncTimeout, &loop,
                     [&failures] { failures += Sent; });
    QObject::connect(&thread, &QThread::finished, &loop, &QEventLoop::quit);
    thread.start();
    loop.exec();
    if (failures > 0)
        qFatal("%d faces did not reach the device", failures);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const StoreFiles files;
    const QString store = files.path(QStringLiteral("big.db"));
    openStore(store);
    measure("generate", fill);
    closeStore();
    measure("start", [&] { startClient(store); });
    measure("open", [&] { openStore(store); });
    {
        PageWindow window;
        measure("page_turn", [&] { window.click("nextBt"); });
        measure("search", search);
    }
    measure("export", [&] { exportAllColumns(organizationIds(), files.path(QStringLiteral("all.csv"))); });
    const QString table = files.path(QStringLiteral("new.csv"));
    writePersonTable(table, Imported);
    measure("import_10000", [&] { importPersons(table); });
    QProcess process;
    const qarn_data::Device device = startDevice(process);
    qarn_data::DeviceRegistry::instance().saveDevice(device);
    measure("send_1000_to_2", [&] { send(device.id); });
    process.closeWriteChannel();
    process.waitForFinished();
    closeStore();
    return 0;
}
