#include <qarn_base/BaseTools.h>

#include <qarn_data/DeviceRegistry.h>

#include <QWidget>

namespace qarn_base
{

BaseTools& BaseTools::instance()
{
    static BaseTools tools;
    return tools;
}

QString BaseTools::strSex(bool male) const
{
    return male ? tr("Male") : tr("Female");
}

QString BaseTools::strValid(bool valid) const
{
    return valid ? tr("Valid") : tr("Invalid");
}

QString BaseTools::getChannelName(const QPair<QString, int>& channel) const
{
    const qarn_data::Device device = qarn_data::DeviceRegistry::instance().device(channel.first);
    const QString deviceName = device.name.isEmpty() ? channel.first : device.name;
    for (const qarn_data::DeviceChannel& known : device.channels) {
        if (known.number == channel.second && !known.name.isEmpty())
            return QStringLiteral("%1-%2").arg(deviceName, known.name);
    }
    return QStringLiteral("%1-%2").arg(deviceName, QString::number(channel.second));
}

QWidget* BaseTools::getRootParentWt(QWidget* widget) const
{
    return widget == nullptr ? nullptr : widget->window();
}

} // namespace qarn_base
