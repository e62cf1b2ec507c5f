#include "table/TextCell.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTextLayout>
#include <QToolTip>

namespace qarn_personMgr
{
namespace
{

constexpr int sideMargin = 4; // pixels, so that neighbouring columns do not run together

} // namespace

TextCell::TextCell(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

QSize TextCell::sizeHint() const
{
    return {0, fontMetrics().height()};
}

QSize TextCell::minimumSizeHint() const
{
    return sizeHint();
}

bool TextCell::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QLabel::event(event);
    bool cut = false;
    visibleLines(&cut);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(),
                       cut ? QStringLiteral("<p>%1</p>").arg(text().toHtmlEscaped()) : QString(), this);
    return true;
}

QStringList TextCell::visibleLines(bool* cut) const
{
    const QFontMetrics metrics(font());
    const int width = contentsRect().width() - 2 * sideMargin;
    const int fitting = qMax(1, contentsRect().height() / qMax(1, metrics.lineSpacing()));
    QString plain = text();
    plain.replace(QLatin1Char('\n'), QChar::LineSeparator);

    QTextLayout layout(plain, font());
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        if (lines.count() + 1 == fitting) {
            const QString rest = plain.mid(line.textStart());
            lines.append(metrics.elidedText(rest, Qt::ElideRight, width));
            if (cut != nullptr)
                *cut = lines.last() != rest;
            break;
        }
        lines.append(plain.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines;
}

void TextCell::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    drawFrame(&painter);
    const QStringList lines = visibleLines();
    const int lineHeight = fontMetrics().lineSpacing();
    painter.setPen(palette().color(foregroundRole()));
    QRect line(contentsRect().x(), 0, contentsRect().width(), lineHeight);
    line.moveTop(contentsRect().center().y() - static_cast<int>(lines.count()) * lineHeight / 2);
    for (const QString& text : lines) {
        painter.drawText(line, Qt::AlignCenter | Qt::TextSingleLine, text);
        line.translate(0, lineHeight);
    }
}

} // namespace qarn_personMgr
