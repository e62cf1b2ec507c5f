#include "TestStore.h"
#include "ThreadRun.h"
#include "TransferFiles.h"

#include <XCOMMON/PhotoDecoder.h>

using qarn_data::PersonData;
using qarn_data::PersonInfo;
using qarn_personMgr::ImportPersonsThread;

/// The samples that come with the product: the table imports whole, and its portraits find their persons.
class tst_Samples : public QObject
{
    Q_OBJECT
private slots:
    void importsTableAndPortraits();
};

void tst_Samples::importsTableAndPortraits()
{
    const TestStore store;
    ImportPersonsThread table(QARN_SOURCE_DIR "/samples/persons.csv", nullptr);
    QCOMPARE(ThreadRun(table).events(), (QStringList{"stored 60", "result true", importOutcome::finished}));
    ImportPersonsThread portraits(QARN_SOURCE_DIR "/samples/portraits", QString(), {0, 1, 2}, nullptr);
    const QStringList events = ThreadRun(portraits).events();
    QCOMPARE(events.count("updated"), 60);
    QCOMPARE(events.last(), importOutcome::finished);
    const QList<PersonInfo> persons = PersonData::instance().getAllPersons(false);
    QCOMPARE(persons.count(), 60);
    for (const PersonInfo& person : persons) {
        QVERIFY(person.faceImage1.size() < 40 * 1024);
        QCOMPARE(XCOMMON::PhotoDecoder::decode(person.faceImage1).size(), QSize(300, 400));
        QVERIFY(!person.name.isEmpty() && person.name.length() <= 20);
        QVERIFY(!PersonData::instance().getOrganizationName(person.organizationId).isEmpty());
    }
}

QTEST_GUILESS_MAIN(tst_Samples)
#include "tst_Samples.moc"
