#include "style/DarkStyle.h"

#include "style/HostStyle.h"
#include "style/Palette.h"

#include <QApplication>
#include <QFile>
#include <QFont>
#include <QPalette>
#include <QToolTip>

namespace
{

constexpr int fontPixels = 12; // the forms' fixed sizes are made for it

/// The narrow cut first: the longest words on the fixed buttons need it.
const QStringList fontFamilies = {QStringLiteral("Noto Sans Display"), QStringLiteral("Noto Sans"),
                                  QStringLiteral("WenQuanYi Micro Hei"), QStringLiteral("Noto Sans CJK SC"),
                                  QStringLiteral("DejaVu Sans")};

QFont hostFont()
{
    QFont font;
    font.setFamilies(fontFamilies);
    font.setPixelSize(fontPixels);
    return font;
}

QPalette hostPalette()
{
    using namespace palette;
    QPalette result;
    const QColor text = color(Text);
    const QColor faint = color(Faint);
    result.setColor(QPalette::Window, color(Window));
    result.setColor(QPalette::Base, color(Input));
    result.setColor(QPalette::AlternateBase, color(Panel));
    result.setColor(QPalette::Button, color(Button));
    result.setColor(QPalette::ToolTipBase, color(Selected));
    result.setColor(QPalette::ToolTipText, text);
    result.setColor(QPalette::Light, color(Selected));
    result.setColor(QPalette::Midlight, color(Line));
    result.setColor(QPalette::Mid, color(Line));
    result.setColor(QPalette::Dark, color(Strip));
    result.setColor(QPalette::Shadow, color(Strip));
    result.setColor(QPalette::Highlight, color(AccentFill));
    result.setColor(QPalette::HighlightedText, color(White));
    result.setColor(QPalette::Link, color(Link));
    result.setColor(QPalette::LinkVisited, color(Link));
    result.setColor(QPalette::PlaceholderText, color(Quiet));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        result.setColor(role, text);
        result.setColor(QPalette::Disabled, role, faint);
    }
    result.setColor(QPalette::BrightText, color(White));
    result.setColor(QPalette::Disabled, QPalette::Highlight, color(Line));
    result.setColor(QPalette::Disabled, QPalette::HighlightedText, faint);
    return result;
}

QString hostStyleSheet()
{
    QString sheet;
    for (const char* part : {"windows", "buttons", "fields", "views", "calendar", "client"}) {
        QFile file(QStringLiteral(":/style/qss/%1.qss").arg(QLatin1String(part)));
        if (!file.open(QIODevice::ReadOnly))
            qFatal("%s is not in the program", qPrintable(file.fileName()));
        sheet += QString::fromUtf8(file.readAll());
    }
    return palette::resolve(sheet);
}

} // namespace

void applyDarkStyle(QApplication& application)
{
    Q_INIT_RESOURCE(client_style);
    QApplication::setStyle(new HostStyle); // the application owns it
    QApplication::setPalette(hostPalette());
    QApplication::setFont(hostFont());
    QToolTip::setPalette(hostPalette());
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    application.setStyleSheet(hostStyleSheet());
}
