#pragma once

#include "FileChooser.h"
#include "ModalDriver.h"

#include <QAbstractButton>

/// The parts of a dialog by their object names, and the hands of an operator on them.
namespace dialogParts
{

template <class T>
T* part(const QWidget& dialog, const char* name)
{
    T* found = dialog.findChild<T*>(name);
    if (found == nullptr)
        qFatal("no %s", name);
    return found;
}

inline void click(const QWidget& dialog, const char* name)
{
    QWidget* widget = part<QWidget>(dialog, name);
    auto* button = qobject_cast<QAbstractButton*>(widget);
    if (button != nullptr)
        button->click();
    else
        QTest::mouseClick(widget, Qt::LeftButton);
}

inline QString text(const QWidget& dialog, const char* name)
{
    return part<QLineEdit>(dialog, name)->text();
}

/// Answers a file dialog with a path; an empty one cancels.
inline ModalDriver::Action answer(const QString& path, QString* caption = nullptr)
{
    return [path, caption](QWidget* window) {
        if (caption != nullptr)
            *caption = window->windowTitle();
        choosePath(window, path);
    };
}

} // namespace dialogParts
