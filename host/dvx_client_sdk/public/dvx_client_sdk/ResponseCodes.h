#pragma once

#include <dvx_client_sdk/Export.h>

#include <QString>

namespace dvx_sdk
{

/// Response::code where it is no HTTP status. Host only.
enum ResponseCode {
    Success = 0,
    NoRoute = -1,        ///< no such host, refused, or no network
    TimedOut = -2,       ///< no connection, or no whole answer, in time
    BadAnswer = -3,      ///< answered, but not with what was asked for
    UnknownDevice = -4,  ///< not in the registry
    UnknownChannel = -5, ///< the device has no such channel
    UnknownFace = -6,    ///< no face was handed out under this number
    Untrusted = -7,      ///< a certificate that neither the system nor the operator trusts
    TlsFailed = -8,      ///< no encrypted connection could be made
    ConnectionLost = -9, ///< closed before the answer was whole
    BadSettings = -10,   ///< the device's address or token cannot be used
    ShuttingDown = -11,  ///< the program ends
};

/// What the code means and what to do about it, in words for the operator.
DVX_CLIENT_SDK_EXPORT QString responseText(int code);

} // namespace dvx_sdk
