#include "tree/ChangePersonsOrganizationDlg.h"
#include "ui_ChangePersonsOrganizationDlg.h"

#include "shared/Alerts.h"

#include <qarn_base/SearchTreeTools.h>

#include <QKeyEvent>

namespace qarn_personMgr
{

ChangePersonsOrganizationDlg::ChangePersonsOrganizationDlg(QWidget* parent)
    : CommonDialog(parent, false, true),
      m_ui(std::make_unique<Ui::ChangePersonsOrganizationDlg>())
{
    m_ui->setupUi(this);
    setTitle(tr("Change Persons Organization"));
    new qarn_base::SearchTreeTools(m_ui->searchWt, m_ui->treeWidget, this);
    m_ui->treeWidget->setFocus();
    connect(m_ui->okBt, &QPushButton::clicked, this, &ChangePersonsOrganizationDlg::validate);
    connect(m_ui->cancelBt, &QPushButton::clicked, this, &ChangePersonsOrganizationDlg::reject);
}

ChangePersonsOrganizationDlg::~ChangePersonsOrganizationDlg() = default;

QString ChangePersonsOrganizationDlg::getSelOrganizationId() const
{
    return m_ui->treeWidget->getCurSelOrganizationId();
}

bool ChangePersonsOrganizationDlg::isRetainOld() const
{
    return !m_ui->retainOld->isChecked();
}

void ChangePersonsOrganizationDlg::validate()
{
    if (!getSelOrganizationId().isEmpty())
        accept();
    else
        alertWarning(tr("Please Select organization to move persons"));
}

void ChangePersonsOrganizationDlg::keyPressEvent(QKeyEvent* event)
{
    // Return and Escape belong to the search while it has the focus.
    if (m_ui->searchWt->searchLineEtHasFocus())
        event->ignore();
    else
        CommonDialog::keyPressEvent(event);
}

} // namespace qarn_personMgr
