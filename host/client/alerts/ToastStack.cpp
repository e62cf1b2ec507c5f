#include "alerts/ToastStack.h"

#include "alerts/Toast.h"

#include <qarn_worker/SystemAssistant.h>

#include <QEvent>

using qarn_worker::SystemAssistant;

namespace
{

constexpr int maximumToasts = 4;
constexpr int gap = 8;
constexpr int rightMargin = 16;
constexpr int topMargin = 52; // below the title bar

} // namespace

ToastStack::ToastStack(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("toastStack"));
    hide();
    parent->installEventFilter(this);
    connect(&SystemAssistant::instance(), &SystemAssistant::signalMessageAlert, this, &ToastStack::showAlert);
}

void ToastStack::showAlert(const QString& title, const QString& text)
{
    while (m_toasts.count() >= maximumToasts)
        drop(m_toasts.first());
    auto* toast = new Toast(title, text, this);
    connect(toast, &Toast::signalDismissed, this, &ToastStack::drop);
    m_toasts.append(toast);
    toast->show();
    arrange();
}

bool ToastStack::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        arrange();
    return QWidget::eventFilter(watched, event);
}

void ToastStack::drop(Toast* toast)
{
    m_toasts.removeAll(toast);
    toast->deleteLater();
    arrange();
}

void ToastStack::arrange()
{
    int height = 0;
    int width = 0;
    for (Toast* toast : qAsConst(m_toasts)) {
        toast->adjustSize();
        toast->move(0, height);
        height += toast->height() + gap;
        width = qMax(width, toast->width());
    }
    setGeometry(parentWidget()->width() - width - rightMargin, topMargin, width, height);
    setVisible(!m_toasts.isEmpty());
    raise();
}
