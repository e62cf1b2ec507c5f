#pragma once

#include <qarn_base/CommonTree.h>
#include <qarn_base/Export.h>

#include <QList>
#include <QPair>
#include <QSet>

namespace qarn_data
{
struct Device;
}

namespace qarn_base
{

/// Tree of the devices that have an ability, their channels below, with check boxes. Its "treeWt" is the
/// tree itself.
class QARN_BASE_EXPORT AbilityDevsTree : public CommonTree
{
    Q_OBJECT
public:
    explicit AbilityDevsTree(QWidget* parent = nullptr);
    ~AbilityDevsTree() override;

    /// Fills the tree with channels that have all bits of `ability` (and, unless 0, of `otherAbility`), and
    /// keeps it in step with the device list. Devices that cannot be reached are shown as offline, or left
    /// out without `showOffline`.
    void buildTree(int ability, int otherAbility, bool showOffline, bool checkable);
    /// Device id and channel number of every checked channel, in the order shown.
    QList<QPair<QString, int>> getCheckedChannels() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void refresh();
    void addDevice(const qarn_data::Device& device, const QSet<QPair<QString, int>>& checked, bool expanded);
    static void showReachability(TreeItem& device, bool offline);

    struct Private;
    std::unique_ptr<Private> p;
};

} // namespace qarn_base
