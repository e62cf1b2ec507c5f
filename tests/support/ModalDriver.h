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

    void expect(Action action)
    {
        m_actions.append(std::move(action));
        lookSoon();
    }

    /// Actions whose window has not come; 0 at the end of a test.
    int pending() const { return m_actions.count(); }

private:
    /// A timer of its own for every look: one that is being handled does not fire again in a nested loop.
    void lookSoon()
    {
        if (m_looking || m_actions.isEmpty())
            return;
        m_looking = true;
        QTimer::singleShot(5, this, &ModalDriver::look);
    }

    void look()
    {
        m_looking = false;
        QWidget* window = QApplication::activePopupWidget();
        if (window == nullptr)
            window = QApplication::activeModalWidget();
        m_handled.removeAll(nullptr);
        if (window == nullptr || !window->isVisible() || m_handled.contains(window)) {
            lookSoon();
            return;
        }
        m_handled.append(window);
        const Action action = m_actions.takeFirst();
        lookSoon();
        action(window);
    }

    bool m_looking = false;
    QList<Action> m_actions;
    QList<QPointer<QWidget>> m_handled;
};
