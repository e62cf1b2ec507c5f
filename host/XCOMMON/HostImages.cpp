#include <XCOMMON/HostImages.h>

namespace XCOMMON
{

QString imagePath(const QString& name)
{
    return QStringLiteral(":/images/images/%1.png").arg(name);
}

} // namespace XCOMMON
