#pragma once

#include <QPointer>
#include <QString>

#include <functional>
#include <memory>

class QObject;
class QThread;
class QWidget;

namespace qarn_base
{
class DisabledWaitingWt;
}

namespace qarn_personMgr
{

/// A worker thread and the overlay that covers the page while it runs. Copies stand for the same run, so
/// that every handler of the thread's signals can hold one. GUI thread.
class CoveredRun
{
public:
    /// Covers `form` at once.
    CoveredRun(QWidget* form, QThread* thread, const QString& caption);

    /// Starts the thread. `onLost` is called, after the overlay is gone, when the thread ends without any
    /// handler having called end(), for instance because the client is about to quit.
    void start(const QObject* context, const std::function<void()>& onLost = {}) const;
    void updateDescription(const QString& description) const;
    /// Uncovers the form and lets the thread go. False when that was done before: a run ends once.
    bool end() const;

private:
    QPointer<QThread> m_thread;
    QPointer<qarn_base::DisabledWaitingWt> m_overlay;
    QString m_overlayId;
    std::shared_ptr<bool> m_ended;
};

} // namespace qarn_personMgr
