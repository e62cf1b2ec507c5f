#pragma once

#include <XCOMMON/Export.h>

#include <QLineEdit>

namespace XCOMMON
{

/// Line edit of the host's look. A tool tip shows a text that is too long for the field.
class XCOMMON_EXPORT XLineEdit : public QLineEdit
{
    Q_OBJECT
public:
    explicit XLineEdit(QWidget* parent = nullptr);

protected:
    bool event(QEvent* event) override;
};

} // namespace XCOMMON
