#pragma once

#include <XCOMMON/XTableWidget.h>
#include <qarn_base/Export.h>

namespace qarn_base
{

/// Table of the host's look whose rows follow the mouse while mouse tracking is on.
class QARN_BASE_EXPORT TableWidget : public XCOMMON::XTableWidget
{
    Q_OBJECT
public:
    explicit TableWidget(QWidget* parent = nullptr);

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void setHoveredRow(int row); ///< -1: none
    void styleRow(int row, bool hovered);

    int m_hoveredRow = -1;
};

} // namespace qarn_base
