#include "ScrollAnchor.h"

#include <QScrollBar>
#include <QTreeView>

namespace qarn_base
{

void ScrollAnchor::remember()
{
    if (m_top.isValid() || m_view.verticalScrollBar()->value() == 0)
        return;
    m_top = m_view.indexAt(QPoint(0, 0));
    m_offset = m_view.visualRect(m_top).top();
}

void ScrollAnchor::restore()
{
    if (m_top.isValid()) {
        const int shift = m_view.visualRect(m_top).top() - m_offset; // lays the view out
        QScrollBar* bar = m_view.verticalScrollBar();
        bar->setValue(bar->value() + shift);
    }
    m_top = QPersistentModelIndex();
}

} // namespace qarn_base
