#pragma once

#include <XCOMMON/Export.h>

#include <QMenu>

namespace XCOMMON
{

/// Pop-up menu of the host's look.
class XCOMMON_EXPORT XMenu : public QMenu
{
    Q_OBJECT
public:
    explicit XMenu(QWidget* parent = nullptr);
};

} // namespace XCOMMON
