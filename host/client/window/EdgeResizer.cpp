#include "window/EdgeResizer.h"

#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace
{

constexpr int gripWidth = 5; // pixels; the window keeps this margin free

Qt::CursorShape cursorFor(Qt::Edges edges)
{
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge))
        return Qt::SizeFDiagCursor;
    if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge))
        return Qt::SizeBDiagCursor;
    return edges & (Qt::LeftEdge | Qt::RightEdge) ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

} // namespace

EdgeResizer::EdgeResizer(QWidget* window) : QObject(window), m_window(window)
{
    window->setMouseTracking(true);
    window->installEventFilter(this);
}

Qt::Edges EdgeResizer::edgesAt(const QPoint& position) const
{
    Qt::Edges edges;
    if (m_window->isMaximized() || m_window->isFullScreen())
        return edges;
    edges.setFlag(Qt::LeftEdge, position.x() < gripWidth);
    edges.setFlag(Qt::RightEdge, position.x() >= m_window->width() - gripWidth);
    edges.setFlag(Qt::TopEdge, position.y() < gripWidth);
    edges.setFlag(Qt::BottomEdge, position.y() >= m_window->height() - gripWidth);
    return edges;
}

bool EdgeResizer::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseMove || event->type() == QEvent::MouseButtonPress) {
        auto* mouse = static_cast<QMouseEvent*>(event);
        const Qt::Edges edges = edgesAt(mouse->pos());
        if (!edges)
            m_window->unsetCursor();
        else
            m_window->setCursor(cursorFor(edges));
        if (edges && mouse->button() == Qt::LeftButton && m_window->windowHandle() != nullptr)
            return m_window->windowHandle()->startSystemResize(edges);
    } else if (event->type() == QEvent::Leave) {
        m_window->unsetCursor();
    }
    return QObject::eventFilter(watched, event);
}
