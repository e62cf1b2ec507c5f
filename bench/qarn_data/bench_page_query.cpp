// One page of persons by name fragment and validity out of 100,000, against a count and a page through
// SQLite's C interface on the same file.

#include "support/Figure.h"
#include "support/PageQueryPeer.h"
#include "support/StoreFiles.h"

#include "query/PersonMgrWorker.h"
#include "query/PersonQueryCondition.h"

#include <qarn_data/PersonInfo.h>

#include <QCoreApplication>

using namespace qarn_bench;
using qarn_personMgr::PersonMgrWorker;
using qarn_personMgr::PersonQueryCondition;

namespace
{

constexpr int PersonCount = 100000;
constexpr int Rounds = 15;
const char* const Fragment = "an";
} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const StoreFiles files;
    const QString path = makeStore(files, QStringLiteral("store.db"), PersonCount);
    openStore(path);
    PageQueryPeer peer(path);
    int ours = 0;
    int theirs = 0;
    QObject::connect(&PersonMgrWorker::instance(), &PersonMgrWorker::signalCurPagePersons, &application,
                     [&](const QList<qarn_data::PersonInfo>&, int, int total) { ours = total; });
    PersonQueryCondition condition;
    condition.name = QString::fromLatin1(Fragment);
    condition.validType = qarn_personMgr::ValidPersons;

    Figure figure{"page_query_100000_ms"};
    figure.limit = 1.0;
    measureAlternately(
        figure, Rounds,
        [&] { return milliseconds([&] { PersonMgrWorker::instance().queryPersons(condition); }); },
        [&] { return milliseconds([&] { theirs = peer.query(Fragment); }); });
    if (ours == 0 || ours != theirs)
        qFatal("found %d persons, the peer %d", ours, theirs);
    const int status = report(figure);
    closeStore();
    return status;
}
