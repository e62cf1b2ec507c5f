#pragma once

#include <qarn_base/CommonDialog.h>
#include <qarn_base/Export.h>

#include <QList>
#include <QPair>

namespace qarn_base
{

/// Modal picker of device channels: tree "treeWt", buttons "okBt" and "cancelBt". Stays open while no
/// channel is checked.
class QARN_BASE_EXPORT AbilityDevsSelFromTreeDlg : public CommonDialog
{
    Q_OBJECT
public:
    /// ability, otherAbility and showOffline as in AbilityDevsTree::buildTree().
    AbilityDevsSelFromTreeDlg(QWidget* parent, int ability, int otherAbility, bool showOffline,
                              const QString& title, const QString& prompt, const QString& acceptText);
    ~AbilityDevsSelFromTreeDlg() override;

    QList<QPair<QString, int>> getCheckedChannels() const;

private:
    void build(const QString& prompt, const QString& acceptText);
    void confirm();

    struct Private;
    std::unique_ptr<Private> p;
};

} // namespace qarn_base
