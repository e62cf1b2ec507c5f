#pragma once

#include <qarn_base/Export.h>

#include <QObject>
#include <memory>

namespace XCOMMON
{
class XTreeWidget;
}

namespace qarn_base
{

class SearchBox;

/// Ties a SearchBox to a tree: while something is typed only matches and their ancestors stay and matches
/// are marked; Return goes to the next match; an empty text restores what was expanded. Box and tree
/// belong to the caller and may go first.
class QARN_BASE_EXPORT SearchTreeTools : public QObject
{
    Q_OBJECT
public:
    SearchTreeTools(SearchBox* searchBox, XCOMMON::XTreeWidget* tree, QObject* parent = nullptr);
    ~SearchTreeTools() override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace qarn_base
