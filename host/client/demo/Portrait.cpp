#include "demo/Portrait.h"

#include "demo/PortraitTraits.h"

#include <QPainter>
#include <QPainterPath>
#include <QRandomGenerator>

namespace
{

constexpr QSizeF canvas(300, 400);

// The person is enlarged from the middle and moved up, so that the face is large in a small frame.
constexpr qreal zoom = 1.2;
constexpr qreal cutAbove = 44;

const QRgb skins[] = {0xfff6d7c3, 0xfff0c8a8, 0xffe3ae86, 0xffd19a6b, 0xffb97a4e,
                      0xff9a6038, 0xff7b4a2a, 0xff5d3820, 0xffe8bd94};
const QRgb hairs[] = {0xff1d1a1c, 0xff2d221e, 0xff4a3224, 0xff6b4426, 0xff8d5a2b,
                      0xffb98a4a, 0xffd9b871, 0xffa4492a, 0xff9a9a9e, 0xffd8d8da};
const QRgb irises[] = {0xff3d2a1e, 0xff573a22, 0xff3f6a8a, 0xff4f7a55, 0xff2e2622};
const QRgb garments[] = {0xff2f5d8a, 0xff8a3f4f, 0xff3f7a64, 0xff5b4b8a, 0xffc28a3a, 0xff37424f,
                         0xffb5573c, 0xff6d7c8f, 0xff274b5c, 0xff7a5a43, 0xffe4e1da, 0xff9c6f9c};
const QRgb backgrounds[] = {0xffcfe3ee, 0xfff1dcc8, 0xffd9e8d2, 0xffe6d9ec,
                            0xfff3e7b8, 0xffd3dae3, 0xfff0d2d2, 0xffcbe7e3};

template <std::size_t count>
QColor pick(QRandomGenerator& random, const QRgb (&colors)[count])
{
    return QColor(colors[random.bounded(static_cast<int>(count))]);
}

bool chance(QRandomGenerator& random, int percent)
{
    return random.bounded(100) < percent;
}

PortraitTraits traitsOf(quint32 seed, PortraitKind kind)
{
    QRandomGenerator random(seed);
    PortraitTraits traits;
    const bool tossed = chance(random, 50);
    traits.male = kind == PortraitKind::Any ? tossed : kind == PortraitKind::Male;
    traits.skin = pick(random, skins);
    traits.hair = pick(random, hairs);
    // Dark skin and straw hair are rare together; the first few hair colours are the dark ones.
    if (traits.skin.lightness() < 130)
        traits.hair = QColor(hairs[random.bounded(3)]);
    traits.iris = pick(random, irises);
    traits.clothes = pick(random, garments);
    traits.background = pick(random, backgrounds);
    traits.lips = traits.male ? traits.skin.darker(140) : QColor(0xb9, 0x4f, 0x58);
    const qreal width = 116 + random.bounded(18);
    const qreal height = 148 + random.bounded(18);
    traits.head = QRectF(canvas.width() / 2 - width / 2, 112, width, height);
    traits.hairStyle = random.bounded(traits.male ? maleHairStyles : femaleHairStyles);
    traits.neckline = random.bounded(3);
    traits.mouth = random.bounded(3);
    traits.beard = traits.male && chance(random, 35) ? 1 + random.bounded(beardStyles) : 0;
    traits.glasses = chance(random, 25);
    traits.earrings = !traits.male && chance(random, 40);
    traits.freckles = traits.skin.lightness() > 180 && chance(random, 20);
    traits.browLift = random.bounded(5);
    traits.eyeSize = 0.9 + random.bounded(25) / 100.0;
    return traits;
}

void drawBackground(QPainter& painter, const PortraitTraits& traits)
{
    painter.fillRect(QRectF(QPointF(0, 0), canvas), traits.background);
    painter.setBrush(traits.background.lighter(107));
    painter.drawEllipse(QPointF(150, 185), 142, 142);
}

void drawNeck(QPainter& painter, const PortraitTraits& traits)
{
    const qreal half = traits.male ? 31 : 25;
    const qreal chin = traits.head.bottom();
    painter.setBrush(skinShade(traits.skin));
    painter.drawRoundedRect(QRectF(150 - half, chin - 40, 2 * half, 90), 18, 18);
}

void drawShoulders(QPainter& painter, const PortraitTraits& traits)
{
    const qreal top = traits.head.bottom() + 26;
    const qreal half = traits.male ? 132 : 114;
    QPainterPath body(QPointF(150 - half, 410));
    body.cubicTo(150 - half, top + 40, 150 - 70, top + 14, 150 - 36, top);
    body.quadTo(150, top + 34, 150 + 36, top);
    body.cubicTo(150 + 70, top + 14, 150 + half, top + 40, 150 + half, 410);
    painter.setBrush(traits.clothes);
    painter.drawPath(body);
}

void drawNeckline(QPainter& painter, const PortraitTraits& traits)
{
    const qreal top = traits.head.bottom() + 26;
    if (traits.neckline == 0) { // round collar
        QPainterPath collar(QPointF(112, top + 1));
        collar.quadTo(150, top + 44, 188, top + 1);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(shade(traits.clothes), 7, Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(collar);
        painter.setPen(Qt::NoPen);
        return;
    }
    if (traits.neckline == 1) { // open neck
        painter.setBrush(skinShade(traits.skin));
        painter.drawPolygon(QPolygonF({{119, top}, {181, top}, {150, top + 62}}));
    }
    const QColor collar = traits.neckline == 1 ? traits.clothes.lighter(118) : QColor(0xf5, 0xf3, 0xee);
    painter.setBrush(collar);
    painter.drawPolygon(QPolygonF({{116, top - 6}, {150, top + 40}, {126, top + 58}, {102, top + 12}}));
    painter.drawPolygon(QPolygonF({{184, top - 6}, {150, top + 40}, {174, top + 58}, {198, top + 12}}));
}

} // namespace

QImage drawPortrait(quint32 seed, const QSize& size, PortraitKind kind)
{
    const PortraitTraits traits = traitsOf(seed, kind);
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size.width() / canvas.width(), size.height() / canvas.height());
    painter.setPen(Qt::NoPen);
    drawBackground(painter, traits);
    painter.translate(canvas.width() / 2, 0);
    painter.scale(zoom, zoom);
    painter.translate(-canvas.width() / 2, -cutAbove);
    drawHairBehind(painter, traits);
    drawNeck(painter, traits);
    drawShoulders(painter, traits);
    drawNeckline(painter, traits);
    drawFace(painter, traits);
    drawBeard(painter, traits);
    drawHairAbove(painter, traits);
    return image;
}
