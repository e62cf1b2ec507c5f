#include "demo/DemoDevice.h"

#include <qarn_data/DeviceRegistry.h>
#include <qarn_worker/DictDef.h>
#include <qarn_worker/SystemAssistant.h>

#include <QCoreApplication>
#include <QDir>
#include <QLockFile>
#include <QProcess>
#include <QStandardPaths>
#include <QUuid>

#include <csignal>
#include <sys/prctl.h>

using qarn_data::Device;
using qarn_data::DeviceRegistry;

namespace
{

const QString deviceId = QStringLiteral("demo-device");
constexpr int channelCount = 2;
constexpr int stopMs = 3000;
const QByteArray readyPrefix = "listening on ";

/// Ends with the client, also when that is killed.
class DeviceProcess : public QProcess
{
public:
    using QProcess::QProcess;

protected:
    void setupChildProcess() override { prctl(PR_SET_PDEATHSIG, SIGTERM); }
};

QString simulatorProgram()
{
    const QString name = QStringLiteral("face-device-sim");
    const QString beside = QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
    return beside.isEmpty() ? QStandardPaths::findExecutable(name) : beside;
}

} // namespace

DemoDevice::DemoDevice(const QString& directory, QObject* parent)
    : QObject(parent),
      m_lock(std::make_unique<QLockFile>(QDir(directory).filePath(QStringLiteral("device.lock"))))
{
    m_lock->setStaleLockTime(0); // held as long as the process lives
    if (m_lock->tryLock())
        start(directory);
}

DemoDevice::~DemoDevice()
{
    if (m_process == nullptr || m_process->state() == QProcess::NotRunning)
        return;
    m_process->disconnect(this);
    m_process->terminate();
    if (!m_process->waitForFinished(stopMs))
        m_process->kill();
    m_process->waitForFinished(stopMs);
}

void DemoDevice::start(const QString& directory)
{
    m_token = QUuid::createUuid().toString(QUuid::WithoutBraces);
    m_process = new DeviceProcess(this);
    m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(m_process, &QProcess::readyReadStandardOutput, this, &DemoDevice::announce);
    connect(m_process, &QProcess::errorOccurred, this, [] {
        qarn_worker::SystemAssistant::instance().messageAlert(
            qarn_worker::DictDef::instance().warningAlertTitle,
            tr("The simulated device cannot be started: is face-device-sim installed beside the client?"));
    });
    m_process->start(simulatorProgram(),
                     {QStringLiteral("--port"), QStringLiteral("0"), QStringLiteral("--channels"),
                      QString::number(channelCount), QStringLiteral("--token"), m_token,
                      QStringLiteral("--data"), QDir(directory).filePath(QStringLiteral("device.json"))});
}

void DemoDevice::announce()
{
    const QByteArray line = m_process->readLine().trimmed();
    if (!line.startsWith(readyPrefix))
        return;
    Device device;
    device.id = deviceId;
    device.name = tr("Simulated door");
    device.address = QUrl(QString::fromUtf8(line.mid(readyPrefix.size())));
    device.token = m_token;
    const QStringList channels{tr("Entrance"), tr("Exit")};
    for (int number = 1; number <= channelCount; ++number)
        device.channels.append({number, channels.at(number - 1), qarn_data::FaceListAbility});
    DeviceRegistry::instance().saveDevice(device);
}
