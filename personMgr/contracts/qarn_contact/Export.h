#pragma once

#include <QtGlobal>

/// Marks what qarn_contact offers to other libraries; everything else of it stays hidden.
#define QARN_CONTACT_EXPORT Q_DECL_EXPORT
