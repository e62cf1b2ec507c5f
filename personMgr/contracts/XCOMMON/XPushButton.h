#pragma once

#include <XCOMMON/Export.h>

#include <QPushButton>

namespace XCOMMON
{

/// Push button of the host's look; reached by Tab, pressed by Space and Return.
class XCOMMON_EXPORT XPushButton : public QPushButton
{
    Q_OBJECT
public:
    explicit XPushButton(QWidget* parent = nullptr);
};

} // namespace XCOMMON
