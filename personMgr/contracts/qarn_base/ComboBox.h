#pragma once

#include <qarn_base/Export.h>

#include <QComboBox>

namespace qarn_base
{

/// Combo box of the host's look. The mouse wheel changes it only while it has the focus.
class QARN_BASE_EXPORT ComboBox : public QComboBox
{
    Q_OBJECT
public:
    explicit ComboBox(QWidget* parent = nullptr);

protected:
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace qarn_base
