#pragma once

#include <QJsonArray>
#include <QString>

/// What a person would see, as JSON. Rectangles are in pixels of the X window "windowId".
QJsonArray reportWindows();
/// All widgets with this object name that are visible.
QJsonArray reportWidgets(const QString& name);
/// The items of the visible item view with this object name that lie inside its viewport.
QJsonArray reportItems(const QString& name);
