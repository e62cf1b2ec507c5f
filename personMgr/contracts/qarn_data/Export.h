#pragma once

#include <QtGlobal>

/// Marks what qarn_data offers to other libraries; everything else of it stays hidden.
#define QARN_DATA_EXPORT Q_DECL_EXPORT
