#pragma once

#include <qarn_data/DeviceRegistry.h>

#include <QBuffer>
#include <QImage>
#include <QProcess>
#include <QStringList>
#include <QUrl>
#include <QUuid>

/// A running face-device-sim. Ends with this object, and with the test, however the test ends.
class SimulatedDevice
{
public:
    explicit SimulatedDevice(const QStringList& options = {}) : m_options(options) { start(); }
    ~SimulatedDevice() { stop(); }

    QUrl address() const { return m_address; }
    QString id() const { return m_id; }

    /// As the Devices page would store it.
    qarn_data::Device device() const
    {
        qarn_data::Device device;
        device.id = m_id;
        device.name = QStringLiteral("Gate");
        device.address = m_address;
        device.token = option(QStringLiteral("--token"));
        const int channels = qMax(1, option(QStringLiteral("--channels")).toInt());
        for (int number = 1; number <= channels; ++number)
            device.channels.append(
                {number, QStringLiteral("Channel %1").arg(number), qarn_data::FaceListAbility});
        return device;
    }

    void addToRegistry() { qarn_data::DeviceRegistry::instance().saveDevice(device()); }

    void stop()
    {
        m_process.closeWriteChannel(); // ends it, see --until-stdin-closes
        if (m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(5000))
            m_process.kill();
        m_process.waitForFinished();
    }

private:
    QString option(const QString& name) const { return m_options.value(m_options.indexOf(name) + 1); }

    void start()
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(QARN_SIMULATOR),
                        QStringList{QStringLiteral("--until-stdin-closes")} + m_options);
        while (!m_process.canReadLine() && m_process.waitForReadyRead(10000)) {
        }
        const QByteArray line = m_process.readLine().trimmed();
        if (!line.startsWith("listening on "))
            qFatal("the simulator does not start: %s", line.constData());
        m_address = QUrl(QString::fromLatin1(line.mid(int(strlen("listening on ")))));
    }

    const QStringList m_options;
    const QString m_id = QUuid::createUuid().toString();
    QProcess m_process;
    QUrl m_address;
};

/// A JPEG file of about the given size; another picture for each seed.
inline QByteArray testPhoto(int bytes = 2000, quint32 seed = 1)
{
    QImage image(64, 64, QImage::Format_RGB32);
    for (int i = 0; i < 64 * 64; ++i) {
        seed = seed * 1664525u + 1013904223u;
        image.setPixel(i % 64, i / 64, 0xff000000u | (seed >> 8));
    }
    QBuffer buffer;
    image.save(&buffer, "JPEG", 20);
    QByteArray jpeg = buffer.data();
    while (jpeg.size() + 4 < bytes) { // comments fill it up
        const int length = qMin(65535, bytes - jpeg.size() - 2);
        QByteArray comment("\xff\xfe", 2);
        comment += char(length >> 8);
        comment += char(length & 0xff);
        jpeg.insert(2, comment + QByteArray(length - 2, 'x'));
    }
    return jpeg;
}
