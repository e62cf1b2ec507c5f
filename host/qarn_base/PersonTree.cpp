#include <qarn_base/PersonTree.h>

#include "OrganizationSync.h"
#include "ScrollAnchor.h"

#include <qarn_base/TreeItem.h>
#include <qarn_data/DataSignals.h>
#include <qarn_data/PersonData.h>

#include <QTimer>

namespace qarn_base
{

using qarn_data::DataSignals;
using qarn_data::OrganizationInfo;
using qarn_data::PersonData;

namespace
{
/// Changes that two threads announce at once may arrive in the wrong order; so soon after the last one the
/// tree is compared with the store.
constexpr int CompareDelay = 200; // milliseconds
} // namespace

struct PersonTree::Private {
    explicit Private(PersonTree& tree) : sync(tree), anchor(tree) {}

    OrganizationSync sync;
    ScrollAnchor anchor;
    QTimer settle;  ///< one scroll correction for a burst of changes
    QTimer compare; ///< with the whole store
};

PersonTree::PersonTree(QWidget* parent, TreeConfig* config)
    : CommonTree(parent, config),
      p(std::make_unique<Private>(*this))
{
    setAccessibleName(tr("Organizations"));
    p->settle.setSingleShot(true);
    p->settle.setInterval(0);
    connect(&p->settle, &QTimer::timeout, this, [this] { p->anchor.restore(); });
    p->compare.setSingleShot(true);
    p->compare.setInterval(CompareDelay);
    connect(&p->compare, &QTimer::timeout, this, &PersonTree::slotReload);

    const DataSignals& dataSignals = DataSignals::instance();
    connect(&dataSignals, &DataSignals::signalAddOrganizationToLocalDB, this, &PersonTree::follow);
    connect(&dataSignals, &DataSignals::signalUpdateOrganizationInLocalDB, this, &PersonTree::follow);
    connect(&dataSignals, &DataSignals::signalDeleteOrganizationsFromLocalDB, this,
            &PersonTree::followDeletion);
    slotReload();
}

PersonTree::~PersonTree() = default;

QString PersonTree::getCurSelOrganizationId() const
{
    const TreeItem* item = getCurSelTreeItem();
    return item != nullptr ? item->getId() : QString();
}

TreeItem* PersonTree::getOrganizationItem(const QString& id) const
{
    return findTreeItem(id);
}

TreeItem* PersonTree::getOrganizationParentItem(const QString& id) const
{
    const TreeItem* item = findTreeItem(id);
    return item != nullptr ? static_cast<TreeItem*>(item->parent()) : nullptr;
}

void PersonTree::follow(const OrganizationInfo& organization, bool success)
{
    if (!success)
        return;
    prepareChange();
    if (!p->sync.apply(organization))
        slotReload();
    p->compare.start();
}

void PersonTree::followDeletion(const QStringList& ids, bool success)
{
    if (!success)
        return;
    prepareChange();
    for (const QString& id : ids)
        p->sync.remove(id);
    p->compare.start();
}

void PersonTree::showEvent(QShowEvent* event)
{
    // The client may have opened another store while the page was out of sight.
    slotReload();
    CommonTree::showEvent(event);
}

void PersonTree::prepareChange()
{
    p->anchor.remember();
    p->settle.start();
}

void PersonTree::slotReload()
{
    const QString root = PersonData::instance().getRootOrganizationId();
    const bool rootIsNew = findTreeItem(root) == nullptr;
    prepareChange();
    p->sync.apply(PersonData::instance().getAllOrganizations());
    TreeItem* rootItem = findTreeItem(root);
    if (rootIsNew && rootItem != nullptr)
        rootItem->setExpanded(true);
}

} // namespace qarn_base
