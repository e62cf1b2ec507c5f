#pragma once

#include <QString>
#include <QTextDocument>

namespace qarn_base
{

/// The text for a tool tip that shows it as it is, even where it looks like HTML.
inline QString plainToolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped()) : text;
}

} // namespace qarn_base
