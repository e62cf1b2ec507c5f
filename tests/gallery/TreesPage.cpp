#include "Pages.h"

#include <qarn_base/AbilityDevsTree.h>
#include <qarn_base/PersonTree.h>
#include <qarn_base/SearchBox.h>
#include <qarn_base/SearchTreeTools.h>
#include <qarn_base/TreeItem.h>
#include <qarn_base/TreeItemOperWt.h>

#include <QHBoxLayout>
#include <QLineEdit>

namespace
{

constexpr int faceList = 16;

/// Shows edit and delete buttons on its items.
class EditableTree : public qarn_base::PersonTree
{
protected:
    qarn_base::TreeItemOperWt* createTreeItemOperWt(qarn_base::TreeItem* item) override
    {
        return new qarn_base::TreeItemOperWt(item->parent() == nullptr, false, true, true);
    }
};

QLayout* makeOrganizations(const QString& searched)
{
    auto* column = new QVBoxLayout;
    auto* box = new qarn_base::SearchBox;
    box->setFixedHeight(28);
    auto* tree = new EditableTree;
    tree->setHeaderHidden(true);
    tree->expandAll();
    tree->setCurSelItem(tree->topLevelItem(0)->child(1));
    new qarn_base::SearchTreeTools(box, tree, tree);
    box->findChild<QLineEdit*>(QStringLiteral("searchLineEt"))->setText(searched);
    column->addWidget(box);
    column->addWidget(tree);
    return column;
}

QLayout* makeDevices()
{
    auto* column = new QVBoxLayout;
    auto* tree = new qarn_base::AbilityDevsTree;
    tree->setStyleSheet(QStringLiteral("QTreeWidget{background-color:#0e1622;}")); // as the dialogs set it
    tree->buildTree(faceList, 0, true, true);
    tree->expandAll();
    if (tree->topLevelItemCount() > 0)
        tree->topLevelItem(0)->child(0)->setCheckState(0, Qt::Checked);
    if (tree->topLevelItemCount() > 2)
        tree->topLevelItem(2)->setCheckState(0, Qt::Checked);
    column->addWidget(tree);
    auto* flat = new XCOMMON::XTreeWidget;
    flat->setHeaderHidden(true);
    flat->setRootIsDecorated(false);
    for (const Qt::CheckState state : {Qt::PartiallyChecked, Qt::Checked, Qt::Unchecked}) {
        auto* item = new QTreeWidgetItem(flat, {QStringLiteral("Sel All Columns")});
        item->setCheckState(0, state);
    }
    auto* disabled = new QTreeWidgetItem(flat, {QStringLiteral("disabled")});
    disabled->setCheckState(0, Qt::Checked);
    disabled->setDisabled(true);
    column->addWidget(flat);
    return column;
}

} // namespace

QWidget* makeTreesPage()
{
    auto* page = new QWidget;
    auto* columns = new QHBoxLayout(page);
    columns->setContentsMargins(30, 30, 30, 30);
    columns->setSpacing(30);
    columns->addLayout(makeOrganizations(QString()));
    columns->addLayout(makeOrganizations(QStringLiteral("nor")));
    columns->addLayout(makeDevices());
    return page;
}
