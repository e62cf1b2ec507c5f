#pragma once

#include "tree/PersonMgrTree.h"

#include "ModalDriver.h"
#include "TestStore.h"

#include <qarn_base/TreeItem.h>
#include <qarn_base/TreeItemOperWt.h>
#include <qarn_data/PersonData.h>
#include <qarn_worker/SystemAssistant.h>

#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QtTest>

// What the tests of the organization tree share.

inline QString addOrganization(const QString& parentId, const QString& name)
{
    const QString id = QUuid::createUuid().toString();
    if (!qarn_data::PersonData::instance().addOrganization({id, parentId, name}))
        qFatal("organization refused");
    return id;
}

inline void addPerson(const QString& organizationId)
{
    qarn_data::PersonInfo person;
    person.id = QUuid::createUuid().toString();
    person.serialNum = QStringLiteral("S1");
    person.name = QStringLiteral("Ann");
    person.organizationId = organizationId;
    if (!qarn_data::PersonData::instance().addPerson(person))
        qFatal("person refused");
}

inline QStringList childNames(const QString& parentId)
{
    QStringList names;
    const auto all = qarn_data::PersonData::instance().getAllOrganizations();
    for (const qarn_data::OrganizationInfo& info : all) {
        if (info.parentId == parentId)
            names.append(info.name);
    }
    names.sort();
    return names;
}

template <typename Widget>
Widget* child(const QWidget* window, const char* name)
{
    auto* found = window->findChild<Widget*>(QLatin1String(name));
    if (found == nullptr)
        qFatal("no %s", name);
    return found;
}

inline void click(const QWidget* window, const char* name)
{
    QTest::mouseClick(child<QPushButton>(window, name), Qt::LeftButton);
}

inline void typeName(const QWidget* window, const QString& name)
{
    auto* edit = child<QLineEdit>(window, "name");
    edit->selectAll();
    QTest::keyClicks(edit, name);
}

/// The tree in a window, on a new store that holds the root only.
class TreeFixture
{
protected:
    void open()
    {
        using qarn_worker::SystemAssistant;
        m_store = std::make_unique<TestStore>();
        m_window = std::make_unique<QWidget>();
        m_window->resize(300, 400);
        m_tree = new qarn_personMgr::PersonMgrTree(m_window.get());
        m_tree->resize(m_window->size());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        m_modal = std::make_unique<ModalDriver>();
        m_alerts =
            std::make_unique<QSignalSpy>(&SystemAssistant::instance(), &SystemAssistant::signalMessageAlert);
        m_rootId = qarn_data::PersonData::instance().getRootOrganizationId();
        QVERIFY(m_tree->getOrganizationItem(m_rootId) != nullptr);
    }

    void close()
    {
        QCOMPARE(m_modal->pending(), 0);
        m_window.reset();
        m_store.reset();
    }

    void select(const QString& id)
    {
        m_tree->setCurSelItem(m_tree->getOrganizationItem(id));
        QCOMPARE(m_tree->getCurSelOrganizationId(), id);
    }

    /// The buttons on an item, which is selected for it.
    qarn_base::TreeItemOperWt* buttonsOf(const QString& id)
    {
        select(id);
        return qobject_cast<qarn_base::TreeItemOperWt*>(
            m_tree->itemWidget(m_tree->getOrganizationItem(id), 0));
    }

    QString lastAlert() const { return m_alerts->isEmpty() ? QString() : m_alerts->last().at(1).toString(); }

    std::unique_ptr<TestStore> m_store;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<ModalDriver> m_modal;
    std::unique_ptr<QSignalSpy> m_alerts;
    qarn_personMgr::PersonMgrTree* m_tree = nullptr;
    QString m_rootId;
};
