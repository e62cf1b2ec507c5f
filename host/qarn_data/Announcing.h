#pragma once

#include "Register.h"

#include <qarn_data/OrganizationInfo.h>
#include <qarn_data/PersonInfo.h>

namespace qarn_data
{

// The notifications of successful changes, to be emitted later.
Announcement personsAdded(const PersonList& persons);
Announcement personUpdated(const PersonInfo& info, const QStringList& ids);
Announcement personsDeleted(const QStringList& ids);
Announcement organizationAdded(const OrganizationInfo& info);
Announcement organizationUpdated(const OrganizationInfo& info);
Announcement organizationsDeleted(const QStringList& ids);
Announcement fieldsReset(const QStringList& names);
Announcement devicesChanged();

/// Emits them from the GUI thread's event loop, so that locks may be held now.
void announceInGuiThread(const Announcements& announcements);

/// Tells the operator; does nothing when `text` is empty.
void tellFailure(const QString& text);

/// Tells the client that a store which it works with already could not be read to its end.
void tellLoadingFailure(const QString& text);

} // namespace qarn_data
