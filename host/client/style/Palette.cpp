#include "style/Palette.h"

#include <QRegularExpression>

#include <array>

namespace palette
{

namespace
{

struct Entry {
    const char* name;
    QRgb value;
};

// In the order of Name.
constexpr std::array<Entry, ScrollHover + 1> entries = {{
    {"window", 0xff0b121e},       {"panel", 0xff141f30},         {"dialog", 0xff172335},
    {"input", 0xff0e1622},        {"strip", 0xff0f1526},         {"line", 0xff213147},
    {"border", 0xff34496b},       {"hover", 0xff213147},         {"selected", 0xff293a56},
    {"text", 0xffccd3dd},         {"quiet", 0xff9aa5b5},         {"faint", 0xff6c7586},
    {"white", 0xffffffff},        {"accent", 0xff2c7dce},        {"accentFill", 0xff2672c0},
    {"accentHover", 0xff2a78c8},  {"accentPressed", 0xff1d5fa5}, {"button", 0xff22324c},
    {"buttonHover", 0xff2d4264},  {"buttonPressed", 0xff1b2940}, {"link", 0xff5aa5ee},
    {"error", 0xffdc4d4d},        {"errorFill", 0xffb83c3c},     {"errorText", 0xfff07070},
    {"warning", 0xffe5b454},      {"success", 0xff5cc28a},       {"scrollTrack", 0xff172335},
    {"scrollHandle", 0xff2b3c5b}, {"scrollHover", 0xff344d6f},
}};

QString colorName(const QString& name)
{
    for (const Entry& entry : entries) {
        if (name == QLatin1String(entry.name))
            return QColor(entry.value).name();
    }
    qFatal("the style sheet names an unknown colour: %s", qPrintable(name));
}

} // namespace

QColor color(Name name)
{
    return QColor(entries.at(static_cast<std::size_t>(name)).value);
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
