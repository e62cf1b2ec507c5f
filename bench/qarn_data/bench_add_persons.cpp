// addPersons of 100,000 persons in one call against the same inserts through SQLite's C interface.

#include "qarn_data/WriteFigure.h"
#include "support/People.h"

#include <qarn_data/PersonData.h>

#include <QCoreApplication>

using namespace qarn_bench;

int main(int argc, char** argv)
{
    constexpr int PersonCount = 100000;
    QCoreApplication application(argc, argv);
    const StoreFiles files;
    const QString empty = files.path(QStringLiteral("empty.db"));
    openStore(empty);
    const qarn_data::PersonList persons = People(1).make(PersonCount, addOrganizations(50));
    closeStore();
    return measureWrites("add_persons_100000_ms", files, empty, [&] {
        if (!qarn_data::PersonData::instance().addPersons(persons))
            qFatal("the store does not take the persons");
    });
}
