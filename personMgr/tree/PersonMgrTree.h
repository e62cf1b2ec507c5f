#pragma once

#include <qarn_base/ItemModifyDlg.h>
#include <qarn_base/PersonTree.h>

namespace qarn_data
{
struct OrganizationInfo;
}

namespace qarn_personMgr
{

/// The organization tree of the persons page: the host's tree with adding, renaming and deleting. It only
/// calls the data service; the host's tree follows the service's notifications.
class PersonMgrTree : public qarn_base::PersonTree
{
    Q_OBJECT
public:
    explicit PersonMgrTree(QWidget* parent);

public slots:
    void slotAddNewOrganization();       ///< below the selected organization
    void slotDeleteCurSelOrganization(); ///< with all organizations below it

protected:
    qarn_base::TreeItemOperWt* createTreeItemOperWt(qarn_base::TreeItem* item) override;

private:
    using ModifyType = qarn_base::ItemModifyDlg::ModifyType;

    bool isOrganizationNameExist(const QString& name, const QString& id) const;
    QString makeDefaultOrganizationName(const qarn_base::TreeItem* parentItem) const;
    /// `item` is the organization to rename, or the one to add a child to.
    void showOrganizationModifyDlg(ModifyType modifyType, const qarn_base::TreeItem* item);
    void addOrganizationFromDlg(qarn_data::OrganizationInfo& record, qarn_base::ItemModifyDlg& dialog,
                                const QString& name, bool keepAdding);
    void deleteOrganizationItem(qarn_base::TreeItem* item);

    void* m_reserved = nullptr; ///< kept for a later version; nothing uses it
};

} // namespace qarn_personMgr
