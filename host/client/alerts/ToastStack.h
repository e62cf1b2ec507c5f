#pragma once

#include <QList>
#include <QWidget>

class Toast;

/// Shows the alerts of SystemAssistant one below the other at the upper right of its parent. Keeps a few at
/// a time; older ones make room and stay in the history.
class ToastStack : public QWidget
{
    Q_OBJECT
public:
    explicit ToastStack(QWidget* parent);

    void showAlert(const QString& title, const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void drop(Toast* toast);
    void arrange();

    QList<Toast*> m_toasts; // oldest first
};
