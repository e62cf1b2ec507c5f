#include "style/Palette.h"

#include <qarn_base/HostColors.h>

#include <QRegularExpression>

#include <array>

namespace palette
{

namespace
{

namespace colors = qarn_base::colors;

struct Entry {
    const char* name;
    QColor value;
};

// In the order of Name.
constexpr std::array<Entry, ScrollHover + 1> entries = {{
    {"window", colors::Window},
    {"panel", colors::Panel},
    {"dialog", colors::TitleBar},
    {"input", QColor(0x0e, 0x16, 0x22)},
    {"strip", QColor(0x0f, 0x15, 0x26)},
    {"line", colors::Line},
    {"border", colors::Border},
    {"hover", colors::Hover},
    {"selected", colors::Selected},
    {"text", colors::Text},
    {"quiet", colors::QuietText},
    {"faint", QColor(0x6c, 0x75, 0x86)},
    {"white", QColor(0xff, 0xff, 0xff)},
    {"accent", colors::Accent},
    {"accentFill", QColor(0x26, 0x72, 0xc0)},
    {"accentHover", QColor(0x2a, 0x78, 0xc8)},
    {"accentPressed", QColor(0x1d, 0x5f, 0xa5)},
    {"button", QColor(0x22, 0x32, 0x4c)},
    {"buttonHover", QColor(0x2d, 0x42, 0x64)},
    {"buttonPressed", QColor(0x1b, 0x29, 0x40)},
    {"link", QColor(0x5a, 0xa5, 0xee)},
    {"error", colors::Error},
    {"errorFill", QColor(0xb8, 0x3c, 0x3c)},
    {"errorText", colors::ErrorText},
    {"warning", QColor(0xe5, 0xb4, 0x54)},
    {"success", QColor(0x5c, 0xc2, 0x8a)},
    {"scrollTrack", QColor(0x17, 0x23, 0x35)},
    {"scrollHandle", QColor(0x2b, 0x3c, 0x5b)},
    {"scrollHover", QColor(0x34, 0x4d, 0x6f)},
}};

QString colorName(const QString& name)
{
    for (const Entry& entry : entries) {
        if (name == QLatin1String(entry.name))
            return entry.value.name();
    }
    qFatal("the style sheet names an unknown colour: %s", qPrintable(name));
}

} // namespace

QColor color(Name name)
{
    return entries.at(static_cast<std::size_t>(name)).value;
}

QString resolve(const QString& styleSheet)
{
    static const QRegularExpression mention(QStringLiteral("@([A-Za-z]+)\\b"));
    QString resolved;
    int copied = 0;
    QRegularExpressionMatchIterator mentions = mention.globalMatch(styleSheet);
    while (mentions.hasNext()) {
        const QRegularExpressionMatch match = mentions.next();
        resolved += styleSheet.midRef(copied, match.capturedStart() - copied) + colorName(match.captured(1));
        copied = match.capturedEnd();
    }
    return resolved + styleSheet.midRef(copied);
}

QVector<TextOnGround> readablePairs()
{
    return {
        {Text, Window},      {Text, Panel},         {Text, Dialog},         {Text, Input},
        {Text, Strip},       {Text, Hover},         {Text, Selected},       {Text, Button},
        {Text, ButtonHover}, {Text, ButtonPressed}, {Quiet, Window},        {Quiet, Panel},
        {Quiet, Dialog},     {Quiet, Input},        {Quiet, Hover},         {Quiet, Selected},
        {White, AccentFill}, {White, AccentHover},  {White, AccentPressed}, {White, Selected},
        {White, ErrorFill},  {Link, Window},        {Link, Panel},          {Link, Dialog},
        {ErrorText, Window}, {ErrorText, Dialog},   {ErrorText, Panel},     {ErrorText, Input},
        {Warning, Panel},    {Warning, Dialog},     {Success, Panel},       {Success, Dialog},
    };
}

} // namespace palette
