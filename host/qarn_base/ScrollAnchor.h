#pragma once

#include <QPersistentModelIndex>

class QTreeView;

namespace qarn_base
{

/// Keeps what the operator looks at in its place while rows come and go above it.
class ScrollAnchor
{
public:
    explicit ScrollAnchor(QTreeView& view) : m_view(view) {}

    void remember(); ///< before a change; further calls until restore() change nothing
    void restore();  ///< after one or several changes

private:
    QTreeView& m_view;
    QPersistentModelIndex m_top; ///< invalid: the tree shows its beginning, or the row has gone
    int m_offset = 0;            ///< pixels from the upper edge
};

} // namespace qarn_base
