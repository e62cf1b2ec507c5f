#include "devices/DevicesPage.h"

#include "devices/CertificateDlg.h"
#include "devices/DeviceDlg.h"
#include "devices/DeviceTests.h"
#include "devices/DevicesModel.h"

#include <dvx_client_sdk/DeviceProbe.h>
#include <dvx_client_sdk/ResponseCodes.h>
#include <qarn_base/XMessageBox.h>

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

using qarn_base::XMessageBox;
using qarn_data::Device;
using qarn_data::DeviceRegistry;

namespace
{

constexpr int Margin = 16;
constexpr int ButtonHeight = 28;
constexpr int RowHeight = 40;
constexpr int LookIntervalMs = 30000;

} // namespace

DevicesPage::DevicesPage(QWidget* parent)
    : BaseForm(parent),
      m_model(new DevicesModel(this)),
      m_tests(new DeviceTests(this))
{
    setObjectName(QStringLiteral("DevicesPage"));
    m_lookTimer.setInterval(LookIntervalMs);
    buildPage();
    connectAll();
    updateButtons();
}

void DevicesPage::buildPage()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(12);
    auto* bar = new QHBoxLayout;
    bar->setSpacing(8);
    m_addBt = addButton(bar, tr("Add device"), "addDeviceBt");
    m_addBt->setProperty("common_bt_style1", true);
    m_testBt = addButton(bar, tr("Test connection"), "testDeviceBt");
    m_renameBt = addButton(bar, tr("Rename"), "renameDeviceBt");
    m_editBt = addButton(bar, tr("Edit"), "editDeviceBt");
    m_removeBt = addButton(bar, tr("Remove"), "removeDeviceBt");
    bar->addStretch();
    layout->addLayout(bar);

    buildTable();
    m_stack = new QStackedWidget;
    m_stack->addWidget(m_table);
    m_stack->addWidget(buildEmptyState());
    layout->addWidget(m_stack, 1);

    m_status = new QLabel;
    m_status->setObjectName(QStringLiteral("status"));
    m_status->setTextFormat(Qt::PlainText);
    m_status->setWordWrap(true);
    m_status->setMinimumHeight(ButtonHeight);
    layout->addWidget(m_status);
}

QWidget* DevicesPage::buildEmptyState()
{
    auto* text =
        new QLabel(tr("No devices yet.\n\nPress \"Add device\" and enter the address of a face-recognition "
                      "device.\nIts channels can then receive the faces of the register."));
    text->setObjectName(QStringLiteral("emptyState"));
    text->setAlignment(Qt::AlignCenter);
    text->setWordWrap(true);
    return text;
}

void DevicesPage::buildTable()
{
    m_table = new QTableView;
    m_table->setObjectName(QStringLiteral("devicesTable"));
    m_table->setAccessibleName(tr("Devices"));
    m_table->setModel(m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::EditKeyPressed);
    m_table->setTabKeyNavigation(false); // Tab leaves the table
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->setProperty("common_scrollBar_style3", true);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setDefaultSectionSize(RowHeight);
    QHeaderView* header = m_table->horizontalHeader();
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setSectionResizeMode(QHeaderView::Stretch);
    header->setSectionResizeMode(DevicesModel::ChannelsColumn, QHeaderView::ResizeToContents);
}

QPushButton* DevicesPage::addButton(QBoxLayout* bar, const QString& text, const char* name)
{
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    button->setMinimumSize(qMax(96, button->sizeHint().width() + 24), ButtonHeight);
    button->setProperty("common_bt_style2", true);
    bar->addWidget(button);
    return button;
}

void DevicesPage::connectAll()
{
    connect(m_addBt, &QPushButton::clicked, this, &DevicesPage::slotAdd);
    connect(m_editBt, &QPushButton::clicked, this, &DevicesPage::slotEdit);
    connect(m_renameBt, &QPushButton::clicked, this, &DevicesPage::slotRename);
    connect(m_testBt, &QPushButton::clicked, this, &DevicesPage::slotTest);
    connect(m_removeBt, &QPushButton::clicked, this, &DevicesPage::slotRemove);
    connect(m_table, &QTableView::doubleClicked, this, &DevicesPage::slotEdit);
    connect(m_tests, &DeviceTests::signalTested, this, &DevicesPage::slotTested);
    connect(&m_lookTimer, &QTimer::timeout, m_tests, &DeviceTests::testAll);
    connect(m_model, &DevicesModel::modelAboutToBeReset, this, [this] { m_selected = selectedDevice().id; });
    connect(m_model, &DevicesModel::modelReset, this, [this] { select(m_selected); });
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &DevicesPage::updateButtons);
}

void DevicesPage::showEvent(QShowEvent* event)
{
    BaseForm::showEvent(event);
    m_tests->testAll();
    m_lookTimer.start();
}

void DevicesPage::hideEvent(QHideEvent* event)
{
    BaseForm::hideEvent(event);
    m_lookTimer.stop();
}

Device DevicesPage::selectedDevice() const
{
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    return rows.isEmpty() ? Device() : m_model->device(rows.first().row());
}

void DevicesPage::select(const QString& deviceId)
{
    const int row = m_model->rowOf(deviceId);
    if (row >= 0)
        m_table->setCurrentIndex(m_model->index(row, DevicesModel::NameColumn));
    updateButtons();
}

void DevicesPage::updateButtons()
{
    const bool selected = !selectedDevice().id.isEmpty();
    for (QPushButton* button : {m_editBt, m_renameBt, m_testBt, m_removeBt})
        button->setEnabled(selected);
    m_stack->setCurrentIndex(m_model->rowCount() > 0 ? 0 : 1);
}

void DevicesPage::slotAdd()
{
    DeviceDlg dialog(Device(), window());
    if (dialog.exec() == QDialog::Accepted)
        select(dialog.deviceId());
}

void DevicesPage::slotEdit()
{
    const Device device = selectedDevice();
    if (device.id.isEmpty())
        return;
    DeviceDlg dialog(device, window());
    dialog.exec();
}

void DevicesPage::slotRename()
{
    const QModelIndexList rows = m_table->selectionModel()->selectedRows(DevicesModel::NameColumn);
    if (rows.isEmpty())
        return;
    m_table->setFocus();
    m_table->edit(rows.first());
}

void DevicesPage::slotTest()
{
    const Device device = selectedDevice();
    m_askedFor.insert(device.id);
    m_status->setText(tr("Testing %1...").arg(device.name));
    m_tests->test(device);
}

void DevicesPage::slotRemove()
{
    const Device device = selectedDevice();
    constexpr quint16 OkAndCancel = XMessageBox::Ok | XMessageBox::Cancel;
    const QString question =
        tr("Remove the device \"%1\"? The faces that it holds stay on it.").arg(device.name);
    if (XMessageBox::question(window(), question, OkAndCancel, false) == XMessageBox::Ok)
        DeviceRegistry::instance().removeDevice(device.id);
}

void DevicesPage::slotTested(const QString& deviceId, const dvx_sdk::ProbeResult& result)
{
    m_model->setAnswer(deviceId, result.code);
    if (!m_askedFor.remove(deviceId))
        return;
    const bool canTrust = result.code == dvx_sdk::Untrusted && !result.certificate.fingerprint.isEmpty();
    if (canTrust && askTrust(deviceId, result.certificate)) {
        m_askedFor.insert(deviceId);
        m_tests->test(DeviceRegistry::instance().device(deviceId));
        return;
    }
    tellResult(deviceId, result);
}

/// True when the certificate is trusted from now on.
bool DevicesPage::askTrust(const QString& deviceId, const dvx_sdk::CertificateInfo& certificate)
{
    CertificateDlg question(DeviceRegistry::instance().device(deviceId).name, certificate, window());
    if (question.exec() != QDialog::Accepted)
        return false;
    Device device = DeviceRegistry::instance().device(deviceId);
    device.pinnedCertificate = certificate.fingerprint;
    return !device.id.isEmpty() && DeviceRegistry::instance().saveDevice(device);
}

void DevicesPage::tellResult(const QString& deviceId, const dvx_sdk::ProbeResult& result)
{
    Device device = DeviceRegistry::instance().device(deviceId);
    if (device.id.isEmpty())
        return; // removed meanwhile
    if (result.code != dvx_sdk::Success)
        return m_status->setText(tr("%1: %2").arg(device.name, dvx_sdk::responseText(result.code)));
    device.channels = result.channels; // the device may have got more, or fewer
    DeviceRegistry::instance().saveDevice(device);
    m_status->setText(tr("%1 answered within %2 ms and has %3 channel(s).")
                          .arg(device.name)
                          .arg(result.milliseconds)
                          .arg(result.channels.count()));
}
