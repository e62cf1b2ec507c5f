#pragma once

#include <QObject>

namespace qarn_personMgr
{

/// Hub for announcements inside the module; there are none yet.
class PersonMgrSignals : public QObject
{
    Q_OBJECT
public:
    static PersonMgrSignals& instance();

private:
    explicit PersonMgrSignals(QObject* parent);
};

} // namespace qarn_personMgr
