#pragma once

#include <qarn_worker/Export.h>

#include <QCoreApplication>
#include <QString>

namespace qarn_worker
{

/// Answers whether a place on disk can be written to. Any thread.
class QARN_WORKER_EXPORT DiskManager
{
    Q_DECLARE_TR_FUNCTIONS(qarn_worker::DiskManager)
public:
    static DiskManager& instance();

    /// True when the directory, or the file's directory, exists, can be written to and has room. With
    /// `tellOperator` the reason against it is shown as an alert.
    bool isPathAvailable(const QString& path, bool tellOperator);

private:
    DiskManager() = default;
    Q_DISABLE_COPY(DiskManager)
};

} // namespace qarn_worker
