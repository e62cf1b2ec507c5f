#include "TestPersons.h"

#include <qarn_data/DataService.h>
#include <qarn_data/PersonData.h>

#include <QCoreApplication>

using qarn_data::DataService;
using qarn_data::PersonData;
using qarn_data::PersonInfo;

namespace
{

bool change(const QStringList& words)
{
    PersonData& data = PersonData::instance();
    const QString command = words.value(0);
    if (command == QLatin1String("add")) // organization, ids...
    {
        QList<PersonInfo> persons;
        for (const QString& id : words.mid(2))
            persons.append(makePerson(id, QStringLiteral("Added ") + id, words.value(1)));
        return data.addPersons(persons);
    }
    if (command == QLatin1String("delete")) // ids...
        return data.deletePersons(words.mid(1));
    if (command == QLatin1String("rename")) // id, new name
    {
        for (PersonInfo person : data.getAllPersons(false)) {
            if (person.id == words.value(1)) {
                person.name = words.value(2);
                return data.updatePerson(person);
            }
        }
        return false;
    }
    if (command == QLatin1String("rename-organization")) // id, parent, new name
        return data.updateOrganization({words.value(1), words.value(2), words.value(3)});
    return false;
}

} // namespace

/// Usage: other_operator STORE COMMAND WORDS...
int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList words = application.arguments().mid(1);
    QString error;
    if (!DataService::instance().open(words.value(0), &error))
        qFatal("%s", qPrintable(error));
    const bool done = change(words.mid(1));
    DataService::instance().close();
    return done ? 0 : 1;
}
