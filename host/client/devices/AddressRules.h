#pragma once

#include <QString>
#include <QUrl>

/// The address of a device from what an operator types: "10.0.0.5", "gate.local:8080", "https://gate/base".
/// Without a scheme it is http. Invalid, with the reason in `error`, when it cannot be one.
QUrl deviceAddress(const QString& text, QString* error);

/// The reason why a token cannot be sent; empty when it can. No token is fine.
QString whyNoToken(const QString& token);
