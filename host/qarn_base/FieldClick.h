#pragma once

#include <QKeyEvent>
#include <QMouseEvent>
#include <QRect>

namespace qarn_base
{

/// A click on a field that works like a button: the left button is released over it.
inline bool isClick(const QMouseEvent& event, const QRect& rect)
{
    return event.button() == Qt::LeftButton && rect.contains(event.pos());
}

/// The keys that press such a field.
inline bool isPressKey(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter || event.key() == Qt::Key_Space;
}

} // namespace qarn_base
