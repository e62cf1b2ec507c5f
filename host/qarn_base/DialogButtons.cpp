#include "DialogButtons.h"

#include <XCOMMON/XPushButton.h>

#include <QVariant>

namespace qarn_base
{

namespace
{
constexpr int LeastWidth = 96; ///< pixels
constexpr int Height = 28;
} // namespace

XCOMMON::XPushButton* makeDialogButton(const QString& objectName, const QString& text, QWidget* parent)
{
    auto* button = new XCOMMON::XPushButton(parent);
    button->setObjectName(objectName);
    button->setText(text);
    button->setMinimumWidth(LeastWidth);
    button->setFixedHeight(Height);
    button->setProperty("common_bt_style2", true);
    return button;
}

void makePrimary(XCOMMON::XPushButton* button)
{
    button->setProperty("common_bt_style2", QVariant());
    button->setProperty("common_bt_style1", true);
    button->setDefault(true);
}

} // namespace qarn_base
