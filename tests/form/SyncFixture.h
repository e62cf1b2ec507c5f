#pragma once

#include "BulkFixture.h"
#include "SimulatedDevice.h"

#include "sync/SynchronizeFacesThread.h"

#include <qarn_base/AbilityDevsTree.h>

#include <memory>

/// The page and a device on the network, and the hands of an operator who synchronises.
class SyncFixture : public BulkFixture
{
public:
    ~SyncFixture() { delete form.data(); } // before the device that it may be talking to

    void startDevice(const QStringList& options = {})
    {
        device = std::make_unique<SimulatedDevice>(options);
        device->addToRegistry();
    }

    void addPersonsWithFaces(int count, const QString& organizationId, const QString& prefix)
    {
        QList<qarn_data::PersonInfo> persons;
        for (int i = 1; i <= count; ++i) {
            const QString id = prefix + QString::number(i);
            persons.append(makePerson(id, QStringLiteral("Person ") + id, organizationId));
            persons.last().faceImage1 = testPhoto(2000, quint32(i));
        }
        QVERIFY(data().addPersons(persons));
    }

    void openOn(const QString& organizationId)
    {
        open();
        selectOrganization(organizationId);
    }

    void sendPersons() { send(true, true); }
    void sendOrganization(bool withChildren = true) { send(false, withChildren); }
    void fetch()
    {
        driver.expect([](QWidget* window) {
            checkAllChannels(window);
            press(window, "okBt");
        });
        click("synchronizeFromDevBt");
    }

    qarn_personMgr::SynchronizeFacesThread* syncThread() const
    {
        return form->findChild<qarn_personMgr::SynchronizeFacesThread*>();
    }

    std::unique_ptr<SimulatedDevice> device;

private:
    void send(bool checkedPersons, bool withChildren)
    {
        driver.expect([checkedPersons, withChildren](QWidget* window) {
            window->findChild<QCheckBox*>("syncChildrenChecked")->setChecked(withChildren);
            if (checkedPersons)
                button(window, "personsChecked")->click();
            checkAllChannels(window);
            press(window, "synchronizeBt");
        });
        click("synchronizeToDevBt");
    }

    static void checkAllChannels(QWidget* window)
    {
        auto* tree = window->findChild<qarn_base::AbilityDevsTree*>("treeWt");
        for (int i = 0; i < tree->topLevelItemCount(); ++i) {
            for (int k = 0; k < tree->topLevelItem(i)->childCount(); ++k)
                tree->topLevelItem(i)->child(k)->setCheckState(0, Qt::Checked);
        }
    }
};
