#include "form/PersonMgrForm.h"
#include "ui_PersonMgrForm.h"

#include "editor/CustomFieldsModifyDlg.h"
#include "editor/PersonInfoModifyDlg.h"
#include "query/PersonMgrWorker.h"
#include "shared/Alerts.h"
#include "shared/ModalDialog.h"
#include "table/PersonsTableWt.h"
#include "tree/ChangePersonsOrganizationDlg.h"

#include <XCOMMON/XMenu.h>
#include <qarn_base/XMessageBox.h>
#include <qarn_data/PersonData.h>

using qarn_base::XMessageBox;
using qarn_data::PersonData;
using qarn_data::PersonInfo;

namespace qarn_personMgr
{
namespace
{

const char* const menuStyle = "QMenu::item{padding-top:4px;padding-bottom:4px;padding-left:18px;"
                              "padding-right:18px}";

bool confirm(QWidget* parent, const QString& text)
{
    const XMessageBox::Button answer =
        XMessageBox::question(parent, text, XMessageBox::Ok | XMessageBox::Cancel, false);
    return answer == XMessageBox::Ok;
}

} // namespace

void PersonMgrForm::slotAddPersonBtClicked()
{
    const QString organizationId = m_ui->treeWidget->getCurSelOrganizationId();
    if (organizationId.isEmpty()) {
        alertWarning(tr("Please select which organization to add person first"));
        return;
    }
    PersonInfo person;
    person.organizationId = organizationId;
    ModalDialog<PersonInfoModifyDlg> dialog(this);
    dialog->init(PersonInfoModifyDlg::AddMode, person);
    dialog.exec();
}

void PersonMgrForm::slotDeletePersonsBtClicked()
{
    if (m_deleteMenu == nullptr)
        createDeleteMenu();
    m_deleteMenu->exec(m_ui->deletePersonsBt->mapToGlobal(QPoint(0, m_ui->deletePersonsBt->height())));
}

void PersonMgrForm::createDeleteMenu()
{
    m_deleteMenu = new XCOMMON::XMenu(this);
    connect(m_deleteMenu->addAction(tr("Delete Checked Persons")), &QAction::triggered, this,
            &PersonMgrForm::deleteCheckedPersons);
    connect(m_deleteMenu->addAction(tr("Delete All Persons")), &QAction::triggered, this,
            &PersonMgrForm::deleteAllPersons);
    m_deleteMenu->setStyleSheet(QString::fromLatin1(menuStyle));
    m_deleteMenu->setMinimumWidth(m_ui->deletePersonsBt->width());
}

void PersonMgrForm::deleteCheckedPersons()
{
    const QStringList ids = m_personsTable->getCheckedPersonIds();
    if (ids.isEmpty())
        alertWarning(tr("Please select persons to delete"));
    else if (confirm(this, tr("Do you want to delete selected persons?")))
        PersonData::instance().deletePersons(ids);
}

void PersonMgrForm::deleteAllPersons()
{
    const QStringList ids = PersonMgrWorker::instance().cachedPersonIds();
    if (ids.isEmpty())
        alertWarning(tr("There is no person to delete in the table"));
    else if (confirm(this, tr("Do you want to delete all the persons in the table?")))
        PersonData::instance().deletePersons(ids);
}

void PersonMgrForm::slotMovePersonsBtClicked()
{
    const QList<PersonInfo> persons = m_personsTable->getCheckedPersons();
    if (persons.isEmpty()) {
        alertWarning(tr("Please select persons to move"));
        return;
    }
    ModalDialog<ChangePersonsOrganizationDlg> dialog(this);
    if (dialog.exec())
        PersonData::instance().changePersonsOrganization(persons, dialog->getSelOrganizationId(),
                                                         dialog->isRetainOld());
}

void PersonMgrForm::modifyCustomFields()
{
    ModalDialog<CustomFieldsModifyDlg> dialog(this);
    dialog.exec();
}

} // namespace qarn_personMgr
