#pragma once

#include <XCOMMON/Export.h>

#include <QThread>

namespace XCOMMON
{

/// Base of worker threads. The host knows every running one and does not quit under it. The object must
/// live until its run has ended; the destructor waits for that.
class XCOMMON_EXPORT XThread : public QThread
{
    Q_OBJECT
public:
    explicit XThread(QObject* parent = nullptr);
    ~XThread() override;
};

} // namespace XCOMMON
