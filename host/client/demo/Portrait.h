#pragma once

#include <QImage>
#include <QSize>

/// How a portrait wears its hair and beard.
enum class PortraitKind { Any, Male, Female };

/// A flat, friendly drawing of an invented person, the same for the same arguments. Skin, hair, face,
/// clothes and background come from the seed. Any thread; needs no application object.
QImage drawPortrait(quint32 seed, const QSize& size, PortraitKind kind = PortraitKind::Any);
