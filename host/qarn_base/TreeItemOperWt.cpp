#include <qarn_base/TreeItemOperWt.h>

#include "OperBt.h"

#include <QHBoxLayout>

namespace qarn_base
{

TreeItemOperWt::TreeItemOperWt(bool isRoot, bool showAdd, bool showEdit, bool showDelete, QWidget* parent)
    : QWidget(parent)
{
    setMouseTracking(true); // so that moves over it reach the tree
    auto* addBt = new OperBt(OperBt::Kind::Add, this);
    auto* editBt = new OperBt(OperBt::Kind::Edit, this);
    auto* deleteBt = new OperBt(OperBt::Kind::Delete, this);
    addBt->setVisible(showAdd);
    editBt->setVisible(showEdit);
    deleteBt->setVisible(showDelete && !isRoot);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 4, 0);
    layout->setSpacing(4);
    layout->addStretch();
    for (OperBt* button : {addBt, editBt, deleteBt}) {
        layout->addWidget(button);
        // They come and go with the mouse; the tree has keys for them.
        button->setFocusPolicy(Qt::NoFocus);
        button->setAutoDefault(false);
    }

    connect(addBt, &QPushButton::clicked, this, &TreeItemOperWt::signalAddBtClicked);
    connect(editBt, &QPushButton::clicked, this, &TreeItemOperWt::signalEditBtClicked);
    connect(deleteBt, &QPushButton::clicked, this, &TreeItemOperWt::signalDeleteBtClicked);
}

} // namespace qarn_base
