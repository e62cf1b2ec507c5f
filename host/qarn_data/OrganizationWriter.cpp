#include "OrganizationWriter.h"

#include "Announcing.h"
#include "CustomFieldTable.h"
#include "NumberRanges.h"
#include "OrganizationTable.h"
#include "WriteSession.h"

#include <qarn_data/DataSignals.h>

#include <QCoreApplication>
#include <QSet>
#include <QUuid>

#include <algorithm>

namespace qarn_data
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("qarn_data::OrganizationWriter", text);
}

QString objectionToNew(const OrganizationIndex& organizations, const OrganizationInfo& info)
{
    if (info.id.isEmpty())
        return tr("%1: it has no id.").arg(info.name);
    if (organizations.contains(info.id))
        return tr("%1: the id is taken.").arg(info.name);
    if (!organizations.contains(info.parentId))
        return tr("%1: the organization above it does not exist; choose another one.").arg(info.name);
    return {};
}

QString objectionToUpdate(const OrganizationIndex& organizations, const OrganizationInfo& info)
{
    if (!organizations.contains(info.id))
        return tr("%1 no longer exists.").arg(info.name);
    const bool isRoot = info.id == organizations.rootId();
    if (isRoot && info.parentId.isEmpty())
        return {};
    if (isRoot)
        return tr("%1 is the top organization and stays at the top.").arg(info.name);
    if (!organizations.contains(info.parentId))
        return tr("%1: the organization above it does not exist; choose another one.").arg(info.name);
    if (organizations.isSameOrBelow(info.parentId, info.id))
        return tr("%1 cannot stand below itself; choose another organization.").arg(info.name);
    return {};
}

QString objectionToDeletion(const RegisterState& state, const QStringList& ids)
{
    const OrganizationIndex& organizations = state.organizations;
    const QSet<QString> chosen(ids.cbegin(), ids.cend());
    for (const QString& id : ids) {
        const QString name = organizations.info(id).name;
        if (id == organizations.rootId())
            return tr("%1 is the top organization and cannot be deleted.").arg(name);
        if (state.persons.anyIn({id}))
            return tr("%1 still holds persons; move or delete them first.").arg(name);
        const QStringList children = organizations.children(id);
        for (const QString& child : children) {
            if (!chosen.contains(child))
                return tr("%1 still holds %2; delete or move that first.")
                    .arg(name, organizations.info(child).name);
        }
    }
    return {};
}

// Children before their parents, as the database demands.
QVector<qint64> deepestFirst(const OrganizationIndex& organizations, const QStringList& ids)
{
    QVector<QPair<int, qint64>> byDepth;
    for (const QString& id : ids)
        byDepth.append({-organizations.names(id).size(), organizations.number(id)});
    std::sort(byDepth.begin(), byDepth.end());
    QVector<qint64> numbers;
    for (const auto& entry : qAsConst(byDepth))
        numbers.append(entry.second);
    return numbers;
}

QStringList knownOnce(const OrganizationIndex& organizations, const QStringList& ids)
{
    QStringList known;
    QSet<QString> seen;
    for (const QString& id : ids) {
        if (organizations.contains(id) && !seen.contains(id)) {
            seen.insert(id);
            known.append(id);
        }
    }
    return known;
}

} // namespace

bool addOrganization(const OrganizationInfo& organization)
{
    QString failure;
    {
        WriteSession session(tr("The organization could not be added"));
        if (session.begin()) {
            const OrganizationIndex& organizations = session.state().organizations;
            const StoredOrganization added{organizations.lastNumber() + 1, organization};
            const QString objection = objectionToNew(organizations, organization);
            if (!objection.isEmpty())
                session.refuse(objection);
            else if (session.check(OrganizationTable(session.store())
                                       .insert(added, organizations.number(organization.parentId))))
                session.commit(ChangeKind::OrganizationsAdded, toRanges({added.number}),
                               [&](RegisterState& state) { state.organizations.put(added); });
        }
        failure = session.failure();
    }
    tellFailure(failure);
    emit DataSignals::instance().signalAddOrganizationToLocalDB(organization, failure.isEmpty());
    return failure.isEmpty();
}

bool updateOrganization(const OrganizationInfo& organization)
{
    QString failure;
    {
        WriteSession session(tr("The organization could not be changed"));
        if (session.begin()) {
            const OrganizationIndex& organizations = session.state().organizations;
            const StoredOrganization changed{organizations.number(organization.id), organization};
            const QString objection = objectionToUpdate(organizations, organization);
            if (!objection.isEmpty())
                session.refuse(objection);
            else if (session.check(OrganizationTable(session.store())
                                       .update(changed, organizations.number(organization.parentId))))
                session.commit(ChangeKind::OrganizationUpdated, toRanges({changed.number}),
                               [&](RegisterState& state) { state.organizations.put(changed); });
        }
        failure = session.failure();
    }
    tellFailure(failure);
    emit DataSignals::instance().signalUpdateOrganizationInLocalDB(organization, failure.isEmpty());
    return failure.isEmpty();
}

bool deleteOrganizations(const QStringList& ids)
{
    QStringList known;
    QString failure;
    {
        WriteSession session(tr("Organizations could not be deleted"));
        if (session.begin()) {
            known = knownOnce(session.state().organizations, ids);
            const QString objection = objectionToDeletion(session.state(), known);
            const QVector<qint64> numbers = deepestFirst(session.state().organizations, known);
            OrganizationTable table(session.store());
            const auto remove = [&table](qint64 number) { return table.remove(number); };
            if (!objection.isEmpty())
                session.refuse(objection);
            else if (!numbers.isEmpty() &&
                     session.check(std::all_of(numbers.cbegin(), numbers.cend(), remove)))
                session.commit(ChangeKind::OrganizationsDeleted, toRanges(numbers),
                               [&](RegisterState& state) {
                                   for (const qint64 number : numbers)
                                       state.organizations.remove(number);
                               });
        }
        failure = session.failure();
    }
    tellFailure(failure);
    if (!failure.isEmpty() || !known.isEmpty())
        emit DataSignals::instance().signalDeleteOrganizationsFromLocalDB(failure.isEmpty() ? known : ids,
                                                                          failure.isEmpty());
    return failure.isEmpty();
}

namespace
{

QStringList cleanedPath(const QStringList& path)
{
    QStringList levels;
    for (const QString& level : path) {
        const QString name = level.trimmed();
        if (!name.isEmpty())
            levels.append(name);
    }
    return levels;
}

/// Follows `path` as far as it exists; what remains of it is left in `path`.
QString deepestExisting(const OrganizationIndex& organizations, QStringList* path)
{
    QString id = organizations.rootId();
    if (!path->isEmpty() && path->first() == organizations.info(id).name)
        path->removeFirst();
    while (!path->isEmpty()) {
        const QString child = organizations.childNamed(id, path->first());
        if (child.isEmpty())
            break;
        id = child;
        path->removeFirst();
    }
    return id;
}

QVector<StoredOrganization> chain(const OrganizationIndex& organizations, QString parentId,
                                  const QStringList& names)
{
    QVector<StoredOrganization> levels;
    qint64 number = organizations.lastNumber();
    for (const QString& name : names) {
        levels.append({++number, {QUuid::createUuid().toString(), parentId, name}});
        parentId = levels.last().info.id;
    }
    return levels;
}

bool insertChain(WriteSession& session, const QVector<StoredOrganization>& levels)
{
    OrganizationTable table(session.store());
    qint64 parent = session.state().organizations.number(levels.first().info.parentId);
    for (const StoredOrganization& level : levels) {
        if (!table.insert(level, parent))
            return false;
        parent = level.number;
    }
    return true;
}

} // namespace

QString createOrganization(const QStringList& path)
{
    QStringList missing = cleanedPath(path);
    QString id = Register::instance().read(
        [&missing](const RegisterState& state) { return deepestExisting(state.organizations, &missing); });
    if (missing.isEmpty() && !id.isEmpty())
        return id;

    QVector<StoredOrganization> levels;
    QString failure;
    bool isStored = false;
    {
        WriteSession session(tr("The organization could not be made"));
        if (session.begin()) {
            missing = cleanedPath(path);
            id = deepestExisting(session.state().organizations, &missing);
            levels = chain(session.state().organizations, id, missing);
            QVector<qint64> numbers;
            for (const StoredOrganization& level : qAsConst(levels))
                numbers.append(level.number);
            isStored = levels.isEmpty() ||
                       (session.check(insertChain(session, levels)) &&
                        session.commit(ChangeKind::OrganizationsAdded, toRanges(numbers),
                                       [&levels](RegisterState& state) {
                                           for (const StoredOrganization& level : qAsConst(levels))
                                               state.organizations.put(level);
                                       }));
        }
        failure = session.failure();
    }
    tellFailure(failure);
    for (const StoredOrganization& level : qAsConst(levels))
        emit DataSignals::instance().signalAddOrganizationToLocalDB(level.info, isStored);
    if (!isStored)
        return {};
    return levels.isEmpty() ? id : levels.last().info.id;
}

void resetCustomFields(const QStringList& names)
{
    const QStringList cleaned = CustomFields::cleaned(names);
    QString failure;
    {
        WriteSession session(tr("The custom fields could not be changed"));
        if (session.begin() && session.check(CustomFieldTable(session.store()).replace(cleaned))) {
            QSet<QString> removed = session.state().fields.removedNames();
            for (const QString& name : session.state().fields.names())
                removed.insert(name);
            removed.subtract(QSet<QString>(cleaned.cbegin(), cleaned.cend()));
            session.commit(ChangeKind::CustomFieldsReset, QString(),
                           [&](RegisterState& state) { state.redefineFields(cleaned, removed); });
        }
        failure = session.failure();
    }
    tellFailure(failure);
    if (failure.isEmpty())
        emit DataSignals::instance().signalResetCustomFields(cleaned);
}

} // namespace qarn_data
