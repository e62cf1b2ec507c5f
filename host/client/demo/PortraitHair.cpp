#include "demo/PortraitTraits.h"

#include <QPainter>
#include <QPainterPath>

namespace
{

enum MaleHair { Crop, Quiff, SideParting, Curls, Bald, Receding };
enum FemaleHair { LongStraight, Bob, Bun, LongWaves, Pixie, Afro };

QPointF at(const PortraitTraits& traits, qreal x, qreal y)
{
    return traits.head.topLeft() + QPointF(x * traits.head.width(), y * traits.head.height());
}

/// From temple to temple over the head: `rise` units above it, the hairline at `line` of the head's height,
/// `dip` of its width from the middle where the parting is.
QPainterPath cap(const PortraitTraits& traits, qreal rise, qreal line, qreal dip)
{
    QPainterPath path(at(traits, -0.04, 0.5));
    path.cubicTo(at(traits, -0.1, -0.02) - QPointF(0, rise), at(traits, 1.1, -0.02) - QPointF(0, rise),
                 at(traits, 1.04, 0.5));
    path.quadTo(at(traits, 0.96, line + 0.08), at(traits, 0.5 + dip, line));
    path.quadTo(at(traits, 0.06, line + 0.06), at(traits, -0.04, 0.5));
    return path;
}

void drawCurls(QPainter& painter, const PortraitTraits& traits, qreal radius, qreal reach)
{
    for (int i = 0; i <= 10; ++i) {
        const qreal x = -0.08 + 0.116 * i;
        const qreal bow = (x - 0.5) * (x - 0.5) * 4; // 0 in the middle, about 1 at the sides
        painter.drawEllipse(at(traits, x, 0.02 + reach * bow), radius, radius);
        painter.drawEllipse(at(traits, x, 0.13 + reach * bow * 0.8), radius * 0.8, radius * 0.8);
    }
}

void drawMaleHair(QPainter& painter, const PortraitTraits& traits)
{
    switch (traits.hairStyle) {
    case Crop:
        painter.drawPath(cap(traits, 16, 0.2, 0));
        break;
    case Quiff:
        painter.drawPath(cap(traits, 24, 0.18, 0.16));
        painter.drawEllipse(at(traits, 0.6, 0.02), 40, 21);
        break;
    case SideParting:
        painter.drawPath(cap(traits, 22, 0.16, -0.26));
        break;
    case Curls:
        drawCurls(painter, traits, 17, 0.26);
        break;
    case Receding:
        painter.drawPath(cap(traits, 8, 0.06, 0));
        break;
    default: // bald, with what is left at the sides
        for (const qreal x : {-0.01, 1.01})
            painter.drawEllipse(at(traits, x, 0.42), 7, 24);
        break;
    }
}

void drawFemaleHair(QPainter& painter, const PortraitTraits& traits)
{
    switch (traits.hairStyle) {
    case LongStraight:
        painter.drawPath(cap(traits, 20, 0.14, 0));
        break;
    case Bob:
        painter.drawPath(cap(traits, 22, 0.26, 0));
        break;
    case Pixie:
        painter.drawPath(cap(traits, 18, 0.2, 0.28));
        break;
    case Afro:
        drawCurls(painter, traits, 15, 0.2);
        break;
    default: // bun and waves
        painter.drawPath(cap(traits, 20, 0.15, -0.2));
        break;
    }
}

} // namespace

void drawHairBehind(QPainter& painter, const PortraitTraits& traits)
{
    if (traits.male)
        return;
    painter.setBrush(shade(traits.hair));
    const QRectF& head = traits.head;
    switch (traits.hairStyle) {
    case LongStraight:
        painter.drawRoundedRect(head.adjusted(-16, -14, 16, 96), 66, 60);
        break;
    case Bob:
        painter.drawRoundedRect(head.adjusted(-15, -14, 15, 12), 62, 44);
        break;
    case Bun:
        painter.drawEllipse(QPointF(150, head.top() - 22), 31, 28);
        break;
    case LongWaves:
        for (int i = 0; i < 6; ++i) {
            painter.drawEllipse(QPointF(head.left() - 4, head.top() + 60 + i * 30), 25, 27);
            painter.drawEllipse(QPointF(head.right() + 4, head.top() + 60 + i * 30), 25, 27);
        }
        painter.drawRect(head.adjusted(-4, 60, 4, 60));
        break;
    case Afro:
        painter.drawEllipse(head.center() - QPointF(0, 34), 98, 92);
        break;
    default:
        break;
    }
}

void drawHairAbove(QPainter& painter, const PortraitTraits& traits)
{
    painter.setBrush(traits.hair);
    if (traits.male)
        drawMaleHair(painter, traits);
    else
        drawFemaleHair(painter, traits);
}
