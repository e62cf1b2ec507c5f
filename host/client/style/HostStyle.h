#pragma once

#include <QProxyStyle>

/// Fusion with the host's icons, a focus frame that can be seen on dark ground, and pop-ups of combo boxes
/// that take their look from the style sheet.
class HostStyle : public QProxyStyle
{
    Q_OBJECT
public:
    HostStyle();

    using QProxyStyle::polish;
    void polish(QWidget* widget) override;
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* returnData = nullptr) const override;
};
