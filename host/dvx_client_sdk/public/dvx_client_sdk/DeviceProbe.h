#pragma once

#include <dvx_client_sdk/Export.h>
#include <qarn_data/DeviceRegistry.h>

#include <QDateTime>
#include <QMetaType>
#include <QObject>
#include <QStringList>

namespace dvx_sdk
{

/// A certificate that a device showed and that nobody trusts yet.
struct CertificateInfo {
    QByteArray fingerprint; ///< SHA-256, as Device::pinnedCertificate takes it; empty: there was none
    QString subject;
    QString issuer;
    QDateTime validFrom;
    QDateTime validTo;
    QStringList problems; ///< why it is not trusted
};

/// What a device told about itself.
struct ProbeResult {
    int code = 0; ///< a ResponseCode or an HTTP status; see responseText()
    QString name; ///< the device's own name; may be empty
    QList<qarn_data::DeviceChannel> channels;
    int milliseconds = 0;        ///< until the answer was there
    CertificateInfo certificate; ///< with ResponseCode Untrusted
};

/// Asks a device, stored or not yet stored, which channels it has. Host only. A stored device's
/// reachability is noted in the registry.
class DVX_CLIENT_SDK_EXPORT DeviceProbe : public QObject
{
    Q_OBJECT
public:
    explicit DeviceProbe(QObject* parent = nullptr);

    /// Answered once by signalFinished(), later. One probe may ask several times, one after the other.
    void start(const qarn_data::Device& device);

signals:
    void signalFinished(const dvx_sdk::ProbeResult& result);
};

} // namespace dvx_sdk

Q_DECLARE_METATYPE(dvx_sdk::ProbeResult)
