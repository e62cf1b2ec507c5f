#pragma once

#include <QDateTime>
#include <QHash>
#include <QString>

namespace qarn_personMgr
{

/// Reads the dates of one column. A table names the same few days again and again, and local times are slow
/// to make.
class ImportedDays
{
public:
    /// `time`: the time of the day that the column stands for.
    explicit ImportedDays(const QTime& time);

    /// Invalid when the text is no day.
    QDateTime read(const QString& text);

private:
    const QTime m_time;
    QHash<QString, QDateTime> m_known; ///< by text; bounded
};

} // namespace qarn_personMgr
