#include <qarn_base/EditOperWt.h>

#include "OperBt.h"

#include <QHBoxLayout>

namespace qarn_base
{

EditOperWt::EditOperWt(const QString& id, QWidget* parent) : TableOperWt(parent), m_id(id)
{
    auto* editBt = new OperBt(OperBt::Kind::Edit, this);
    auto* deleteBt = new OperBt(OperBt::Kind::Delete, this);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 0, 10, 0);
    layout->setSpacing(12);
    layout->addWidget(editBt);
    layout->addWidget(deleteBt);
    layout->addStretch();
    connect(editBt, &QPushButton::clicked, this, [this] { emit signalEditBtClicked(m_id); });
    connect(deleteBt, &QPushButton::clicked, this, [this] { emit signalDeleteBtClicked(m_id); });
}

} // namespace qarn_base
