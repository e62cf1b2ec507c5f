#include "Announcing.h"

#include <qarn_data/DataService.h>
#include <qarn_data/DataSignals.h>
#include <qarn_data/DeviceRegistry.h>

namespace qarn_data
{

Announcement personsAdded(const PersonList& persons)
{
    return [=] { emit DataSignals::instance().signalAddPersonsToLocalDB(persons, true); };
}

Announcement personUpdated(const PersonInfo& info, const QStringList& ids)
{
    return [=] { emit DataSignals::instance().signalUpdatePersonInLocalDB(info, ids, true); };
}

Announcement personsDeleted(const QStringList& ids)
{
    return [=] { emit DataSignals::instance().signalDeletePersonsFromLocalDB(ids, true); };
}

Announcement organizationAdded(const OrganizationInfo& info)
{
    return [=] { emit DataSignals::instance().signalAddOrganizationToLocalDB(info, true); };
}

Announcement organizationUpdated(const OrganizationInfo& info)
{
    return [=] { emit DataSignals::instance().signalUpdateOrganizationInLocalDB(info, true); };
}

Announcement organizationsDeleted(const QStringList& ids)
{
    return [=] { emit DataSignals::instance().signalDeleteOrganizationsFromLocalDB(ids, true); };
}

Announcement fieldsReset(const QStringList& names)
{
    return [=] { emit DataSignals::instance().signalResetCustomFields(names); };
}

Announcement devicesChanged()
{
    return [] { emit DeviceRegistry::instance().signalDevicesChanged(); };
}

void announceInGuiThread(const Announcements& announcements)
{
    if (announcements.isEmpty())
        return;
    QMetaObject::invokeMethod(
        &DataService::instance(),
        [announcements] {
            for (const Announcement& announce : announcements)
                announce();
        },
        Qt::QueuedConnection);
}

void tellFailure(const QString& text)
{
    if (!text.isEmpty())
        emit DataService::instance().signalFailed(text);
}

void tellLoadingFailure(const QString& text)
{
    emit DataService::instance().signalLoadingFailed(text);
}

} // namespace qarn_data
