#pragma once

#include <QFrame>

class QTimer;

/// One alert on the screen: labels "alertTitle" and "alertText". Goes by itself after a while, later while
/// the mouse is over it, or at once on a click.
class Toast : public QFrame
{
    Q_OBJECT
public:
    Toast(const QString& title, const QString& text, QWidget* parent);

signals:
    void signalDismissed(Toast* toast);

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void dismiss();

    QTimer* m_timer;
};
