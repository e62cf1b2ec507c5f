#include "PersonIndex.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace qarn_data;

namespace
{

StoredRecord record(qint64 number, qint64 person, const QString& name, const QString& serialNum,
                    const QString& organizationId)
{
    StoredRecord record{number, person, PersonInfo(PersonInfo::Blank::Record)};
    record.info.id = QStringLiteral("id%1").arg(number);
    record.info.name = name;
    record.info.serialNum = serialNum;
    record.info.organizationId = organizationId;
    return record;
}

/// The same questions, answered by looking at every record.
struct Naive {
    QMap<qint64, StoredRecord> records;

    QStringList idsIn(const QStringList& organizationIds) const
    {
        QStringList ids;
        for (const StoredRecord& record : records) {
            if (organizationIds.contains(record.info.organizationId))
                ids.append(record.info.id);
        }
        return ids;
    }
    QString byName(const QString& name) const
    {
        for (const StoredRecord& record : records) {
            if (record.info.name == name)
                return record.info.id;
        }
        return QString();
    }
    QString bySerialNum(const QString& serialNum) const
    {
        for (const StoredRecord& record : records) {
            if (!serialNum.isEmpty() && record.info.serialNum == serialNum)
                return record.info.id;
        }
        return QString();
    }
};

QStringList idsOf(const QList<PersonInfo>& persons)
{
    QStringList ids;
    for (const PersonInfo& info : persons)
        ids.append(info.id);
    return ids;
}

QString idOf(const PersonInfo* info)
{
    return info == nullptr ? QString() : info->id;
}

void compare(const PersonIndex& index, const Naive& naive)
{
    const QStringList organizations{"o0", "o1", "o2"};
    QCOMPARE(index.count(), naive.records.size());
    QCOMPARE(index.recordNumbers(), naive.records.keys().toVector());
    for (const QString& id : organizations) {
        QCOMPARE(idsOf(index.inOrganizations({id})), naive.idsIn({id}));
        QCOMPARE(index.anyIn({id}), !naive.idsIn({id}).isEmpty());
    }
    QCOMPARE(idsOf(index.inOrganizations(organizations)), naive.idsIn(organizations));
    QSet<QString> names;
    QSet<QString> serialNums;
    for (const StoredRecord& record : naive.records) {
        names.insert(record.info.name);
        serialNums.insert(record.info.serialNum);
        QCOMPARE(index.recordNumber(record.info.id), record.number);
        QCOMPARE(index.personOf(record.number), record.person);
        QCOMPARE(idOf(index.byName(record.info.name)), naive.byName(record.info.name));
        QCOMPARE(idOf(index.bySerialNum(record.info.serialNum)), naive.bySerialNum(record.info.serialNum));
        QVERIFY(index.recordsOf(record.person).contains(record.number));
    }
    serialNums.remove(QString());
    QCOMPARE(index.names(), names);
    QCOMPARE(index.serialNums(), serialNums);
}

} // namespace

class tst_PersonIndex : public QObject
{
    Q_OBJECT
private slots:
    void behavesLikeAPlainList_data();
    void behavesLikeAPlainList();
    void handsOutTheListWithoutCopying();
    void listsStayAsTheyWereGiven();
    void removesManyOfOneNameQuickly();
    void replacesARecord();
};

void tst_PersonIndex::behavesLikeAPlainList_data()
{
    QTest::addColumn<int>("seed");
    QTest::addColumn<int>("stepsBetween");
    for (int seed = 1; seed <= 8; ++seed)
        QTest::addRow("%d", seed) << seed << 1;
    // Nobody has asked for anything before the first look.
    for (int seed = 9; seed <= 16; ++seed)
        QTest::addRow("%d, first asked late", seed) << seed << 130;
}

// Random additions, updates, moves and removals with few names and organizations, so that they meet.
void tst_PersonIndex::behavesLikeAPlainList()
{
    QFETCH(int, seed);
    QFETCH(int, stepsBetween);
    QRandomGenerator random(static_cast<quint32>(seed));
    const auto below = [&random](int limit) { return int(random.bounded(limit)); };
    PersonIndex index;
    Naive naive;
    qint64 last = 0;
    for (int step = 0; step < 400; ++step) {
        const QString organization = QStringLiteral("o%1").arg(below(3));
        const QString name = QStringLiteral("n%1").arg(below(4));
        const QVector<qint64> numbers = naive.records.keys().toVector();
        const qint64 chosen = numbers.isEmpty() ? 0 : numbers.at(below(numbers.size()));
        const int action = below(10);
        if (action < 5 || numbers.isEmpty()) {
            const QString serialNum = below(4) == 0 ? QString() : QStringLiteral("s%1").arg(step);
            ++last;
            const StoredRecord added = record(last, last, name, serialNum, organization);
            naive.records.insert(last, added);
            index.put(added);
        } else if (action == 5) { // a further record of a person
            StoredRecord beside = naive.records.value(chosen);
            beside.number = ++last;
            beside.info.id = QStringLiteral("id%1").arg(last);
            beside.info.organizationId = organization;
            naive.records.insert(last, beside);
            index.put(beside);
        } else if (action == 6) {
            naive.records[chosen].info.organizationId = organization;
            index.setOrganization(chosen, organization);
        } else if (action == 7) {
            const qint64 person = naive.records.value(chosen).person;
            const StoredRecord changed = record(0, 0, name, QStringLiteral("u%1").arg(step), "ignored");
            for (StoredRecord& each : naive.records) {
                if (each.person == person) {
                    each.info.name = changed.info.name;
                    each.info.serialNum = changed.info.serialNum;
                }
            }
            index.updatePerson(person, changed.info);
        } else {
            QVector<qint64> gone{chosen, 9999, chosen};
            for (int more = below(8); more > 0; --more)
                gone.append(numbers.at(below(numbers.size())));
            QSet<QString> ids;
            for (const qint64 number : qAsConst(gone)) {
                if (naive.records.contains(number))
                    ids.insert(naive.records.take(number).info.id);
            }
            const QStringList removed = index.remove(gone);
            QCOMPARE(removed.size(), ids.size());
            QCOMPARE(QSet<QString>(removed.cbegin(), removed.cend()), ids);
        }
        if (step % stepsBetween == stepsBetween - 1)
            compare(index, naive);
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QStringLiteral("after step %1, action %2").arg(step).arg(action)));
    }
}

void tst_PersonIndex::handsOutTheListWithoutCopying()
{
    PersonIndex index;
    for (int i = 1; i <= 10; ++i)
        index.put(record(i, i, "name", QString(), "o"));
    const QList<PersonInfo> all = index.all();
    QVERIFY(all.isSharedWith(index.all()));
    QVERIFY(all.isSharedWith(index.inOrganizations({"o"})));
    QVERIFY(all.first().organizationId.isDetached() == false);
}

void tst_PersonIndex::listsStayAsTheyWereGiven()
{
    PersonIndex index;
    index.put(record(1, 1, "before", QString(), "o"));
    const QList<PersonInfo> given = index.all();
    index.updatePerson(1, record(1, 1, "after", QString(), "o").info);
    index.put(record(2, 2, "second", QString(), "o"));
    QCOMPARE(given.size(), 1);
    QCOMPARE(given.first().name, QString("before"));
    index.remove({1, 2});
    QCOMPARE(given.size(), 1);
}

void tst_PersonIndex::removesManyOfOneNameQuickly()
{
    PersonIndex index;
    constexpr int count = 50000;
    QVector<qint64> numbers;
    for (int i = 1; i <= count; ++i) {
        index.put(record(i, i, "Anna", QString::number(i), "o"));
        numbers.append(i);
    }
    QElapsedTimer timer;
    timer.start();
    for (int i = 1; i <= 100; ++i)
        index.remove({i});
    QCOMPARE(idOf(index.byName("Anna")), QString("id101"));
    index.remove(numbers);
    QCOMPARE(index.count(), 0);
    QVERIFY(index.names().isEmpty() && index.serialNums().isEmpty());
    QVERIFY2(timer.elapsed() < 3000, "removing takes more than a pass over the list");
}

void tst_PersonIndex::replacesARecord()
{
    PersonIndex index;
    index.put(record(1, 1, "Anna", "A", "o0"));
    index.put(record(2, 2, "Anna", "B", "o0"));
    index.put(record(1, 1, "Bea", "C", "o1"));
    QCOMPARE(index.count(), 2);
    QCOMPARE(idOf(index.byName("Anna")), QString("id2"));
    QCOMPARE(idOf(index.byName("Bea")), QString("id1"));
    QCOMPARE(index.serialNums(), QSet<QString>({"B", "C"}));
    QCOMPARE(idsOf(index.inOrganizations({"o1"})), QStringList({"id1"}));
}

QTEST_GUILESS_MAIN(tst_PersonIndex)
#include "tst_PersonIndex.moc"
