#pragma once

#include <XCOMMON/Export.h>

#include <QColor>
#include <QWidget>

namespace XCOMMON
{

/// Plain panel that paints its background colour, with or without a style sheet.
class XCOMMON_EXPORT XWidget : public QWidget
{
    Q_OBJECT
public:
    explicit XWidget(QWidget* parent = nullptr);

    void setBackgroundColor(const QColor& color); ///< an invalid colour paints nothing

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_backgroundColor;
};

} // namespace XCOMMON
