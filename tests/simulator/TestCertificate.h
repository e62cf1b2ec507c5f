#pragma once

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

/// A certificate that nobody has signed, made anew for each test.
class TestCertificate
{
public:
    TestCertificate()
    {
        const int code = QProcess::execute(
            QStringLiteral("openssl"),
            {"req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256", "-nodes", "-days", "2",
             "-subj", "/CN=face-device", "-keyout", key(), "-out", certificate(), "-batch", "-noenc"});
        if (code != 0)
            qFatal("openssl makes no certificate");
    }

    QStringList options() const { return {"--tls-cert", certificate(), "--tls-key", key()}; }

private:
    QString certificate() const { return m_directory.filePath(QStringLiteral("cert.pem")); }
    QString key() const { return m_directory.filePath(QStringLiteral("key.pem")); }

    QTemporaryDir m_directory;
};
