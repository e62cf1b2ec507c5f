#pragma once

#include <QHash>
#include <QPair>
#include <QString>

#include <deque>

namespace dvx_sdk
{

/// Devices name faces by texts, the requests by numbers. A text that is a number below FirstNumber stands for
/// itself; any other gets a number, the same one as long as it is remembered. Only so many are remembered:
/// the ones handed out first are forgotten first.
class FaceIdMap
{
public:
    static constexpr int FirstNumber = 1 << 30;

    explicit FaceIdMap(int capacity = 1000000);

    int number(const QString& channel, const QString& id);
    QString id(const QString& channel, int number) const; ///< empty when unknown
    void forget(const QString& channel, const QString& id);

private:
    using Key = QPair<QString, QString>; ///< channel and id

    int m_capacity;
    int m_oldest = FirstNumber; ///< the number of m_keys' first entry
    QHash<Key, int> m_numbers;
    std::deque<Key> m_keys; ///< by number; a forgotten one is empty
};

} // namespace dvx_sdk
