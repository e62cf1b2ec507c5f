#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QLockFile;
class QProcess;

/// The simulated device beside the demonstration store. The first client on the store runs it, later ones
/// find it in the device list. It ends with this object.
class DemoDevice : public QObject
{
    Q_OBJECT
public:
    /// directory: of the demonstration store; the device keeps its faces there.
    explicit DemoDevice(const QString& directory, QObject* parent = nullptr);
    ~DemoDevice() override;

private:
    void start(const QString& directory);
    void announce();

    std::unique_ptr<QLockFile> m_lock;
    QProcess* m_process = nullptr;
    QString m_token;
};
