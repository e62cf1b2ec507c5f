#pragma once

#include <QLabel>

namespace qarn_personMgr
{

/// Label of one line for a text of any length: what does not fit ends in an ellipsis and is told whole by
/// the tool tip.
class ElidedLabel : public QLabel
{
    Q_OBJECT
public:
    explicit ElidedLabel(const QString& text, QWidget* parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace qarn_personMgr
