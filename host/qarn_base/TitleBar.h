#pragma once

#include <QPushButton>
#include <QWidget>

class QLabel;

namespace qarn_base
{

/// Button of a title bar; its sign is drawn, so that it is crisp at every scale.
class TitleBarBt : public QPushButton
{
    Q_OBJECT
public:
    enum class Sign { Close, Maximize, Minimize };

    TitleBarBt(Sign sign, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Sign m_sign;
};

/// Title bar of a CommonDialog. Mouse presses go through it to the dialog, which is moved by them.
class TitleBar : public QWidget
{
    Q_OBJECT
public:
    TitleBar(bool showMinMax, QWidget* parent);

    void setTitle(const QString& title);
    /// Moves the buttons behind everything else in the tab order.
    void goLastInTabOrder();

signals:
    void signalClose();
    void signalMaximize();
    void signalMinimize();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* m_title;
    TitleBarBt* m_minimizeBt;
    TitleBarBt* m_maximizeBt;
    TitleBarBt* m_closeBt;
};

} // namespace qarn_base
