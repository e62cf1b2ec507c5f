#include "sync/SynchronizeFacesToDevsDlg.h"

#include "ui_SynchronizeFacesToDevsDlg.h"

#include <qarn_worker/DictDef.h>
#include <qarn_worker/SystemAssistant.h>

using qarn_worker::DictDef;
using qarn_worker::SystemAssistant;

namespace qarn_personMgr
{

namespace
{

constexpr int FaceListAbility = 16;
constexpr char PrimaryButton[] = "common_bt_style1";
constexpr char OtherButton[] = "common_bt_style2";

} // namespace

SynchronizeFacesToDevsDlg::SynchronizeFacesToDevsDlg(QWidget* parent)
    : CommonDialog(parent, false, true),
      ui(std::make_unique<Ui::SynchronizeFacesToDevsDlg>())
{
    ui->setupUi(this);
    setTitle(tr("Synchronize faces to Devs"));
    ui->synchronizeBt->setProperty(PrimaryButton, true);
    ui->cancelBt->setProperty(OtherButton, true);
    ui->treeWt->setStyleSheet(QStringLiteral("QTreeWidget{background-color:#0e1622;}"));
    ui->treeWt->buildTree(FaceListAbility, 0, true, true);
    ui->organizationChecked->setFocus(); // the choice that is made
    connectAll();
}

SynchronizeFacesToDevsDlg::~SynchronizeFacesToDevsDlg() = default;

void SynchronizeFacesToDevsDlg::connectAll()
{
    connect(ui->personsChecked, &QRadioButton::clicked, this, [this] { chooseSource(false); });
    connect(ui->organizationChecked, &QRadioButton::clicked, this, [this] { chooseSource(true); });
    connect(ui->synchronizeBt, &QPushButton::clicked, this, &SynchronizeFacesToDevsDlg::validate);
    connect(ui->cancelBt, &QPushButton::clicked, this, &SynchronizeFacesToDevsDlg::reject);
}

/// The two buttons stand in different parents, so Qt does not exclude one by the other.
void SynchronizeFacesToDevsDlg::chooseSource(bool organization)
{
    ui->personsChecked->setChecked(!organization);
    ui->organizationChecked->setChecked(organization);
    ui->syncChildrenChecked->setVisible(organization);
}

void SynchronizeFacesToDevsDlg::validate()
{
    if (!getCheckedChannels().isEmpty())
        return accept();
    SystemAssistant::instance().messageAlert(DictDef::instance().warningAlertTitle,
                                             tr("Please Check whick devs to synchronize"));
}

bool SynchronizeFacesToDevsDlg::isOrganizationMode() const
{
    return !ui->personsChecked->isChecked();
}

bool SynchronizeFacesToDevsDlg::isSyncChildren() const
{
    return ui->syncChildrenChecked->isChecked();
}

bool SynchronizeFacesToDevsDlg::isDeleteRemoved() const
{
    return ui->deleteChecked->isChecked();
}

QList<QPair<QString, int>> SynchronizeFacesToDevsDlg::getCheckedChannels() const
{
    return ui->treeWt->getCheckedChannels();
}

} // namespace qarn_personMgr
