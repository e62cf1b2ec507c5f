#pragma once

#include <XCOMMON/Export.h>

#include <QByteArray>
#include <QObject>
#include <QString>

namespace XCOMMON
{

/// File helpers of import and export. Any thread.
class XCOMMON_EXPORT ToolsCollection : public QObject
{
    Q_OBJECT
public:
    explicit ToolsCollection(QObject* parent = nullptr);

    /// Replaces what no file name may hold (\ / : * ? " < > |, control characters, blanks and dots at the
    /// end) in `name` and returns the changed name.
    static QString formatLegalFileName(QString& name, const QString& replacement);
    /// All bytes of a file; empty when it cannot be read or is larger than 64 MiB, and the operator is told.
    static QByteArray loadImage(const QString& path);
};

} // namespace XCOMMON
