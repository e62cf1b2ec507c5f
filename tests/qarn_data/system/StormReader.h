#pragma once

#include <QHash>
#include <QString>

/// Reads all the time while others write; complains about a torn record, one that went back to an older
/// state, and an index whose ways to a person disagree.
class StormReader
{
public:
    void step();
    int steps() const { return m_steps; }
    QString complaint() const { return m_complaint; } ///< the first one

private:
    void look(const QString& id, const QString& name, const QString& remarks);

    int m_steps = 0;
    QHash<QString, QString> m_lastTokens; ///< by id
    QString m_complaint;
};
