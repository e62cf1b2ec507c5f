#pragma once

#include <XCOMMON/Export.h>

#include <QWidget>

namespace XCOMMON
{

/// Base of widgets that take clicks as a whole, such as the row of a list. Paints what its style sheet
/// says and keeps mouse releases and double clicks from reaching its parent.
class XCOMMON_EXPORT PEWidget : public QWidget
{
    Q_OBJECT
public:
    explicit PEWidget(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
};

} // namespace XCOMMON
