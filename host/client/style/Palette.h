#pragma once

#include <QColor>
#include <QString>
#include <QVector>

/// The host's colours, each named once. In the style sheets a name stands as @name.
namespace palette
{

enum Name {
    Window,
    Panel,
    Dialog,
    Input,
    Strip,
    Line,
    Border,
    Hover,
    Selected,
    Text,
    Quiet,
    Faint,
    White,
    Accent,
    AccentFill,
    AccentHover,
    AccentPressed,
    Button,
    ButtonHover,
    ButtonPressed,
    Link,
    Error,
    ErrorFill,
    ErrorText,
    Warning,
    Success,
    ScrollTrack,
    ScrollHandle,
    ScrollHover,
};

QColor color(Name name);
/// The style sheet with every @name replaced by its colour. An unknown name is a mistake of ours and stops
/// the program.
QString resolve(const QString& styleSheet);

/// A text colour and the ground that it stands on somewhere in the style sheets.
struct TextOnGround {
    Name text;
    Name ground;
};
/// All pairs that must be readable; disabled texts are not among them.
QVector<TextOnGround> readablePairs();

} // namespace palette
