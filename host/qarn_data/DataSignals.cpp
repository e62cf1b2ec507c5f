#include <qarn_data/DataSignals.h>

namespace qarn_data
{

namespace
{

// Queued connections look types up by the text of the signal's or slot's declaration, which may or may not
// name the namespace.
bool registerMetaTypes()
{
    qRegisterMetaType<PersonInfo>("qarn_data::PersonInfo");
    qRegisterMetaType<PersonInfo>("PersonInfo");
    qRegisterMetaType<PersonList>("qarn_data::PersonList");
    qRegisterMetaType<PersonList>("PersonList");
    qRegisterMetaType<PersonList>("QList<qarn_data::PersonInfo>");
    qRegisterMetaType<PersonList>("QList<PersonInfo>");
    qRegisterMetaType<OrganizationInfo>("qarn_data::OrganizationInfo");
    qRegisterMetaType<OrganizationInfo>("OrganizationInfo");
    return true;
}

const bool registered = registerMetaTypes();

} // namespace

DataSignals::DataSignals()
{
    Q_UNUSED(registered)
}

DataSignals& DataSignals::instance()
{
    static DataSignals dataSignals;
    return dataSignals;
}

} // namespace qarn_data
