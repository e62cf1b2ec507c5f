#include "devices/CertificateDlg.h"

#include <dvx_client_sdk/DeviceProbe.h>

#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{

constexpr int DialogWidth = 560;
constexpr int Margin = 24;
constexpr int BytesPerLine = 16;

QString readable(const QByteArray& fingerprint)
{
    QStringList lines;
    for (int i = 0; i < fingerprint.size(); i += BytesPerLine)
        lines.append(QString::fromLatin1(fingerprint.mid(i, BytesPerLine).toHex(':').toUpper()));
    return lines.join(QLatin1Char('\n'));
}

QLabel* value(const QString& text, const char* name)
{
    auto* label = new QLabel(text);
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText); // the text is the device's
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return label;
}

} // namespace

CertificateDlg::CertificateDlg(const QString& deviceName, const dvx_sdk::CertificateInfo& certificate,
                               QWidget* parent)
    : CommonDialog(parent)
{
    setObjectName(QStringLiteral("CertificateDlg"));
    setTitle(tr("Certificate of %1").arg(deviceName));
    setFixedWidth(DialogWidth);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, TitleBarHeight + Margin, Margin, Margin);
    layout->setSpacing(16);
    layout->addWidget(
        value(tr("This device shows a certificate that the system does not trust. Compare the "
                 "fingerprint with the one that the device itself displays. Trust it only when both "
                 "are the same: otherwise someone may be standing between you and the device."),
              "question"));
    auto* details = new QFormLayout;
    addDetails(details, certificate);
    layout->addLayout(details);

    auto* trustBt = new QPushButton(tr("Trust this certificate"));
    trustBt->setObjectName(QStringLiteral("trustBt"));
    trustBt->setProperty("common_bt_style2", true);
    auto* cancelBt = new QPushButton(tr("Cancel"));
    cancelBt->setObjectName(QStringLiteral("cancelBt"));
    cancelBt->setProperty("common_bt_style1", true);
    cancelBt->setDefault(true); // Return must not trust by accident
    for (QPushButton* button : {trustBt, cancelBt})
        button->setMinimumSize(button->sizeHint().width() + 24, 28);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(trustBt);
    buttons->addWidget(cancelBt);
    layout->addLayout(buttons);
    cancelBt->setFocus();
    connect(trustBt, &QPushButton::clicked, this, &CertificateDlg::accept);
    connect(cancelBt, &QPushButton::clicked, this, &CertificateDlg::reject);
}

void CertificateDlg::addDetails(QFormLayout* layout, const dvx_sdk::CertificateInfo& certificate)
{
    const auto day = [](const QDateTime& time) {
        return QLocale().toString(time.toLocalTime().date(), QLocale::ShortFormat);
    };
    layout->setHorizontalSpacing(16);
    layout->setVerticalSpacing(8);
    layout->addRow(tr("Issued to"), value(certificate.subject, "subject"));
    layout->addRow(tr("Issued by"), value(certificate.issuer, "issuer"));
    layout->addRow(
        tr("Valid"),
        value(tr("%1 to %2").arg(day(certificate.validFrom), day(certificate.validTo)), "validity"));
    layout->addRow(tr("Fingerprint (SHA-256)"), value(readable(certificate.fingerprint), "fingerprint"));
    layout->addRow(tr("Not trusted because"),
                   value(certificate.problems.join(QLatin1Char('\n')), "problems"));
}
