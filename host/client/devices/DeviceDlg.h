#pragma once

#include <qarn_base/CommonDialog.h>
#include <qarn_data/DeviceRegistry.h>

class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace dvx_sdk
{
class DeviceProbe;
struct ProbeResult;
} // namespace dvx_sdk

/// Adds a device, or changes a stored one. Asks the device for its channels first and stores it only when it
/// answers; a certificate that nobody trusts yet is shown.
class DeviceDlg : public qarn_base::CommonDialog
{
    Q_OBJECT
public:
    /// A device with an empty id is added as a new one.
    DeviceDlg(const qarn_data::Device& device, QWidget* parent);

    QString deviceId() const { return m_device.id; }

private:
    void buildForm();
    QLineEdit* addField(QVBoxLayout* layout, const QString& title, const char* name);
    bool takeInput();
    void showProblem(const QString& text, QLineEdit* field = nullptr);
    void setBusy(bool busy);
    void slotConfirm();
    void slotProbed(const dvx_sdk::ProbeResult& result);
    void store(const dvx_sdk::ProbeResult& result);

    qarn_data::Device m_device;
    dvx_sdk::DeviceProbe* m_probe;
    QLineEdit* m_addressEt = nullptr;
    QLineEdit* m_tokenEt = nullptr;
    QLineEdit* m_nameEt = nullptr;
    QLabel* m_problem = nullptr;
    QPushButton* m_okBt = nullptr;
};
