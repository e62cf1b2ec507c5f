#include "InputBlocker.h"

#include <qarn_base/DisabledWaitingWt.h>

#include <QAction>
#include <QApplication>
#include <QEvent>
#include <QShortcut>

namespace qarn_base
{

namespace
{

bool isInput(QEvent::Type type)
{
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

/// The widget that an event for the object would act in; null when it is none.
const QWidget* widgetOf(const QObject* object)
{
    if (object->isWidgetType())
        return static_cast<const QWidget*>(object);
    if (const auto* shortcut = qobject_cast<const QShortcut*>(object))
        return shortcut->parentWidget();
    if (const auto* action = qobject_cast<const QAction*>(object))
        return action->parentWidget();
    return nullptr;
}

bool isInOverlay(const QWidget* widget)
{
    while (widget != nullptr && qobject_cast<const DisabledWaitingWt*>(widget) == nullptr)
        widget = widget->parentWidget();
    return widget != nullptr;
}

} // namespace

InputBlocker::InputBlocker(QWidget& area, QWidget& overlay) : m_area(&area), m_overlay(overlay)
{
    QWidget* focused = area.window()->focusWidget();
    if (covers(focused))
        catchFocus(focused);
    qApp->installEventFilter(this);
}

InputBlocker::~InputBlocker()
{
    qApp->removeEventFilter(this);
}

/// Unless the operator has moved the focus elsewhere in the meantime.
void InputBlocker::restoreFocus()
{
    if (m_area.isNull() || m_focused.isNull())
        return;
    const QWidget* current = m_area->window()->focusWidget();
    if (current == nullptr || current == &m_overlay || covers(current))
        m_focused->setFocus(Qt::OtherFocusReason);
}

bool InputBlocker::covers(const QObject* object) const
{
    if (object == nullptr || m_area.isNull())
        return false;
    const QWidget* widget = widgetOf(object);
    return widget != nullptr && (widget == m_area || m_area->isAncestorOf(widget)) && !isInOverlay(widget);
}

bool InputBlocker::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn && covers(watched)) {
        catchFocus(static_cast<QWidget*>(watched));
        return false;
    }
    if (!isInput(event->type()) || !covers(watched))
        return false;
    event->accept();
    return true;
}

void InputBlocker::catchFocus(QWidget* widget)
{
    m_focused = widget;
    // Only after the widget has learned that it had the focus for a moment.
    QMetaObject::invokeMethod(
        &m_overlay, [overlay = &m_overlay] { overlay->setFocus(Qt::OtherFocusReason); },
        Qt::QueuedConnection);
}

} // namespace qarn_base
