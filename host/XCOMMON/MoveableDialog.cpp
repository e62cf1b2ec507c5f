#include <XCOMMON/MoveableDialog.h>

#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <QStyleOption>
#include <QWindow>

#include <algorithm>

namespace XCOMMON
{

namespace
{

/// A dialog that is larger than the screen would hide its own buttons.
void shrinkToFit(QWidget& dialog, const QSize& room)
{
    dialog.setMinimumSize(dialog.minimumSize().boundedTo(room));
    dialog.resize(dialog.size().boundedTo(room));
}

QPoint placeOf(const QSize& size, const QRect& over, const QRect& screen)
{
    const QPoint centred = over.center() - QPoint(size.width() / 2, size.height() / 2);
    return QPoint(std::max(screen.left(), std::min(centred.x(), screen.right() + 1 - size.width())),
                  std::max(screen.top(), std::min(centred.y(), screen.bottom() + 1 - size.height())));
}

} // namespace

MoveableDialog::MoveableDialog(QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint)
{
}

void MoveableDialog::setMoveAreaHeight(int height)
{
    m_moveAreaHeight = height;
}

bool MoveableDialog::event(QEvent* event)
{
    // The release may go to another window that opens meanwhile.
    if (event->type() == QEvent::WindowDeactivate || event->type() == QEvent::Hide)
        m_moving = false;
    return QDialog::event(event);
}

void MoveableDialog::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || event->pos().y() >= m_moveAreaHeight || isMaximized()) {
        QDialog::mousePressEvent(event);
        return;
    }
    event->accept();
    // A Wayland compositor does not let a window place itself.
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland")) &&
        windowHandle()->startSystemMove())
        return;
    m_moving = true;
    m_grip = event->globalPos() - pos();
}

void MoveableDialog::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_moving || !(event->buttons() & Qt::LeftButton)) {
        QDialog::mouseMoveEvent(event);
        return;
    }
    move(event->globalPos() - m_grip);
    event->accept();
}

void MoveableDialog::mouseReleaseEvent(QMouseEvent* event)
{
    m_moving = false;
    QDialog::mouseReleaseEvent(event);
}

void MoveableDialog::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

void MoveableDialog::showEvent(QShowEvent* event)
{
    if (!m_placed) {
        m_placed = true;
        const QWidget* over = parentWidget() != nullptr ? parentWidget()->window() : nullptr;
        const QRect available = (over != nullptr ? over->screen() : screen())->availableGeometry();
        shrinkToFit(*this, available.size());
        move(placeOf(size(), over != nullptr ? over->geometry() : available, available));
    }
    QDialog::showEvent(event);
}

} // namespace XCOMMON
