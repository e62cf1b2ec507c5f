#pragma once

#include <QApplication>
#include <QList>
#include <QPointer>
#include <QTimer>
#include <QWidget>

#include <functional>

/// Acts on modal windows and pop-ups as they open, in the order of expect(), the way an operator does while
/// exec() runs. An action may open further ones; the next action meets those.
class ModalDriver : public QObject
{
public:
    using Action = std::function<void(QWidget* window)>;

    ModalDriver()
    {
        m_timer.setInterval(5);
        connect(&m_timer, &QTimer::timeout, this, &ModalDriver::look);
    }

    void expect(Action action)
    {
        m_actions.append(std::move(action));
        m_timer.start();
    }

    /// Actions whose window has not come; 0 at the end of a test.
    int pending() const { return m_actions.count(); }

private:
    void look()
    {
        QWidget* window = QApplication::activePopupWidget();
        if (window == nullptr)
            window = QApplication::activeModalWidget();
        m_handled.removeAll(nullptr);
        if (window == nullptr || !window->isVisible() || m_handled.contains(window) || m_actions.isEmpty())
            return;
        m_handled.append(window);
        const Action action = m_actions.takeFirst();
        if (m_actions.isEmpty())
            m_timer.stop();
        // Not in here: while the action opens a further window, this timer must be able to fire again.
        QMetaObject::invokeMethod(window, [action, window] { action(window); }, Qt::QueuedConnection);
    }

    QTimer m_timer;
    QList<Action> m_actions;
    QList<QPointer<QWidget>> m_handled;
};
