#pragma once

#include <XCOMMON/Export.h>

#include <QDialog>
#include <QPoint>

namespace XCOMMON
{

/// Frameless dialog that the operator moves by its upper edge.
class XCOMMON_EXPORT MoveableDialog : public QDialog
{
    Q_OBJECT
public:
    explicit MoveableDialog(QWidget* parent = nullptr);

protected:
    /// Height in pixels of the upper edge by which the dialog is moved.
    void setMoveAreaHeight(int height);

    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override; ///< centred on the parent, inside the screen

private:
    int m_moveAreaHeight = 35;
    bool m_moving = false;
    bool m_placed = false;
    QPoint m_grip;
};

} // namespace XCOMMON
