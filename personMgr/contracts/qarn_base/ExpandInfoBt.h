#pragma once

#include <qarn_base/Export.h>

#include <QPushButton>

namespace qarn_base
{

/// Header of a section that unfolds; folded at first.
class QARN_BASE_EXPORT ExpandInfoBt : public QPushButton
{
    Q_OBJECT
public:
    explicit ExpandInfoBt(QWidget* parent = nullptr);

signals:
    void signalExpand(bool expanded); ///< the operator folded or unfolded

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace qarn_base
