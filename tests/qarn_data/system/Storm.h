#pragma once

#include <qarn_data/PersonInfo.h>

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

/// One of several that write to the same store at once. It adds persons, updates its own and shared ones,
/// deletes some of its own; each update carries a token "<writer>:<number>" in name and remarks.
class Storm
{
public:
    /// What a writer was told that the store has taken.
    struct Acknowledged {
        QStringList added;
        QSet<QString> deleted;
        QStringList updates;            ///< tokens, own and shared
        QMap<QString, QString> lastOwn; ///< token by id, of those that live
        QMap<QString, QString> lastShared;
    };

    explicit Storm(const QString& writer) : m_writer(writer) {}

    /// Persons that every writer of the store updates; made once, before the storm.
    static qarn_data::PersonList sharedPersons();

    /// A few changes; false when the store refuses one.
    bool step();
    const Acknowledged& acknowledged() const { return m_acknowledged; }

private:
    bool add();
    bool removeOldest();
    bool update(qarn_data::PersonInfo person, QMap<QString, QString>& last);

    QString m_writer;
    int m_number = 0;
    qarn_data::PersonList m_own;
    Acknowledged m_acknowledged;
};

/// The number in a token; -1 when the text is none.
int tokenNumber(const QString& token);
QString tokenWriter(const QString& token);
