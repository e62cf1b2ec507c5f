#include "form/PersonMgrForm.h"
#include "ui_PersonMgrForm.h"

#include "form/CoveredRun.h"
#include "shared/Alerts.h"
#include "shared/ModalDialog.h"
#include "transfer/ExportPersonsDlg.h"
#include "transfer/ExportPersonsThread.h"
#include "transfer/ImportPersonsDlg.h"
#include "transfer/ImportPersonsThread.h"

#include <XCOMMON/XFileDialog.h>
#include <qarn_base/XMessageBox.h>
#include <qarn_data/PersonData.h>
#include <qarn_worker/DiskManager.h>

#include <QStandardPaths>

using qarn_base::XMessageBox;
using qarn_data::PersonData;
using XCOMMON::XFileDialog;

namespace qarn_personMgr
{

void PersonMgrForm::slotExportPersonsBtClicked()
{
    const QString organization =
        PersonData::instance().getOrganizationName(m_ui->treeWidget->getCurSelOrganizationId());
    if (organization.isEmpty()) {
        alertWarning(tr("Please select whick organization to export persons"));
        return;
    }
    ModalDialog<ExportPersonsDlg> dialog(this);
    dialog->setTitle(tr("Export Organization[%1]Persons").arg(organization));
    if (!dialog.exec())
        return;
    const QString path = askExportPath(dialog->isFaceMode());
    if (!path.isEmpty() && qarn_worker::DiskManager::instance().isPathAvailable(path, true))
        exportPersons(*dialog, path);
}

QString PersonMgrForm::askExportPath(bool faceMode)
{
    const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    if (!faceMode)
        return XFileDialog::getSaveFileName(this, tr("Export Persons"), desktop,
                                            QStringLiteral("CSV(*.csv)"));
    const QString path =
        XFileDialog::getExistingDirectory(this, tr("Select Export Path"), desktop,
                                          XFileDialog::ShowDirsOnly | XFileDialog::DontResolveSymlinks);
    if (!path.contains(QLatin1Char('=')))
        return path;
    alertWarning(tr("path cannot contain="));
    return QString();
}

void PersonMgrForm::exportPersons(const ExportPersonsDlg& dialog, const QString& path)
{
    const QStringList ids = collectOrganizationIds(dialog.isExportChildren());
    ExportPersonsThread* thread = nullptr;
    if (dialog.isFaceMode()) {
        thread = new ExportPersonsThread(ids, dialog.getFaceElements(), path, this);
    } else {
        QStringList titles;
        const int columns = dialog.getColumns(titles);
        thread = new ExportPersonsThread(ids, titles, columns, path, this);
    }
    const CoveredRun run(this, thread, tr("Exporting Persons..."));
    connect(thread, &ExportPersonsThread::signalExportPersonsResult, this, [this, run](bool success) {
        if (!run.end())
            return;
        if (success)
            alertSuccess(tr("Export persons finished"));
        else
            XMessageBox::information(this, tr("Export persons failed"), XMessageBox::Ok, false);
    });
    run.start(this);
}

void PersonMgrForm::slotImportPersonsBtClicked()
{
    ModalDialog<ImportPersonsDlg> dialog(this);
    if (!dialog.exec())
        return;
    ImportPersonsThread* thread = createImport(*dialog);
    if (thread == nullptr)
        return;
    m_bulkOperationRunning = true;
    const CoveredRun run(this, thread, tr("Importing Persons..."));
    connect(thread, &ImportPersonsThread::signalImportPersonsInfoResult, this, [this, run](bool success) {
        m_bulkOperationRunning = false;
        if (run.end() && success)
            searchPersons(1);
    });
    run.start(this, [this] { m_bulkOperationRunning = false; });
}

ImportPersonsThread* PersonMgrForm::createImport(const ImportPersonsDlg& dialog)
{
    if (!dialog.isFaceMode())
        return new ImportPersonsThread(dialog.getPath(), this);
    const QString organizationId = m_ui->treeWidget->getCurSelOrganizationId();
    if (organizationId.isEmpty()) {
        alertWarning(tr("Please select which organization to import persons"));
        return nullptr;
    }
    return new ImportPersonsThread(dialog.getPath(), organizationId, dialog.getNamingRule(), this);
}

} // namespace qarn_personMgr
