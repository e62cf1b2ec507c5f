#pragma once

#include <XCOMMON/Export.h>

#include <QString>

namespace XCOMMON
{

/// The path of one of the host's images, for instance of "search". The images come with this library; who
/// asks for their paths here can be sure that it is loaded. Host only, any thread.
XCOMMON_EXPORT QString imagePath(const QString& name);

} // namespace XCOMMON
