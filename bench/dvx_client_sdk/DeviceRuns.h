#pragma once

#include <qarn_data/PersonInfo.h>

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <QUrl>

namespace qarn_bench
{

/// Persons with a photograph of the given size each, all different.
qarn_data::PersonList personsWithPhotos(int count, int photoBytes);

/// The bodies that the register sends for these persons.
QList<QByteArray> bodiesOf(const qarn_data::PersonList& persons);

/// Milliseconds of one synchronisation to devices. Ends the program when a face failed and `mayFail` is not
/// set.
double pushAll(const qarn_data::PersonList& persons, const QList<QPair<QString, int>>& channels,
               bool mayFail = false);
/// Milliseconds that the bodies take through the peer.
double postAll(const QUrl& address, const QList<QByteArray>& bodies);
/// Milliseconds that it takes to read so many faces with their photographs, one a request.
double readAll(const QString& deviceId, int faces);

} // namespace qarn_bench
