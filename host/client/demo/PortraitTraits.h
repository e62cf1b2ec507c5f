#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

/// What makes one portrait differ from the next. Lengths are units of a canvas of 300 by 400.
struct PortraitTraits {
    QColor skin;
    QColor hair;
    QColor iris;
    QColor lips;
    QColor clothes;
    QColor background;
    QRectF head;
    int hairStyle = 0; ///< index into the styles of the kind
    int neckline = 0;
    int mouth = 0;
    int beard = 0; ///< 0: none
    bool male = true;
    bool glasses = false;
    bool earrings = false;
    bool freckles = false;
    qreal browLift = 0;
    qreal eyeSize = 1;
};

/// Outlines are the fill made darker, so that every colour keeps its hue.
inline QColor shade(const QColor& color)
{
    return color.darker(122);
}

/// Skin in shadow is warmer, not greyer.
inline QColor skinShade(const QColor& skin)
{
    return QColor::fromHsv(skin.hsvHue(), qMin(255, skin.hsvSaturation() + 32), skin.value() * 88 / 100);
}

constexpr int maleHairStyles = 6;
constexpr int femaleHairStyles = 6;
constexpr int beardStyles = 3;

void drawHairBehind(QPainter& painter, const PortraitTraits& traits);
void drawHairAbove(QPainter& painter, const PortraitTraits& traits);
void drawBeard(QPainter& painter, const PortraitTraits& traits);
void drawFace(QPainter& painter, const PortraitTraits& traits);
