#pragma once

#include <XCOMMON/XPushButton.h>
#include <qarn_base/Export.h>

#include <QIcon>

namespace qarn_base
{

/// Tool-bar button with an icon and a text.
class QARN_BASE_EXPORT IconButton : public XCOMMON::XPushButton
{
    Q_OBJECT
public:
    explicit IconButton(QWidget* parent = nullptr);

    void setIcons(const QString& normal, const QString& hover); ///< paths of images
    void setText(const QString& text);

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QIcon m_normal;
    QIcon m_hover;
};

} // namespace qarn_base
