#include <XCOMMON/XMenu.h>

namespace XCOMMON
{

XMenu::XMenu(QWidget* parent) : QMenu(parent)
{
    setToolTipsVisible(true);
}

} // namespace XCOMMON
