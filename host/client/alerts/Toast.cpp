#include "alerts/Toast.h"

#include "alerts/AlertKind.h"

#include <QLabel>
#include <QMouseEvent>
#include <QTimer>
#include <QVBoxLayout>

namespace
{

constexpr int toastWidth = 340;
constexpr int successMs = 4000;
constexpr int otherMs = 9000; // something to read and to act on
constexpr int maximumLines = 6;

} // namespace

Toast::Toast(const QString& title, const QString& text, QWidget* parent)
    : QFrame(parent),
      m_timer(new QTimer(this))
{
    setObjectName(QStringLiteral("toast"));
    setProperty("alertKind", alertKindName(title));
    setFixedWidth(toastWidth);
    setAccessibleName(title + QStringLiteral(": ") + text);
    setAttribute(Qt::WA_StyledBackground);

    auto* titleLabel = new QLabel(title, this);
    titleLabel->setObjectName(QStringLiteral("alertTitle"));
    auto* textLabel = new QLabel(text, this);
    textLabel->setObjectName(QStringLiteral("alertText"));
    textLabel->setTextFormat(Qt::PlainText);
    textLabel->setWordWrap(true);
    textLabel->setMaximumHeight(textLabel->fontMetrics().lineSpacing() * maximumLines);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(18, 10, 14, 12);
    column->setSpacing(4);
    column->addWidget(titleLabel);
    column->addWidget(textLabel);

    m_timer->setSingleShot(true);
    m_timer->setInterval(isSuccess(title) ? successMs : otherMs);
    connect(m_timer, &QTimer::timeout, this, &Toast::dismiss);
    m_timer->start();
}

void Toast::enterEvent(QEvent* event)
{
    m_timer->stop();
    QFrame::enterEvent(event);
}

void Toast::leaveEvent(QEvent* event)
{
    m_timer->start();
    QFrame::leaveEvent(event);
}

void Toast::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    dismiss();
}

void Toast::dismiss()
{
    m_timer->stop();
    hide();
    emit signalDismissed(this);
}
