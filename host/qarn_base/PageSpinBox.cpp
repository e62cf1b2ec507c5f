#include "PageSpinBox.h"

#include <QKeyEvent>
#include <QWheelEvent>

namespace qarn_base
{

PageSpinBox::PageSpinBox(QWidget* parent) : QSpinBox(parent)
{
    setKeyboardTracking(false);
    setButtonSymbols(NoButtons);
    setAlignment(Qt::AlignCenter);
    setFocusPolicy(Qt::StrongFocus);
    setPages(0, 0);
}

void PageSpinBox::setPages(int current, int count)
{
    m_current = current;
    setRange(count > 0 ? 1 : 0, qMax(count, 0));
    setValue(current);
    setEnabled(count > 0);
}

void PageSpinBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QSpinBox::keyPressEvent(event);
        return;
    }
    event->accept();
    interpretText();
    const int page = value();
    setValue(m_current); // until the page is there
    selectAll();
    emit signalConfirmed(page);
}

void PageSpinBox::focusOutEvent(QFocusEvent* event)
{
    QSpinBox::focusOutEvent(event);
    setValue(m_current);
}

void PageSpinBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QSpinBox::wheelEvent(event);
    else
        event->ignore();
}

} // namespace qarn_base
