#include "ProbePlugin.h"

#include "ProbeServer.h"

QObject* ProbePlugin::create(const QString& name, const QString& socketPath)
{
    Q_UNUSED(name)
    return new ProbeServer(socketPath);
}
