#include "ReasonLabel.h"

#include "HostColors.h"

#include <QAccessible>

namespace qarn_base
{

ReasonLabel::ReasonLabel(QWidget* parent) : QLabel(parent)
{
    setObjectName(QStringLiteral("reason"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setStyleSheet(QStringLiteral("color:%1;").arg(colors::ErrorText.name()));
    setMinimumHeight(fontMetrics().height());
}

void ReasonLabel::showReason(const QString& reason)
{
    setText(reason);
    setAccessibleName(reason);
    QAccessibleEvent announcement(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&announcement);
}

void ReasonLabel::hideReason()
{
    clear();
    setAccessibleName(QString());
}

} // namespace qarn_base
