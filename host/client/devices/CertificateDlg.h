#pragma once

#include <qarn_base/CommonDialog.h>

#include <QString>

class QFormLayout;

namespace dvx_sdk
{
struct CertificateInfo;
}

/// Shows a certificate that nobody trusts yet and asks whether to trust it from now on. Accepted: yes.
class CertificateDlg : public qarn_base::CommonDialog
{
    Q_OBJECT
public:
    CertificateDlg(const QString& deviceName, const dvx_sdk::CertificateInfo& certificate, QWidget* parent);

private:
    void addDetails(QFormLayout* layout, const dvx_sdk::CertificateInfo& certificate);
};
