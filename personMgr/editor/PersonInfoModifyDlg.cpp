#include "editor/PersonInfoModifyDlg.h"

#include "editor/PersonInfoModifyWt.h"
#include "ui_PersonInfoModifyDlg.h"

#include <qarn_data/PersonData.h>

using qarn_data::PersonData;
using qarn_data::PersonInfo;

namespace qarn_personMgr
{

PersonInfoModifyDlg::PersonInfoModifyDlg(QWidget* parent)
    : CommonDialog(parent),
      m_ui(std::make_unique<Ui::PersonInfoModifyDlg>())
{
    m_ui->setupUi(this);
    m_ui->addBt->setProperty("common_bt_style1", true);
    m_ui->addContinuouslyBt->setProperty("common_bt_style2", true);
    m_ui->cancelBt->setProperty("common_bt_style2", true);

    m_modifyWt = new PersonInfoModifyWt(m_ui->scrollArea);
    m_ui->scrollArea->setWidget(m_modifyWt);
    // Who looks for "cancelBt" by name shall meet this dialog's before the one of the form's period picker.
    m_ui->scrollArea->raise();

    connect(m_ui->addBt, &QPushButton::clicked, this, &PersonInfoModifyDlg::slotAddBtClicked);
    connect(m_ui->addContinuouslyBt, &QPushButton::clicked, this,
            &PersonInfoModifyDlg::slotAddContinuouslyBtClicked);
    connect(m_ui->cancelBt, &QPushButton::clicked, this, &PersonInfoModifyDlg::reject);
}

PersonInfoModifyDlg::~PersonInfoModifyDlg() = default;

void PersonInfoModifyDlg::init(int mode, const PersonInfo& info)
{
    m_mode = mode;
    m_modifyWt->setPersonInfo(info);
    if (mode == AddMode) {
        setTitle(tr("Add Person"));
    } else if (mode == EditMode) {
        setTitle(tr("Edit Person"));
        m_ui->addBt->setText(tr("Save"));
        m_ui->addContinuouslyBt->hide();
    }
}

void PersonInfoModifyDlg::slotAddBtClicked()
{
    if (!m_modifyWt->checkInput())
        return;
    if (m_mode == AddMode)
        PersonData::instance().addPersons({m_modifyWt->getPersonInfo()});
    else if (m_mode == EditMode)
        PersonData::instance().updatePerson(m_modifyWt->getPersonInfo());
    accept();
}

void PersonInfoModifyDlg::slotAddContinuouslyBtClicked()
{
    if (!m_modifyWt->checkInput())
        return;
    PersonData::instance().addPersons({m_modifyWt->getPersonInfo()});
    m_modifyWt->clearInput();
}

} // namespace qarn_personMgr
