#pragma once

#include <QtGlobal>

/// Marks what dvx_client_sdk offers to other libraries; everything else of it stays hidden.
#define DVX_CLIENT_SDK_EXPORT Q_DECL_EXPORT
