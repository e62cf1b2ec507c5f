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
    const QString known = files.path(QStringLiteral("known.csv"));
    const QString table = files.path(QStringLiteral("new.csv"));
    const QString plain = files.path(QStringLiteral("import.db"));
    writePersonTable(known, LargeSite::Persons);
    writePersonTable(table, Imported, LargeSite::Persons);
    { // the peer holds as many persons as we do
        const SqliteConnection connection = makePlainTable(plain);
        fillPlainTable(plain, known);
    }
    Figure figure{"at_size_import_10000_ms"};
    figure.limit = 4;
    figure.ours = milliseconds([&] { importPersons(table); });
    const QSet<QString> imported = serialNumsIn(table, personTableTitleLines, 9);
    const QSet<QString> held = PersonData::instance().getAllPersonsSerialNum();
    if (!held.contains(imported) || held.count() != LargeSite::Persons + Imported)
        qFatal("the store holds %d serial numbers", int(held.count()));
    const SqliteConnection connection = openSqlite(plain);
    figure.peer = fillPlainTable(plain, table);
    if (touchAll(prepare(connection.get(), "SELECT 1 FROM persons").get()) != LargeSite::Persons + Imported)
        qFatal("the peer did not import all persons");
    return report(figure);
}

int measureSend(const StoreFiles& files)
{
    const PersonList persons = firstWithFaces(Sent);
    const QList<QByteArray> bodies = bodiesOf(persons);
    const auto options = [&files](const QString& name) {
        return QStringList{QStringLiteral("--channels"), QString::number(Channels), QStringLiteral("--data"),
                           files.path(name)};
    };
    Figure figure{"at_size_send_1000_to_2_ms"};
    figure.limit = 1.3;
    {
        SimulatedDevice device(options(QStringLiteral("device.jsonl")));
        device.addToRegistry();
        figure.ours = pushAll(persons, {{device.id(), 1}, {device.id(), 2}});
    }
    requireSent(persons, files.path(QStringLiteral("device.jsonl")));
    for (int channel = 1; channel <= Channels; ++channel) {
        const SimulatedDevice device(options(QStringLiteral("peer%1.jsonl").arg(channel)));
        figure.peer += postAll(device.address(), bodies);
    }
    return report(figure);
}

} // namespace qarn_bench
