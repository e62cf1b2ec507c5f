#include "devices/DeviceDlg.h"

#include "devices/AddressRules.h"
#include "devices/CertificateDlg.h"

#include <XCOMMON/XLineEdit.h>
#include <dvx_client_sdk/DeviceProbe.h>
#include <dvx_client_sdk/ResponseCodes.h>

#include <QLabel>
#include <QPushButton>
#include <QUuid>
#include <QVBoxLayout>

using qarn_data::Device;
using qarn_data::DeviceRegistry;

namespace
{

constexpr int DialogWidth = 440;
constexpr int Margin = 24;
constexpr int FieldHeight = 28;
constexpr int NameLength = 64;
constexpr int AddressLength = 500;
constexpr int TokenLength = 4000;

} // namespace

DeviceDlg::DeviceDlg(const Device& device, QWidget* parent)
    : CommonDialog(parent),
      m_device(device),
      m_probe(new dvx_sdk::DeviceProbe(this))
{
    setObjectName(QStringLiteral("DeviceDlg"));
    setTitle(device.id.isEmpty() ? tr("Add device") : tr("Edit device"));
    setFixedWidth(DialogWidth);
    buildForm();
    m_addressEt->setText(device.address.toString());
    m_tokenEt->setText(device.token);
    m_nameEt->setText(device.name);
    connect(m_okBt, &QPushButton::clicked, this, &DeviceDlg::slotConfirm);
    connect(m_probe, &dvx_sdk::DeviceProbe::signalFinished, this, &DeviceDlg::slotProbed);
}

void DeviceDlg::buildForm()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, TitleBarHeight + Margin, Margin, Margin);
    layout->setSpacing(6);
    m_addressEt = addField(layout, tr("Address"), "addressEt");
    m_addressEt->setPlaceholderText(tr("192.168.1.20 or https://gate.local:8443"));
    m_addressEt->setMaxLength(AddressLength);
    m_tokenEt = addField(layout, tr("Token"), "tokenEt");
    m_tokenEt->setEchoMode(QLineEdit::Password);
    m_tokenEt->setPlaceholderText(tr("As set on the device; empty for none"));
    m_tokenEt->setMaxLength(TokenLength);
    m_nameEt = addField(layout, tr("Name"), "nameEt");
    m_nameEt->setPlaceholderText(tr("Empty: the name that the device gives itself"));
    m_nameEt->setMaxLength(NameLength);

    m_problem = new QLabel;
    m_problem->setObjectName(QStringLiteral("problem"));
    m_problem->setTextFormat(Qt::PlainText);
    m_problem->setWordWrap(true);
    m_problem->setMinimumHeight(2 * FieldHeight);
    m_problem->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    layout->addWidget(m_problem);

    m_okBt = new QPushButton(m_device.id.isEmpty() ? tr("Add") : tr("Save"));
    m_okBt->setObjectName(QStringLiteral("okBt"));
    m_okBt->setProperty("common_bt_style1", true);
    m_okBt->setDefault(true);
    auto* cancelBt = new QPushButton(tr("Cancel"));
    cancelBt->setObjectName(QStringLiteral("cancelBt"));
    cancelBt->setProperty("common_bt_style2", true);
    cancelBt->setAutoDefault(false);
    connect(cancelBt, &QPushButton::clicked, this, &DeviceDlg::reject);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(16);
    buttons->addStretch();
    for (QPushButton* button : {m_okBt, cancelBt}) {
        button->setMinimumSize(96, FieldHeight);
        buttons->addWidget(button);
    }
    layout->addLayout(buttons);
}

QLineEdit* DeviceDlg::addField(QVBoxLayout* layout, const QString& title, const char* name)
{
    auto* label = new QLabel(title);
    auto* field = new XCOMMON::XLineEdit(this);
    field->setObjectName(QLatin1String(name));
    field->setMinimumHeight(FieldHeight);
    field->setAccessibleName(title);
    label->setBuddy(field);
    layout->addWidget(label);
    layout->addWidget(field);
    layout->addSpacing(6);
    return field;
}

bool DeviceDlg::takeInput()
{
    QString reason;
    const QUrl address = deviceAddress(m_addressEt->text(), &reason);
    if (!address.isValid()) {
        showProblem(reason, m_addressEt);
        return false;
    }
    const auto stored = DeviceRegistry::instance().devices();
    for (const Device& other : stored) {
        if (other.id != m_device.id && other.address == address) {
            showProblem(tr("%1 has this address already. Enter another one.").arg(other.name), m_addressEt);
            return false;
        }
    }
    const QString token = m_tokenEt->text().trimmed();
    if (const QString why = whyNoToken(token); !why.isEmpty()) {
        showProblem(why, m_tokenEt);
        return false;
    }
    if (address != m_device.address)
        m_device.pinnedCertificate.clear(); // it was accepted for the other address
    m_device.address = address;
    m_device.token = token;
    return true;
}

void DeviceDlg::showProblem(const QString& text, QLineEdit* field)
{
    m_problem->setText(text);
    m_problem->setProperty("error", !text.isEmpty());
    m_problem->setStyleSheet(QStringLiteral("color: #f07a7a;"));
    if (field != nullptr) {
        field->setFocus();
        field->selectAll();
    }
}

void DeviceDlg::setBusy(bool busy)
{
    for (QWidget* widget : QList<QWidget*>{m_addressEt, m_tokenEt, m_nameEt, m_okBt})
        widget->setEnabled(!busy);
    if (!busy)
        return;
    m_problem->setStyleSheet(QString());
    m_problem->setText(tr("Asking the device for its channels..."));
}

void DeviceDlg::slotConfirm()
{
    if (!takeInput())
        return;
    setBusy(true);
    m_probe->start(m_device);
}

void DeviceDlg::slotProbed(const dvx_sdk::ProbeResult& result)
{
    setBusy(false);
    if (result.code == dvx_sdk::Success)
        return store(result);
    if (result.code == dvx_sdk::Untrusted && !result.certificate.fingerprint.isEmpty()) {
        CertificateDlg question(m_device.address.host(), result.certificate, this);
        if (question.exec() == QDialog::Accepted) {
            m_device.pinnedCertificate = result.certificate.fingerprint;
            return slotConfirm();
        }
    }
    constexpr int UnauthorizedStatus = 401;
    showProblem(dvx_sdk::responseText(result.code),
                result.code == UnauthorizedStatus ? m_tokenEt : m_addressEt);
}

void DeviceDlg::store(const dvx_sdk::ProbeResult& result)
{
    const QString name = m_nameEt->text().trimmed();
    const QString ownName = result.name.isEmpty() ? m_device.address.host() : result.name.left(NameLength);
    m_device.name = name.isEmpty() ? ownName : name;
    m_device.channels = result.channels;
    const bool isNew = m_device.id.isEmpty();
    if (isNew)
        m_device.id = QUuid::createUuid().toString();
    if (DeviceRegistry::instance().saveDevice(m_device)) {
        DeviceRegistry::instance().setReachability(m_device.id, DeviceRegistry::Reachability::Online);
        return accept();
    }
    if (isNew)
        m_device.id.clear();
    showProblem(tr("The store did not take the device. The alert tells why."));
}
