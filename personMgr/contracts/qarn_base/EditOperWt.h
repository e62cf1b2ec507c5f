#pragma once

#include <qarn_base/Export.h>
#include <qarn_base/TableOperWt.h>

#include <QString>

namespace qarn_base
{

/// Edit and delete buttons of a table row, "editBt" and "deleteBt"; they report the id given here.
class QARN_BASE_EXPORT EditOperWt : public TableOperWt
{
    Q_OBJECT
public:
    explicit EditOperWt(const QString& id, QWidget* parent = nullptr);

signals:
    void signalEditBtClicked(const QString& id);
    void signalDeleteBtClicked(const QString& id);

private:
    QString m_id;
};

} // namespace qarn_base
