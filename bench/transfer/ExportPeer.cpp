#include "transfer/ExportPeer.h"

#include "support/Figure.h"
#include "support/Sqlite.h"
#include "transfer/Workers.h"

#include <QFile>
#include <QProcess>

namespace qarn_bench
{

ExportPeer::ExportPeer(const QString& store, const QString& exported) : m_store(store)
{
    const QByteArray commands =
        QByteArray(
            "CREATE TABLE persons (serial_num TEXT, name TEXT, organization TEXT, sex TEXT, email TEXT,"
            " phone_num TEXT, identity_id TEXT, valid_start TEXT, valid_end TEXT, rest TEXT);\n") +
        ".separator , \\n\n.import --skip 1 \"" + QFile::encodeName(exported) + "\" persons\n";
    runProgram(QStringLiteral("sqlite3"), {store}, commands);
}

double ExportPeer::exportAll(const QString& target) const
{
    return milliseconds([&] {
        QProcess process;
        process.setStandardOutputFile(target);
        process.start(QStringLiteral("sqlite3"),
                      {QStringLiteral("-csv"), m_store,
                       QStringLiteral("SELECT serial_num, name, organization, sex, email, phone_num,"
                                      " identity_id, valid_start, valid_end FROM persons")});
        if (!process.waitForFinished(-1) || process.exitCode() != 0)
            qFatal("sqlite3 -csv fails");
    });
}

int ExportPeer::rowCount() const
{
    const SqliteConnection connection = openSqlite(m_store);
    return static_cast<int>(touchAll(prepare(connection.get(), "SELECT 1 FROM persons").get()));
}

int lineCount(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().count('\n') : 0;
}

} // namespace qarn_bench
