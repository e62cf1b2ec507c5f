#include <qarn_base/IconButton.h>

namespace qarn_base
{

namespace
{
constexpr int IconSize = 16; ///< pixels, width and height
}

IconButton::IconButton(QWidget* parent) : XCOMMON::XPushButton(parent)
{
    setIconSize(QSize(IconSize, IconSize));
}

void IconButton::setIcons(const QString& normal, const QString& hover)
{
    m_normal = QIcon(normal);
    m_hover = hover == normal ? m_normal : QIcon(hover);
    setIcon(underMouse() ? m_hover : m_normal);
}

void IconButton::setText(const QString& text)
{
    XCOMMON::XPushButton::setText(text);
    setAccessibleName(text);
}

void IconButton::enterEvent(QEvent* event)
{
    setIcon(m_hover);
    XCOMMON::XPushButton::enterEvent(event);
}

void IconButton::leaveEvent(QEvent* event)
{
    setIcon(m_normal);
    XCOMMON::XPushButton::leaveEvent(event);
}

} // namespace qarn_base
