// One page of persons by name fragment and validity out of 100,000, against a count and a page through
// SQLite's C interface on the same file.

#include "support/Figure.h"
#include "support/Sqlite.h"
#include "support/StoreFiles.h"

#include "query/PersonMgrWorker.h"
#include "query/PersonQueryCondition.h"

#include <qarn_data/PersonInfo.h>

#include <QCoreApplication>
#include <QDateTime>

using namespace qarn_bench;
using qarn_personMgr::PersonMgrWorker;
using qarn_personMgr::PersonQueryCondition;

namespace
{

constexpr int PersonCount = 100000;
constexpr int Rounds = 15;
const char* const Fragment = "an";
const std::string Matching = " FROM records JOIN persons ON persons.number = records.person"
                             " WHERE persons.name LIKE ?1 AND valid_start <= ?2 AND valid_end >= ?2";

class Peer
{
public:
    explicit Peer(const QString& path) : m_connection(openSqlite(path))
    {
        execute(m_connection.get(), "PRAGMA case_sensitive_like = ON"); // so that both find the same persons
        m_count = prepare(m_connection.get(), "SELECT count(*)" + Matching);
        m_page = prepare(m_connection.get(),
                         "SELECT records.*, persons.*" + Matching + " ORDER BY records.number LIMIT 50");
    }

    int query()
    {
        const std::string pattern = '%' + std::string(Fragment) + '%';
        for (sqlite3_stmt* statement : {m_count.get(), m_page.get()}) {
            sqlite3_reset(statement);
            sqlite3_bind_text(statement, 1, pattern.c_str(), -1, SQLITE_TRANSIENT);
            sqlite3_bind_int64(statement, 2, QDateTime::currentMSecsSinceEpoch());
        }
        sqlite3_step(m_count.get());
        const int total = sqlite3_column_int(m_count.get(), 0);
        touchAll(m_page.get());
        return total;
    }

private:
    SqliteConnection m_connection;
    SqliteStatement m_count;
    SqliteStatement m_page;
};

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const StoreFiles files;
    const QString path = makeStore(files, QStringLiteral("store.db"), PersonCount);
    openStore(path);
    Peer peer(path);
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
        [&] { return milliseconds([&] { theirs = peer.query(); }); });
    if (ours == 0 || ours != theirs)
        qFatal("found %d persons, the peer %d", ours, theirs);
    const int status = report(figure);
    closeStore();
    return status;
}
