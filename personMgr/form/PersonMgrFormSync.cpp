#include "form/PersonMgrForm.h"
#include "ui_PersonMgrForm.h"

#include "form/CoveredRun.h"
#include "shared/Alerts.h"
#include "shared/ModalDialog.h"
#include "sync/SynchronizeFacesThread.h"
#include "sync/SynchronizeFacesToDevsDlg.h"
#include "table/PersonsTableWt.h"

#include <qarn_base/AbilityDevsSelFromTreeDlg.h>
#include <qarn_base/XMessageBox.h>

using qarn_base::AbilityDevsSelFromTreeDlg;
using qarn_base::XMessageBox;

namespace qarn_personMgr
{
namespace
{

constexpr int faceListAbility = 16;
constexpr int noOtherAbility = 0;

} // namespace

void PersonMgrForm::slotSynchronizeToDevBtClicked()
{
    ModalDialog<SynchronizeFacesToDevsDlg> dialog(this);
    if (!dialog.exec())
        return;
    SynchronizeFacesThread* thread = createSyncToDevs(*dialog);
    if (thread == nullptr)
        return;
    const CoveredRun run(this, thread, tr("Exporting Persons..."));
    followSync(thread, run);
    connect(thread, &SynchronizeFacesThread::signalSyncFinished, this, [run] {
        if (run.end())
            alertSuccess(tr("Synchronize persons to devs finished"));
    });
    connect(thread, &SynchronizeFacesThread::signalSyncTimeout, this, [this, run] {
        if (run.end())
            XMessageBox::information(this, tr("sync persons time out"), XMessageBox::Ok, false);
    });
    run.start(this);
}

SynchronizeFacesThread* PersonMgrForm::createSyncToDevs(const SynchronizeFacesToDevsDlg& dialog)
{
    if (dialog.isOrganizationMode()) {
        const QStringList ids = collectOrganizationIds(dialog.isSyncChildren());
        if (!ids.isEmpty())
            return new SynchronizeFacesThread(ids, dialog.getCheckedChannels(), dialog.isDeleteRemoved(),
                                              this);
        alertWarning(tr("Please select organization to synchronize"));
        return nullptr;
    }
    const QList<qarn_data::PersonInfo> persons = m_personsTable->getCheckedPersons();
    if (!persons.isEmpty())
        return new SynchronizeFacesThread(persons, dialog.getCheckedChannels(), dialog.isDeleteRemoved(),
                                          this);
    alertWarning(tr("Please check persons to synchronize"));
    return nullptr;
}

void PersonMgrForm::slotSynchronizeFromDevBtClicked()
{
    const QString organizationId = m_ui->treeWidget->getCurSelOrganizationId();
    if (organizationId.isEmpty()) {
        alertWarning(tr("Please select organization to synchronize faces from devs"));
        return;
    }
    ModalDialog<AbilityDevsSelFromTreeDlg> dialog(
        this, faceListAbility, noOtherAbility, true, tr("Synchronize faces from Devs"),
        tr("Please Check whick devs synchronize faces from"), tr("Synchronize"));
    if (!dialog.exec())
        return;
    m_bulkOperationRunning = true;
    auto* thread =
        new SynchronizeFacesThread(QStringList{organizationId}, dialog->getCheckedChannels(), this);
    const CoveredRun run(this, thread, tr("Exporting Persons..."));
    followSync(thread, run);
    connect(thread, &SynchronizeFacesThread::signalSyncFinished, this, [this, run] {
        m_bulkOperationRunning = false;
        if (!run.end())
            return;
        alertSuccess(tr("Synchronize persons from devs finished"));
        searchPersons(1);
    });
    connect(thread, &SynchronizeFacesThread::signalSyncTimeout, this, [this, run] {
        m_bulkOperationRunning = false;
        if (run.end())
            XMessageBox::information(this, tr("sync persons time out"), XMessageBox::Ok, false);
    });
    run.start(this, [this] { m_bulkOperationRunning = false; });
}

void PersonMgrForm::followSync(SynchronizeFacesThread* thread, const CoveredRun& run)
{
    connect(thread, &SynchronizeFacesThread::signalSyncMsg, this, [run](const QString& msg, bool isNormal) {
        if (!isNormal)
            alertError(msg);
        run.updateDescription(msg);
    });
}

} // namespace qarn_personMgr
