#pragma once

#include <QMutex>
#include <QString>
#include <QThread>
#include <QWaitCondition>

namespace qarn_data
{

/// Brings what was written to the disk for good, within a second of the write, in a thread and through a
/// connection of its own: the writers do not wait for the disk.
class Checkpointer : public QThread
{
    Q_OBJECT
public:
    explicit Checkpointer(const QString& location);
    ~Checkpointer() override; ///< after a last checkpoint

    void noteWrite(); ///< any thread

protected:
    void run() override;

private:
    bool waitForWrite(); ///< false when it is time to stop

    const QString m_location;
    QMutex m_mutex;
    QWaitCondition m_changed;
    bool m_isDue = false;
    bool m_isStopping = false;
};

} // namespace qarn_data
