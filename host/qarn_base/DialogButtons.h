#pragma once

#include <QString>

class QWidget;

namespace XCOMMON
{
class XPushButton;
}

namespace qarn_base
{

/// A button at the lower edge of a dialog.
XCOMMON::XPushButton* makeDialogButton(const QString& objectName, const QString& text, QWidget* parent);
/// Makes it the one that Return presses.
void makePrimary(XCOMMON::XPushButton* button);

} // namespace qarn_base
