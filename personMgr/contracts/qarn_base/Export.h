#pragma once

#include <QtGlobal>

/// Marks what qarn_base offers to other libraries; everything else of it stays hidden.
#define QARN_BASE_EXPORT Q_DECL_EXPORT
