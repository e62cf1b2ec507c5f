#pragma once

#include <qarn_data/DeviceRegistry.h>

#include <QAbstractTableModel>
#include <QHash>
#include <QIcon>
#include <QList>

/// The devices of the store as a table, kept in step with the registry. A name can be edited in place.
class DevicesModel : public QAbstractTableModel
{
    Q_OBJECT
public:
    enum Column { NameColumn, AddressColumn, ChannelsColumn, StateColumn, ColumnCount };
    enum Role { DeviceIdRole = Qt::UserRole };

    explicit DevicesModel(QObject* parent = nullptr);

    qarn_data::Device device(int row) const;
    int rowOf(const QString& id) const; ///< -1 when there is no such device
    /// How the device last answered; see dvx_sdk::responseText().
    void setAnswer(const QString& id, int code);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

private:
    void reload();
    void updateState(const QString& id);
    QString text(const qarn_data::Device& device, int column) const;
    QString stateText(const QString& id) const;
    QIcon stateIcon(const QString& id) const;

    QList<qarn_data::Device> m_devices;
    QHash<QString, int> m_answers;
};
