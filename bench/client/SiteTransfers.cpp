#include "client/SiteSteps.h"

#include "SimulatedDevice.h"
#include "client/LargeSite.h"
#include "dvx_client_sdk/DeviceRuns.h"
#include "support/Figure.h"
#include "support/StoreFiles.h"
#include "transfer/ExportPeer.h"
#include "transfer/PersonTable.h"
#include "transfer/PlainTable.h"
#include "transfer/Workers.h"

#include <qarn_data/PersonData.h>

#include <QFile>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

using qarn_data::PersonData;
using qarn_data::PersonInfo;
using qarn_data::PersonList;

namespace qarn_bench
{

namespace
{

constexpr int Imported = 10000;
constexpr int Sent = 1000;
constexpr int Channels = 2;

/// The first field of every line below the titles, each of which must have so many fields.
QSet<QString> serialNumsIn(const QString& path, int titleLines, int fields)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    QSet<QString> serialNums;
    for (int line = 0; !file.atEnd(); ++line) {
        const QList<QByteArray> values = file.readLine().split(',');
        if (line < titleLines)
            continue;
        if (values.count() != fields + 1) // the lines end with a comma
            qFatal("line %d of %s has %d fields", line + 1, qPrintable(path), int(values.count()) - 1);
        serialNums.insert(QString::fromUtf8(values.first()));
    }
    return serialNums;
}

PersonList firstWithFaces(int count)
{
    PersonList persons;
    for (const PersonInfo& person : PersonData::instance().getAllPersons(false)) {
        if (!person.faceImage1.isEmpty() && persons.count() < count)
            persons.append(person);
    }
    return persons;
}

/// Photographs by serial number that a stopped device left in its file for a channel.
QHash<QString, QByteArray> facesIn(const QString& deviceFile, int channel)
{
    QFile file(deviceFile);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(deviceFile));
    QHash<QString, QByteArray> faces;
    while (!file.atEnd()) {
        const QJsonObject line = QJsonDocument::fromJson(file.readLine()).object();
        const QJsonObject face = line.value(QLatin1String("face")).toObject();
        if (line.value(QLatin1String("channel")).toInt() == channel)
            faces.insert(face.value(QLatin1String("externalId")).toString(),
                         QByteArray::fromBase64(face.value(QLatin1String("photo")).toString().toLatin1()));
    }
    return faces;
}

void requireSent(const PersonList& persons, const QString& deviceFile)
{
    for (int channel = 1; channel <= Channels; ++channel) {
        const QHash<QString, QByteArray> faces = facesIn(deviceFile, channel);
        if (faces.count() != persons.count())
            qFatal("channel %d holds %d faces", channel, int(faces.count()));
        for (const PersonInfo& person : persons) {
            if (faces.value(person.serialNum) != person.faceImage1)
                qFatal("channel %d has not the photograph of %s", channel, qPrintable(person.serialNum));
        }
    }
}

void requireImported(const QString& personFile, int serialNums)
{
    const QSet<QString> held = PersonData::instance().getAllPersonsSerialNum();
    if (held.count() != serialNums || !held.contains(serialNumsIn(personFile, personTableTitleLines, 9)))
        qFatal("the store holds %d serial numbers after the import", int(held.count()));
}

QStringList deviceOptions(const QString& file)
{
    return {QStringLiteral("--channels"), QString::number(Channels), QStringLiteral("--data"), file};
}

double sendTo(const QString& deviceFile, const PersonList& persons)
{
    SimulatedDevice device(deviceOptions(deviceFile));
    device.addToRegistry();
    return pushAll(persons, {{device.id(), 1}, {device.id(), 2}});
}

} // namespace

int measureExport(const StoreFiles& files)
{
    constexpr int Rounds = 3;
    constexpr int Columns = 9;
    const QString exported = files.path(QStringLiteral("all.csv"));
    const QStringList organizations = allOrganizationIds();
    exportAllColumns(organizations, exported);
    if (serialNumsIn(exported, 1, Columns) != PersonData::instance().getAllPersonsSerialNum())
        qFatal("the exported file does not hold every person");
    const ExportPeer peer(files.path(QStringLiteral("plain.db")), exported);
    Figure figure{"at_size_export_ms"};
    figure.limit = 1.5;
    measureAlternately(
        figure, Rounds, [&] { return milliseconds([&] { exportAllColumns(organizations, exported); }); },
        [&] { return peer.exportAll(files.path(QStringLiteral("peer.csv"))); });
    const int lines = lineCount(exported);
    if (lines != LargeSite::Persons + 1 || peer.rowCount() != LargeSite::Persons)
        qFatal("the exported file has %d lines, the peer %d rows", lines, peer.rowCount());
    return report(figure);
}

int measureImport(const StoreFiles& files)
{
    constexpr int Rounds = 3;
    const QString known = files.path(QStringLiteral("known.csv"));
    const QString plain = files.path(QStringLiteral("import.db"));
    const auto newPersons = [&files](int round) { // other ones each time
        const QString path = files.path(QStringLiteral("new%1.csv").arg(round));
        writePersonTable(path, Imported, LargeSite::Persons + round * Imported);
        return path;
    };
    const SqliteConnection connection = makePlainTable(plain);
    writePersonTable(known, LargeSite::Persons);
    fillPlainTable(plain, known); // the peer holds as many persons as we do
    execute(connection.get(), "PRAGMA wal_checkpoint(TRUNCATE)");
    int ours = 0;
    int peers = 0;
    Figure figure{"at_size_import_10000_ms"};
    figure.limit = 4;
    measureAlternately(
        figure, Rounds,
        [&] {
            const QString table = newPersons(ours++);
            const double time = milliseconds([&] { importPersons(table); });
            requireImported(table, LargeSite::Persons + ours * Imported);
            return time;
        },
        [&] { return fillPlainTable(plain, newPersons(peers++)); });
    const qint64 rows = touchAll(prepare(connection.get(), "SELECT 1 FROM persons").get());
    if (rows != LargeSite::Persons + Rounds * Imported)
        qFatal("the peer holds %d persons", int(rows));
    return report(figure);
}

int measureSend(const StoreFiles& files)
{
    constexpr int Rounds = 3;
    const PersonList persons = firstWithFaces(Sent);
    const QList<QByteArray> bodies = bodiesOf(persons);
    int devices = 0;
    const auto newDevice = [&] { return files.path(QStringLiteral("device%1.jsonl").arg(devices++)); };
    Figure figure{"at_size_send_1000_to_2_ms"};
    figure.limit = 1.3;
    measureAlternately(
        figure, Rounds,
        [&] {
            const QString file = newDevice();
            const double time = sendTo(file, persons);
            requireSent(persons, file);
            return time;
        },
        [&] {
            double time = 0;
            for (int channel = 1; channel <= Channels; ++channel) {
                const SimulatedDevice device(deviceOptions(newDevice()));
                time += postAll(device.address(), bodies);
            }
            return time;
        });
    return report(figure);
}

} // namespace qarn_bench
