#pragma once

#include <XCOMMON/XThread.h>

#include <QString>

/// Copies the open person register to a file while it stays in use, and tells the operator how that went.
class BackupThread : public XCOMMON::XThread
{
    Q_OBJECT
public:
    BackupThread(const QString& filePath, QObject* parent);
    ~BackupThread() override;

protected:
    void run() override;

private:
    const QString m_filePath;
};
