#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QTemporaryDir>

/// A directory with a store file that is then spoilt, and what its files were like before.
class StoreFolder
{
public:
    StoreFolder();

    QString path() const { return m_directory.path(); }
    QString storePath() const { return m_directory.filePath(QStringLiteral("register.db")); }

    /// A store that holds persons "kept-0" to "kept-<count - 1>", closed.
    void makeStore(int personCount, int imageSize = 0);
    void write(const QByteArray& bytes) const;
    QByteArray read() const;
    void runSql(const QByteArray& sql) const;
    /// Spoils the page that holds the persons who were added last: the first ones can still be read.
    void spoilLastPersons() const;

    /// Names and bytes of all files.
    QMap<QString, QByteArray> content() const;

private:
    QTemporaryDir m_directory;
};
