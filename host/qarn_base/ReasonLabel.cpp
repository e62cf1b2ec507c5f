#include "ReasonLabel.h"

#include <qarn_base/HostColors.h>

#include <QAccessible>

namespace qarn_base
{

ReasonLabel::ReasonLabel(int lines, QWidget* parent) : QLabel(parent)
{
    setObjectName(QStringLiteral("reason"));
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setStyleSheet(QStringLiteral("color:%1;").arg(colors::ErrorText.name()));
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setMinimumHeight(lines * fontMetrics().lineSpacing());
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
