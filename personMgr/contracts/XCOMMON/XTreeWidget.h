#pragma once

#include <XCOMMON/Export.h>

#include <QTreeWidget>

namespace XCOMMON
{

/// Tree with at most one selected item. Reports a change of the selection with the new and the old item.
/// When the selected item is removed, nothing is selected. Space checks and unchecks the current item.
class XCOMMON_EXPORT XTreeWidget : public QTreeWidget
{
    Q_OBJECT
public:
    explicit XTreeWidget(QWidget* parent = nullptr);

    QTreeWidgetItem* getCurSelItem() const; ///< null: nothing is selected
    /// Null clears the selection and the current item, and is reported like any other change.
    void setCurSelItem(QTreeWidgetItem* item);
    /// Expands all ancestors of the item, so that it can be seen.
    void expandItemToRootItem(QTreeWidgetItem* item);

signals:
    /// `previous` is null when nothing was selected or the item is gone.
    void signalCurSelItemChanged(QTreeWidgetItem* current, QTreeWidgetItem* previous);

protected:
    void startDrag(Qt::DropActions supportedActions) override;
    void keyPressEvent(QKeyEvent* event) override;
    void rowsAboutToBeRemoved(const QModelIndex& parent, int start, int end) override;

private:
    void reportSelection();
    void reportRemoval();

    QTreeWidgetItem* m_reportedItem = nullptr; ///< never an item that is gone
    bool m_removingReported = false;
};

} // namespace XCOMMON
