#pragma once

#include <qarn_base/Export.h>

#include <QWidget>

namespace qarn_base
{

/// Base of the small button groups in tables and trees; follows the state of its row.
class QARN_BASE_EXPORT TableOperWt : public QWidget
{
    Q_OBJECT
public:
    enum WidgetStyle { NormalStyle, HoverStyle, SelectedStyle };

    explicit TableOperWt(QWidget* parent = nullptr);

    virtual void setWtStyle(WidgetStyle style);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    WidgetStyle m_style = NormalStyle;
};

} // namespace qarn_base
