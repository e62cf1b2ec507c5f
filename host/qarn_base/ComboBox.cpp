#include <qarn_base/ComboBox.h>

#include <QWheelEvent>

namespace qarn_base
{

ComboBox::ComboBox(QWidget* parent) : QComboBox(parent)
{
    // Scrolling a form past the box must neither change it nor move the focus into it.
    setFocusPolicy(Qt::StrongFocus);
}

void ComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

} // namespace qarn_base
