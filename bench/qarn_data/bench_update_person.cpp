// updatePerson, 10,000 calls in a store of 100,000, against the same statements through SQLite's C
// interface; every update is a transaction of its own on both sides.

#include "qarn_data/WriteFigure.h"

#include <qarn_data/PersonData.h>

#include <QCoreApplication>
#include <QRandomGenerator>

using namespace qarn_bench;

namespace
{

constexpr int PersonCount = 100000;
constexpr int UpdateCount = 10000;

qarn_data::PersonList changedPersons(const QString& path)
{
    openStore(path);
    const qarn_data::PersonList all = qarn_data::PersonData::instance().getAllPersons(false);
    closeStore();
    QRandomGenerator random(7);
    qarn_data::PersonList changed;
    for (int i = 0; i < UpdateCount; ++i) {
        qarn_data::PersonInfo person = all.at(random.bounded(all.count()));
        person.name = QStringLiteral("Renamed %1").arg(i);
        person.remarks = QStringLiteral("Changed at desk %1").arg(i);
        person.validEndTime = person.validEndTime.addDays(30);
        changed.append(person);
    }
    return changed;
}

void updateAll(const qarn_data::PersonList& persons)
{
    for (const qarn_data::PersonInfo& person : persons) {
        if (!qarn_data::PersonData::instance().updatePerson(person))
            qFatal("the store does not take %s", qPrintable(person.serialNum));
    }
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const StoreFiles files;
    const QString store = makeStore(files, QStringLiteral("store.db"), PersonCount);
    const qarn_data::PersonList changed = changedPersons(store);
    return measureWrites("update_person_10000_ms", files, store, [&] { updateAll(changed); });
}
