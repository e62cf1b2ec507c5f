#pragma once

#include <QtGlobal>

/// Marks what qarn_worker offers to other libraries; everything else of it stays hidden.
#define QARN_WORKER_EXPORT Q_DECL_EXPORT
