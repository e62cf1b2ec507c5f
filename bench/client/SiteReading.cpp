#include "client/SiteSteps.h"

#include "client/ClientStart.h"
#include "client/LargeSite.h"
#include "form/PersonMgrForm.h"
#include "query/PersonMgrWorker.h"
#include "query/PersonQueryCondition.h"
#include "support/Figure.h"
#include "support/PageQueryPeer.h"
#include "support/StoreFiles.h"
#include "table/DjpegPeer.h"
#include "table/PageWindow.h"
#include "table/PersonInfoWt.h"

#include <qarn_data/PersonData.h>

#include <QLabel>

using qarn_data::PersonData;
using qarn_data::PersonInfo;
using qarn_data::PersonList;
using qarn_personMgr::PersonMgrWorker;

namespace qarn_bench
{

namespace
{

constexpr int PageSize = 50;

bool showsFace(const qarn_personMgr::PersonInfoWt& row)
{
    return !row.findChild<QLabel*>(QStringLiteral("faceImage"))->pixmap(Qt::ReturnByValue).isNull();
}

/// Ends the program unless the page shows these persons, those with a photograph with their face.
void requireShown(PageWindow& window, const PersonList& expected)
{
    const auto rows = window.form().findChildren<qarn_personMgr::PersonInfoWt*>();
    if (rows.count() != expected.count())
        qFatal("the page has %d rows instead of %d", int(rows.count()), int(expected.count()));
    for (int i = 0; i < expected.count(); ++i) {
        const PersonInfo& person = expected.at(i);
        if (rows.at(i)->getPersonInfo().id != person.id ||
            showsFace(*rows.at(i)) == person.faceImage1.isEmpty())
            qFatal("the page does not show %s", qPrintable(person.serialNum));
    }
}

QList<QByteArray> facesOf(const PersonList& persons)
{
    QList<QByteArray> faces;
    for (const PersonInfo& person : persons) {
        if (!person.faceImage1.isEmpty())
            faces.append(person.faceImage1);
    }
    return faces;
}

} // namespace

int measureStart(const StoreFiles& files, const QString& store)
{
    constexpr int Rounds = 3;
    const QString empty = makeStore(files, QStringLiteral("empty.db"), 0);
    Figure figure{"at_size_start_ms"};
    figure.limit = 2.5;
    measureAlternately(
        figure, Rounds, [&] { return untilFirstPage(store); }, [&] { return untilFirstPage(empty); });
    return report(figure);
}

int measureOpen(const QString& store)
{
    constexpr int Rounds = 3;
    Figure figure{"at_size_open_ms"};
    figure.limit = 3;
    measureAlternately(
        figure, Rounds,
        [&] {
            closeStore();
            return milliseconds([&] {
                openStore(store);
                PersonMgrWorker::instance().queryPersons({});
            });
        },
        [&] { return milliseconds([&] { readWholeStore(store); }); });
    LargeSite::check();
    return report(figure);
}

int measurePageTurn()
{
    constexpr int Rounds = 7;
    const PersonList persons = PersonData::instance().getAllPersons(false);
    const DjpegPeer peer(facesOf(persons.mid(0, PageSize)));
    PageWindow window;
    int page = 0;
    Figure figure{"at_size_page_turn_ms"};
    figure.limit = 1.2;
    measureAlternately(
        figure, Rounds,
        [&] {
            const double time = milliseconds([&] { window.click("nextBt"); });
            requireShown(window, persons.mid(++page * PageSize, PageSize));
            return time;
        },
        [&] { return peer.decodeAll(); });
    return report(figure);
}

int measureSearch(const QString& store)
{
    constexpr int Rounds = 7;
    const char* const fragment = "an";
    qarn_personMgr::PersonQueryCondition condition;
    condition.name = QString::fromLatin1(fragment);
    condition.validType = qarn_personMgr::ValidPersons;
    PageQueryPeer peer(store);
    int found = 0;
    int foundByPeer = 0;
    QObject context;
    QObject::connect(&PersonMgrWorker::instance(), &PersonMgrWorker::signalCurPagePersons, &context,
                     [&](const PersonList&, int, int total) { found = total; });
    Figure figure{"at_size_search_ms"};
    figure.limit = 1;
    measureAlternately(
        figure, Rounds,
        [&] { return milliseconds([&] { PersonMgrWorker::instance().queryPersons(condition); }); },
        [&] { return milliseconds([&] { foundByPeer = peer.query(fragment); }); });
    if (found == 0 || found != foundByPeer)
        qFatal("found %d persons, the peer %d", found, foundByPeer);
    return report(figure);
}

} // namespace qarn_bench
