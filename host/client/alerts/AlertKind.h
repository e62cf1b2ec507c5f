#pragma once

#include <QString>

/// "success", "warning" or "error": the word by which the style sheet colours an alert with this title.
QString alertKindName(const QString& title);
bool isSuccess(const QString& title);
