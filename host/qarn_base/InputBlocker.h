#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace qarn_base
{

/// Keeps all input from a widget and what is in it, other than the overlay that covers it: also key
/// shortcuts, and input for a widget that got the focus by code.
class InputBlocker : public QObject
{
    Q_OBJECT
public:
    InputBlocker(QWidget& area, QWidget& overlay);
    ~InputBlocker() override; ///< the focus goes back to where it was

    void restoreFocus();
    bool covers(const QObject* object) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void catchFocus(QWidget* widget);

    QPointer<QWidget> m_area;
    QWidget& m_overlay;
    QPointer<QWidget> m_focused; ///< gets the focus when the overlay goes
};

} // namespace qarn_base
