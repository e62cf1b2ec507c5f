#pragma once

#include <QtGlobal>

/// Marks what XCOMMON offers to other libraries; everything else of it stays hidden.
#define XCOMMON_EXPORT Q_DECL_EXPORT
