#pragma once

#include <QGenericPlugin>

/// Entry of the probe: starts a ProbeServer on the socket that its argument names.
class ProbePlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "probe.json")
public:
    QObject* create(const QString& name, const QString& socketPath) override;
};
