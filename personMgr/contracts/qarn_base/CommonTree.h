#pragma once

#include <XCOMMON/XTreeWidget.h>
#include <qarn_base/Export.h>

#include <QStringList>
#include <memory>

namespace qarn_base
{

class TreeItem;
class TreeItemOperWt;
struct TreeConfig;

/// Tree of items that carry ids. An item's edit and delete buttons appear while the mouse is over it or it
/// is selected.
class QARN_BASE_EXPORT CommonTree : public XCOMMON::XTreeWidget
{
    Q_OBJECT
public:
    explicit CommonTree(QWidget* parent = nullptr, TreeConfig* config = nullptr); ///< config is only read
    ~CommonTree() override;

    TreeItem* getCurSelTreeItem() const; ///< null: nothing is selected
    /// Ids of all items below `item`, parents before children; with `includeSelf` its own first; with
    /// `checkedOnly` only those whose box is checked.
    QStringList getChildItemIdsRecursively(TreeItem* item, bool includeSelf, bool checkedOnly) const;
    TreeItem* findTreeItem(const QString& id) const; ///< null when unknown

    /// Adds an item at the end of `parent`, or at the top level for null. The tree owns the item.
    void addTreeItem(TreeItem* item, TreeItem* parent);
    /// Removes the item and all below it.
    void removeTreeItem(TreeItem* item);
    /// Moves the item with all below it; what is expanded and selected stays so.
    void moveTreeItem(TreeItem* item, TreeItem* parent, int position);

protected:
    /// The buttons to show on an item; null shows none. Called when they are first needed; the tree owns
    /// the result.
    virtual TreeItemOperWt* createTreeItemOperWt(TreeItem* item);

    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override; ///< F2 edits, Delete deletes the selected item

private:
    void noteInserted(const QModelIndex& parent, int first, int last);
    void forgetRemoved(const QModelIndex& parent, int first, int last);
    void setHovered(const QModelIndex& index);
    void updateButtons();

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace qarn_base
