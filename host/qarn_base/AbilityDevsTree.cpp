#include <qarn_base/AbilityDevsTree.h>

#include <qarn_base/HostColors.h>
#include <qarn_base/TreeItem.h>
#include <qarn_data/DeviceRegistry.h>

#include <QPainter>
#include <QScrollBar>
#include <QSet>
#include <QSignalBlocker>

namespace qarn_base
{

using qarn_data::Device;
using qarn_data::DeviceChannel;
using qarn_data::DeviceRegistry;

namespace
{

enum ChannelRole { DeviceIdRole = Qt::UserRole + 32, ChannelNumberRole };

using ChannelKey = QPair<QString, int>;

ChannelKey keyOf(const QTreeWidgetItem* channel)
{
    return {channel->data(0, DeviceIdRole).toString(), channel->data(0, ChannelNumberRole).toInt()};
}

QString channelItemId(const QString& deviceId, int number)
{
    return QStringLiteral("%1/%2").arg(deviceId).arg(number);
}

} // namespace

struct AbilityDevsTree::Private {
    int abilities = 0;
    bool showOffline = true;
    bool checkable = false;
    bool built = false;
    QString emptyText;

    TreeItem* makeDevice(const Device& device) const;
    TreeItem* makeChannel(const Device& device, const DeviceChannel& channel, bool checked) const;
};

AbilityDevsTree::AbilityDevsTree(QWidget* parent) : CommonTree(parent), p(std::make_unique<Private>())
{
    setObjectName(QStringLiteral("treeWt"));
    setAccessibleName(tr("Devices"));
    const DeviceRegistry& registry = DeviceRegistry::instance();
    connect(&registry, &DeviceRegistry::signalDevicesChanged, this, &AbilityDevsTree::refresh);
    connect(&registry, &DeviceRegistry::signalReachabilityChanged, this, &AbilityDevsTree::refresh);
}

AbilityDevsTree::~AbilityDevsTree() = default;

void AbilityDevsTree::buildTree(int ability, int otherAbility, bool showOffline, bool checkable)
{
    p->abilities = ability | otherAbility;
    p->showOffline = showOffline;
    p->checkable = checkable;
    p->built = true;
    refresh();
}

QList<QPair<QString, int>> AbilityDevsTree::getCheckedChannels() const
{
    QList<ChannelKey> channels;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const QTreeWidgetItem* device = topLevelItem(i);
        for (int j = 0; j < device->childCount(); ++j) {
            if (device->child(j)->checkState(0) == Qt::Checked)
                channels.append(keyOf(device->child(j)));
        }
    }
    return channels;
}

/// Fills the tree anew and takes over what the operator had done in it.
void AbilityDevsTree::refresh()
{
    if (!p->built)
        return;
    const QList<ChannelKey> checkedList = getCheckedChannels();
    const QSet<ChannelKey> checked(checkedList.begin(), checkedList.end());
    QSet<QString> folded;
    for (int i = 0; i < topLevelItemCount(); ++i) {
        if (!topLevelItem(i)->isExpanded())
            folded.insert(static_cast<TreeItem*>(topLevelItem(i))->getId());
    }
    const TreeItem* selected = getCurSelTreeItem();
    const QString selectedId = selected != nullptr ? selected->getId() : QString();
    const int scrolled = verticalScrollBar()->value();

    clear();
    const QList<Device> devices = DeviceRegistry::instance().devices();
    for (const Device& device : devices)
        addDevice(device, checked, !folded.contains(device.id));
    p->emptyText = devices.isEmpty() ? tr("There is no device yet. Add one on the Devices page.")
                                     : tr("No device offers this function.");
    setAccessibleDescription(topLevelItemCount() == 0 ? p->emptyText : QString());
    setCurSelItem(findTreeItem(selectedId));
    doItemsLayout();
    verticalScrollBar()->setValue(scrolled);
}

void AbilityDevsTree::addDevice(const Device& device, const QSet<ChannelKey>& checked, bool expanded)
{
    const bool offline =
        DeviceRegistry::instance().reachability(device.id) == DeviceRegistry::Reachability::Offline;
    if (offline && !p->showOffline)
        return;
    QList<QTreeWidgetItem*> channels;
    for (const DeviceChannel& channel : device.channels) {
        if ((channel.abilities & p->abilities) == p->abilities)
            channels.append(p->makeChannel(device, channel, checked.contains({device.id, channel.number})));
    }
    if (channels.isEmpty())
        return;
    TreeItem* item = p->makeDevice(device);
    item->addChildren(channels);
    showReachability(*item, offline);
    addTreeItem(item, nullptr);
    item->setExpanded(expanded);
}

void AbilityDevsTree::showReachability(TreeItem& device, bool offline)
{
    const auto image = [offline](const QString& name) {
        const QString suffix = offline ? QStringLiteral("_offline") : QString();
        return QIcon(QStringLiteral(":/images/images/%1%2.png").arg(name, suffix));
    };
    device.setIcon(0, image(QStringLiteral("device")));
    for (int i = 0; i < device.childCount(); ++i)
        device.child(i)->setIcon(0, image(QStringLiteral("channel")));
    if (!offline)
        return;
    device.setName(tr("%1 (offline)").arg(device.getName()));
    device.setForeground(0, colors::FaintText);
    for (int i = 0; i < device.childCount(); ++i)
        device.child(i)->setForeground(0, colors::FaintText);
}

TreeItem* AbilityDevsTree::Private::makeDevice(const Device& device) const
{
    auto* item = new TreeItem(device.id, QString(), device.name.isEmpty() ? device.id : device.name);
    if (checkable)
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
    return item;
}

TreeItem* AbilityDevsTree::Private::makeChannel(const Device& device, const DeviceChannel& channel,
                                                bool checked) const
{
    const QString name = channel.name.isEmpty() ? QString::number(channel.number) : channel.name;
    auto* item = new TreeItem(channelItemId(device.id, channel.number), device.id, name);
    item->setData(0, DeviceIdRole, device.id);
    item->setData(0, ChannelNumberRole, channel.number);
    item->setFlags(item->flags() | Qt::ItemNeverHasChildren);
    if (checkable) {
        item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
        item->setCheckState(0, checked ? Qt::Checked : Qt::Unchecked);
    }
    return item;
}

void AbilityDevsTree::paintEvent(QPaintEvent* event)
{
    CommonTree::paintEvent(event);
    if (!p->built || topLevelItemCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(colors::QuietText);
    painter.drawText(viewport()->rect().adjusted(16, 16, -16, -16), Qt::AlignCenter | Qt::TextWordWrap,
                     p->emptyText);
}

} // namespace qarn_base
