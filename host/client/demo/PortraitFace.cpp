#include "demo/PortraitTraits.h"

#include <QPainter>
#include <QPainterPath>

namespace
{

/// Distance of the eyes from the middle of the face.
constexpr qreal eyeOffset = 27;

qreal eyeLine(const PortraitTraits& traits)
{
    return traits.head.top() + traits.head.height() * 0.5;
}

void drawHead(QPainter& painter, const PortraitTraits& traits)
{
    const QRectF& head = traits.head;
    painter.setBrush(skinShade(traits.skin));
    for (const qreal x : {head.left() + 1, head.right() - 1})
        painter.drawEllipse(QPointF(x, eyeLine(traits) + 10), 11, 18);
    QPainterPath face;
    const qreal jaw = traits.male ? 0.36 : 0.27; // half of the chin's width
    const qreal middle = head.center().x();
    face.moveTo(head.left(), head.top() + head.height() * 0.45);
    face.cubicTo(head.left(), head.top() - 8, head.right(), head.top() - 8, head.right(),
                 head.top() + head.height() * 0.45);
    face.cubicTo(head.right(), head.bottom() - 34, middle + head.width() * jaw, head.bottom(), middle,
                 head.bottom());
    face.cubicTo(middle - head.width() * jaw, head.bottom(), head.left(), head.bottom() - 34, head.left(),
                 head.top() + head.height() * 0.45);
    painter.setBrush(traits.skin);
    painter.drawPath(face);
}

void drawEyes(QPainter& painter, const PortraitTraits& traits)
{
    for (const int side : {-1, 1}) {
        const QPointF eye(150 + side * eyeOffset, eyeLine(traits) + 4);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0xfb, 0xfa, 0xf7));
        painter.drawEllipse(eye, 11 * traits.eyeSize, 7.5 * traits.eyeSize);
        painter.setBrush(traits.iris);
        painter.drawEllipse(eye, 5.8 * traits.eyeSize, 6.2 * traits.eyeSize);
        painter.setBrush(QColor(0x14, 0x12, 0x12));
        painter.drawEllipse(eye, 2.8, 2.8);
        painter.setBrush(Qt::white);
        painter.drawEllipse(eye + QPointF(1.8, -2), 1.5, 1.5);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(QColor(0x2a, 0x20, 0x1e), traits.male ? 2 : 3.2, Qt::SolidLine, Qt::RoundCap));
        QPainterPath lid(eye + QPointF(-12 * traits.eyeSize, -1));
        lid.quadTo(eye + QPointF(0, -13 * traits.eyeSize), eye + QPointF(12 * traits.eyeSize, -1));
        painter.drawPath(lid);
        painter.setPen(QPen(shade(traits.hair), traits.male ? 5 : 3.6, Qt::SolidLine, Qt::RoundCap));
        QPainterPath brow(eye + QPointF(-side * 9, -19 - traits.browLift));
        brow.quadTo(eye + QPointF(side * 4, -25 - traits.browLift), eye + QPointF(side * 15, -17));
        painter.drawPath(brow);
    }
    painter.setPen(Qt::NoPen);
}

void drawCheeks(QPainter& painter, const PortraitTraits& traits)
{
    QColor blush(0xe0, 0x6a, 0x62);
    blush.setAlpha(traits.male ? 26 : 48);
    painter.setBrush(blush);
    for (const int side : {-1, 1})
        painter.drawEllipse(QPointF(150 + side * 35, eyeLine(traits) + 32), 13, 9);
    if (!traits.freckles)
        return;
    painter.setBrush(traits.skin.darker(126));
    for (const int side : {-1, 1}) {
        for (const QPointF& dot : {QPointF(22, 24), QPointF(29, 28), QPointF(36, 24), QPointF(31, 20)})
            painter.drawEllipse(QPointF(150 + side * dot.x(), eyeLine(traits) + dot.y()), 1.4, 1.4);
    }
}

void drawNose(QPainter& painter, const PortraitTraits& traits)
{
    const qreal y = eyeLine(traits);
    QPainterPath nose(QPointF(151, y + 12));
    nose.cubicTo(156, y + 24, 161, y + 34, 156, y + 37);
    nose.quadTo(150, y + 40, 144, y + 36);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(skinShade(traits.skin), 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(nose);
    painter.setPen(Qt::NoPen);
}

void drawMouth(QPainter& painter, const PortraitTraits& traits)
{
    const qreal y = traits.head.bottom() - 33;
    if (traits.mouth == 2) { // an open smile
        QPainterPath smile(QPointF(129, y - 2));
        smile.quadTo(150, y + 2, 171, y - 2);
        smile.quadTo(150, y + 27, 129, y - 2);
        painter.setPen(QPen(traits.lips, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(QColor(0xfd, 0xfb, 0xf8));
        painter.drawPath(smile);
    } else {
        QPainterPath smile(QPointF(132, y));
        smile.quadTo(150, y + (traits.mouth == 0 ? 9 : 15), 168, y);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(traits.lips, traits.male ? 4 : 5.5, Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(smile);
    }
    painter.setPen(Qt::NoPen);
}

void drawExtras(QPainter& painter, const PortraitTraits& traits)
{
    const qreal y = eyeLine(traits);
    if (traits.glasses) {
        painter.setBrush(QColor(255, 255, 255, 40));
        painter.setPen(QPen(QColor(0x2b, 0x2f, 0x38), 3.2));
        for (const int side : {-1, 1}) {
            painter.drawRoundedRect(QRectF(150 + side * eyeOffset - 20, y - 10, 40, 31), 12, 12);
            painter.drawLine(QPointF(150 + side * (eyeOffset + 20), y + 1),
                             QPointF(150 + side * traits.head.width() / 2, y - 1));
        }
        painter.drawLine(QPointF(143, y + 2), QPointF(157, y + 2));
        painter.setPen(Qt::NoPen);
    }
    if (traits.earrings) {
        painter.setBrush(QColor(0xe8, 0xc0, 0x5a));
        for (const qreal x : {traits.head.left() - 2, traits.head.right() + 2})
            painter.drawEllipse(QPointF(x, y + 32), 4.5, 4.5);
    }
}

} // namespace

void drawFace(QPainter& painter, const PortraitTraits& traits)
{
    drawHead(painter, traits);
    drawCheeks(painter, traits);
    drawEyes(painter, traits);
    drawNose(painter, traits);
    drawMouth(painter, traits);
    drawExtras(painter, traits);
}

void drawBeard(QPainter& painter, const PortraitTraits& traits)
{
    if (traits.beard == 0)
        return;
    const QRectF& head = traits.head;
    const qreal mouth = head.bottom() - 33;
    QPainterPath moustache(QPointF(150, mouth - 12));
    moustache.cubicTo(162, mouth - 16, 172, mouth - 8, 176, mouth + 1);
    moustache.quadTo(160, mouth - 2, 150, mouth - 4);
    moustache.quadTo(140, mouth - 2, 124, mouth + 1);
    moustache.cubicTo(128, mouth - 8, 138, mouth - 16, 150, mouth - 12);
    painter.setBrush(shade(traits.hair));
    painter.drawPath(moustache);
    if (traits.beard == 1)
        return;
    const qreal half = traits.beard == 2 ? head.width() / 2 - 1 : 25; // full beard or goatee
    const qreal top = traits.beard == 2 ? mouth - 34 : mouth + 8;
    QPainterPath beard(QPointF(150 - half, top));
    beard.cubicTo(150 - half, head.bottom() - 14, 150 - half * 0.5, head.bottom() + 12, 150,
                  head.bottom() + 12);
    beard.cubicTo(150 + half * 0.5, head.bottom() + 12, 150 + half, head.bottom() - 14, 150 + half, top);
    beard.cubicTo(150 + half * 0.8, mouth + 4, 150 + half * 0.6, mouth + 15, 150, mouth + 16);
    beard.cubicTo(150 - half * 0.6, mouth + 15, 150 - half * 0.8, mouth + 4, 150 - half, top);
    painter.drawPath(beard);
}
