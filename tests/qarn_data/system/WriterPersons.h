#pragma once

#include <qarn_data/PersonInfo.h>

#include <QJsonObject>
#include <QStringList>

QStringList idsOf(const QJsonObject& command); ///< its "ids"
QStringList idsOf(const qarn_data::PersonList& persons);

/// New persons for {"ids": [...], "organizationId": ..., "imageSize": ...}: serial number, name and
/// image follow from the id.
qarn_data::PersonList personsToAdd(const QJsonObject& command);

/// The stored persons with these ids, in the order of the store.
qarn_data::PersonList personsWithIds(const QStringList& ids);
