#pragma once

#include <qarn_base/Export.h>

#include <QWidget>

namespace qarn_base
{

/// Edit and delete buttons on a tree item: "editBt", "deleteBt". The root has no delete button.
class QARN_BASE_EXPORT TreeItemOperWt : public QWidget
{
    Q_OBJECT
public:
    TreeItemOperWt(bool isRoot, bool showAdd, bool showEdit, bool showDelete, QWidget* parent = nullptr);

signals:
    void signalAddBtClicked();
    void signalEditBtClicked();
    void signalDeleteBtClicked();
};

} // namespace qarn_base
