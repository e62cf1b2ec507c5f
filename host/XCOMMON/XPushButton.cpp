#include <XCOMMON/XPushButton.h>

namespace XCOMMON
{

XPushButton::XPushButton(QWidget* parent) : QPushButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAutoDefault(true); // Return presses it outside dialogs too
}

} // namespace XCOMMON
