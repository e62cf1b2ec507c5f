#include "devices/DevicesModel.h"

#include <dvx_client_sdk/ResponseCodes.h>

#include <QPainter>
#include <QPixmap>

#include <algorithm>

using qarn_data::Device;
using qarn_data::DeviceRegistry;
using Reachability = DeviceRegistry::Reachability;

namespace
{

constexpr int DotSize = 10;

QIcon dot(QRgb color)
{
    QPixmap pixmap(DotSize, DotSize);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(color));
    painter.drawEllipse(1, 1, DotSize - 2, DotSize - 2);
    painter.end();
    QIcon icon(pixmap);
    icon.addPixmap(pixmap, QIcon::Selected); // or it would be tinted
    return icon;
}

} // namespace

DevicesModel::DevicesModel(QObject* parent) : QAbstractTableModel(parent)
{
    const DeviceRegistry* registry = &DeviceRegistry::instance();
    connect(registry, &DeviceRegistry::signalDevicesChanged, this, &DevicesModel::reload);
    connect(registry, &DeviceRegistry::signalReachabilityChanged, this, &DevicesModel::updateState);
    reload();
}

Device DevicesModel::device(int row) const
{
    return m_devices.value(row);
}

int DevicesModel::rowOf(const QString& id) const
{
    const auto found = std::find_if(m_devices.cbegin(), m_devices.cend(),
                                    [&id](const Device& device) { return device.id == id; });
    return found == m_devices.cend() ? -1 : static_cast<int>(found - m_devices.cbegin());
}

void DevicesModel::setAnswer(const QString& id, int code)
{
    m_answers.insert(id, code);
    updateState(id);
}

void DevicesModel::reload()
{
    beginResetModel();
    m_devices = DeviceRegistry::instance().devices();
    endResetModel();
}

void DevicesModel::updateState(const QString& id)
{
    const int row = rowOf(id);
    if (row >= 0)
        emit dataChanged(index(row, StateColumn), index(row, StateColumn));
}

int DevicesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_devices.count();
}

int DevicesModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(ColumnCount);
}

QVariant DevicesModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Device& device = m_devices.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return text(device, index.column());
    case Qt::ToolTipRole:
        return index.column() == StateColumn && m_answers.contains(device.id)
                   ? dvx_sdk::responseText(m_answers.value(device.id))
                   : text(device, index.column()).toHtmlEscaped();
    case Qt::DecorationRole:
        return index.column() == StateColumn ? stateIcon(device.id) : QVariant();
    case DeviceIdRole:
        return device.id;
    default:
        return {};
    }
}

QString DevicesModel::text(const Device& device, int column) const
{
    switch (column) {
    case NameColumn:
        return device.name;
    case AddressColumn:
        return device.address.toString();
    case ChannelsColumn:
        return QString::number(device.channels.count());
    default:
        return stateText(device.id);
    }
}

QIcon DevicesModel::stateIcon(const QString& id) const
{
    static const QIcon good = dot(0xff46b37b);
    static const QIcon refused = dot(0xffd9a441);
    static const QIcon offline = dot(0xffdc4d4d);
    static const QIcon unknown = dot(0xff6c7586);
    const int answer = m_answers.value(id, dvx_sdk::Success);
    if (answer > dvx_sdk::Success || answer == dvx_sdk::Untrusted || answer == dvx_sdk::BadAnswer)
        return refused; // something is there, but it does not do what it should
    switch (DeviceRegistry::instance().reachability(id)) {
    case Reachability::Online:
        return good;
    case Reachability::Offline:
        return offline;
    case Reachability::Unknown:
        break;
    }
    return unknown;
}

QString DevicesModel::stateText(const QString& id) const
{
    const int answer = m_answers.value(id, dvx_sdk::Success);
    if (answer == dvx_sdk::Untrusted)
        return tr("Certificate not trusted");
    constexpr int UnauthorizedStatus = 401;
    if (answer == UnauthorizedStatus)
        return tr("Token refused");
    if (answer > dvx_sdk::Success || answer == dvx_sdk::BadAnswer)
        return tr("Not a face device");
    switch (DeviceRegistry::instance().reachability(id)) {
    case Reachability::Online:
        return tr("Online");
    case Reachability::Offline:
        return tr("Offline");
    case Reachability::Unknown:
        break;
    }
    return tr("Not tested yet");
}

QVariant DevicesModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case NameColumn:
        return tr("Name");
    case AddressColumn:
        return tr("Address");
    case ChannelsColumn:
        return tr("Channels");
    case StateColumn:
        return tr("State");
    default:
        return {};
    }
}

Qt::ItemFlags DevicesModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return index.isValid() && index.column() == NameColumn ? flags | Qt::ItemIsEditable : flags;
}

bool DevicesModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !index.isValid() || index.column() != NameColumn)
        return false;
    Device device = m_devices.at(index.row());
    const QString name = value.toString().trimmed();
    if (name.isEmpty() || name == device.name)
        return false;
    device.name = name;
    return DeviceRegistry::instance().saveDevice(device); // which reloads
}
