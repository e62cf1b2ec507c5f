#pragma once

#include "form/PersonMgrForm.h"
#include "table/PersonInfoWt.h"
#include "table/PersonsTableWt.h"
#include "tree/PersonMgrTree.h"

#include "ModalDriver.h"
#include "TestPersons.h"
#include "TestStore.h"

#include <qarn_base/TreeItem.h>
#include <qarn_data/PersonData.h>
#include <qarn_worker/SystemAssistant.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QProcess>
#include <QSignalSpy>
#include <QtTest>

/// The page in a window over a store of its own, and the hands of an operator. Organizations: "east" and
/// "west" below the root, "inner" below "east".
class PageFixture
{
public:
    PageFixture()
    {
        root = data().getRootOrganizationId();
        data().addOrganization({"east", root, "East"});
        data().addOrganization({"inner", "east", "Inner"});
        data().addOrganization({"west", root, "West"});
    }
    ~PageFixture() { delete form.data(); }

    static qarn_data::PersonData& data() { return qarn_data::PersonData::instance(); }

    /// Persons whose ids and serial numbers start with `prefix`.
    void addPersons(int count, const QString& organizationId, const QString& prefix = QStringLiteral("P"))
    {
        QList<qarn_data::PersonInfo> persons;
        for (int i = 1; i <= count; ++i)
            persons.append(makePerson(prefix + QString::number(i),
                                      QStringLiteral("Person ") + prefix + QString::number(i),
                                      organizationId));
        QVERIFY(data().addPersons(persons));
    }

    void open(const QSize& size = QSize(1280, 720))
    {
        form = new qarn_personMgr::PersonMgrForm;
        form->resize(size);
        form->show();
        QVERIFY(QTest::qWaitForWindowExposed(form));
        form->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(form));
    }

    template <class T>
    T* child(const char* name) const
    {
        T* found = form->findChild<T*>(QLatin1String(name));
        if (found == nullptr)
            qFatal("the page has no %s", name);
        return found;
    }

    void click(const char* button) const
    {
        QTest::mouseClick(child<QAbstractButton>(button), Qt::LeftButton);
    }
    void check(const char* box) const { pressBox(child<QCheckBox>(box)); }
    void type(const char* edit, const QString& text) const
    {
        auto* line = child<QLineEdit>(edit);
        line->setFocus();
        line->selectAll();
        QTest::keyClicks(line, text);
    }

    qarn_personMgr::PersonMgrTree* tree() const { return child<qarn_personMgr::PersonMgrTree>("treeWidget"); }
    void selectOrganization(const QString& id) const
    {
        QTreeWidgetItem* item = tree()->getOrganizationItem(id);
        QVERIFY(item != nullptr);
        tree()->expandItemToRootItem(item);
        tree()->scrollToItem(item);
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, tree()->visualItemRect(item).center());
    }

    qarn_personMgr::PersonsTableWt* table() const
    {
        return form->findChild<qarn_personMgr::PersonsTableWt*>();
    }
    QList<qarn_personMgr::PersonInfoWt*> rows() const
    {
        QList<qarn_personMgr::PersonInfoWt*> rows;
        for (int i = 0; i < table()->layout()->count(); ++i) {
            QWidget* widget = table()->layout()->itemAt(i)->widget();
            if (auto* row = qobject_cast<qarn_personMgr::PersonInfoWt*>(widget))
                rows.append(row);
        }
        return rows;
    }
    QStringList ids() const
    {
        QStringList ids;
        for (const auto* row : rows())
            ids.append(row->getPersonInfo().id);
        return ids;
    }
    QString label(int row, const char* name) const
    {
        return rows().at(row)->findChild<QLabel*>(QLatin1String(name))->text();
    }
    QString orderNum(int row) const { return rows().at(row)->findChild<QCheckBox*>("orderNum")->text(); }
    void checkRow(int row) const { pressBox(rows().at(row)->findChild<QCheckBox*>("orderNum")); }

    /// The texts of all alerts so far.
    QStringList alertTexts() const
    {
        QStringList texts;
        for (const QList<QVariant>& alert : alerts)
            texts.append(alert.at(1).toString());
        return texts;
    }

    /// Lets another process change the store.
    void otherOperator(const QStringList& words) const
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedChannels);
        process.start(QStringLiteral(OTHER_OPERATOR), QStringList(store.filePath()) + words);
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 0);
    }

    TestStore store;
    QString root;
    QPointer<qarn_personMgr::PersonMgrForm> form;
    ModalDriver driver;
    QSignalSpy alerts{&qarn_worker::SystemAssistant::instance(),
                      &qarn_worker::SystemAssistant::signalMessageAlert};

private:
    static void pressBox(QCheckBox* box)
    {
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    }
};
