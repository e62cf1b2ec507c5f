#pragma once

#include <QString>
#include <QStringList>

namespace qarn_personMgr
{

/// Which persons the page wants. The numbers are the indexes of the form's combo box "validType".
enum ValidType { ValidAndInvalidPersons = 0, InvalidPersons = 1, ValidPersons = 2 };

/// One question of the main form to PersonMgrWorker.
struct PersonQueryCondition {
    QString name;      ///< fragment of the name; empty: any name
    QString serialNum; ///< fragment of the serial number; empty: any
    int validType = ValidAndInvalidPersons;
    QStringList organizationIds; ///< empty: every person of the store
    int pageSize = 50;
    int curPage = 1; ///< counted from 1; anything outside the pages means the last one
};

} // namespace qarn_personMgr
