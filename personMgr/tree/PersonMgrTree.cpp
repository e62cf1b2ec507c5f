#include "tree/PersonMgrTree.h"

#include "shared/Alerts.h"
#include "shared/ModalDialog.h"
#include "tree/OrganizationNameRules.h"

#include <qarn_base/BaseTools.h>
#include <qarn_base/TreeItem.h>
#include <qarn_base/TreeItemOperWt.h>
#include <qarn_base/XMessageBox.h>
#include <qarn_data/PersonData.h>

#include <QUuid>

using qarn_base::BaseTools;
using qarn_base::ItemModifyDlg;
using qarn_base::TreeItem;
using qarn_base::TreeItemOperWt;
using qarn_base::XMessageBox;
using qarn_data::OrganizationInfo;
using qarn_data::PersonData;

namespace qarn_personMgr
{

namespace
{
enum Column { NameColumn = 0 };
constexpr int NameMaxLength = 20;
} // namespace

PersonMgrTree::PersonMgrTree(QWidget* parent) : PersonTree(parent, nullptr)
{
    setMouseTracking(true);
}

void PersonMgrTree::slotAddNewOrganization()
{
    const TreeItem* item = getCurSelTreeItem();
    if (item == nullptr)
        alertWarning(tr("Please select which organization to add to"));
    else
        showOrganizationModifyDlg(ItemModifyDlg::AddItem, item);
}

void PersonMgrTree::slotDeleteCurSelOrganization()
{
    TreeItem* item = getCurSelTreeItem();
    if (item == nullptr)
        alertWarning(tr("Please select which organization to delete"));
    else if (PersonData::instance().isRootOrganization(item->getId()))
        alertWarning(tr("root organization can not be deleted"));
    else
        deleteOrganizationItem(item);
}

TreeItemOperWt* PersonMgrTree::createTreeItemOperWt(TreeItem* item)
{
    // By id: the item may be another object, or gone, when the button is pressed.
    const QString id = item->getId();
    auto* operWt =
        new TreeItemOperWt(PersonData::instance().isRootOrganization(id), false, true, true, nullptr);
    connect(operWt, &TreeItemOperWt::signalEditBtClicked, this,
            [this, id] { showOrganizationModifyDlg(ItemModifyDlg::EditItem, getOrganizationItem(id)); });
    connect(operWt, &TreeItemOperWt::signalDeleteBtClicked, this,
            [this, id] { deleteOrganizationItem(getOrganizationItem(id)); });
    return operWt;
}

bool PersonMgrTree::isOrganizationNameExist(const QString& name, const QString& id) const
{
    const TreeItem* parentItem = id.isEmpty() ? getCurSelTreeItem() : getOrganizationParentItem(id);
    if (parentItem == nullptr)
        return false;
    QList<SiblingOrganization> siblings;
    for (int i = 0; i < parentItem->childCount(); ++i) {
        if (const auto* child = dynamic_cast<const TreeItem*>(parentItem->child(i)))
            siblings.append({child->getId(), child->text(NameColumn)});
    }
    return isSiblingNameTaken(siblings, name, id);
}

QString PersonMgrTree::makeDefaultOrganizationName(const TreeItem* parentItem) const
{
    QSet<QString> names;
    for (int i = 0; parentItem != nullptr && i < parentItem->childCount(); ++i)
        names.insert(parentItem->child(i)->text(NameColumn));
    return defaultOrganizationName(tr("New Organization"), names);
}

void PersonMgrTree::showOrganizationModifyDlg(ModifyType modifyType, const TreeItem* item)
{
    if (item == nullptr)
        return;
    const bool adds = modifyType == ItemModifyDlg::AddItem;
    OrganizationInfo record =
        adds ? OrganizationInfo{QString(), item->getId(), makeDefaultOrganizationName(item)}
             : OrganizationInfo{item->getId(), item->getParentId(), item->getName()};
    ModalDialog<ItemModifyDlg> dialog(
        [this](const QString& name, const QString& id) { return isOrganizationNameExist(name, id); },
        BaseTools::instance().getRootParentWt(this));
    dialog->setNameMaxLength(NameMaxLength);
    dialog->setModifyType(modifyType, adds ? tr("Add Organization") : tr("Edit Organization"), record.name,
                          record.id);
    connect(&*dialog, &ItemModifyDlg::signalAddItem, this, [&](const QString& name, bool keepAdding) {
        addOrganizationFromDlg(record, *dialog, name, keepAdding);
    });
    connect(&*dialog, &ItemModifyDlg::signalEditItem, this, [&record](const QString&, const QString& name) {
        record.name = name;
        PersonData::instance().updateOrganization(record);
    });
    dialog.exec();
}

void PersonMgrTree::addOrganizationFromDlg(OrganizationInfo& record, ItemModifyDlg& dialog,
                                           const QString& name, bool keepAdding)
{
    record.id = QUuid::createUuid().toString();
    record.name = name;
    if (!PersonData::instance().addOrganization(record))
        return;
    if (TreeItem* added = getOrganizationItem(record.id))
        expandItemToRootItem(added);
    if (keepAdding)
        dialog.setItemName(makeDefaultOrganizationName(getOrganizationItem(record.parentId)));
}

void PersonMgrTree::deleteOrganizationItem(TreeItem* item)
{
    if (item == nullptr)
        return;
    QWidget* root = BaseTools::instance().getRootParentWt(this);
    const QStringList ids = getChildItemIdsRecursively(item, true, false);
    if (PersonData::instance().isOrganizationsHasPersons(ids)) {
        XMessageBox::information(root, tr("organization has persons, can not be deleted"), XMessageBox::Ok,
                                 false);
        return;
    }
    const auto answer = XMessageBox::question(root, tr("Do you want to delete the select organization?"),
                                              XMessageBox::Ok | XMessageBox::Cancel, false);
    if (answer == XMessageBox::Ok)
        PersonData::instance().deleteOrganizations(ids);
}

} // namespace qarn_personMgr
