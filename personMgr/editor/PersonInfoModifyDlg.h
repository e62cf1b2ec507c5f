#pragma once

#include <qarn_base/CommonDialog.h>

#include <memory>

namespace qarn_data
{
struct PersonInfo;
}

namespace qarn_personMgr
{

class PersonInfoModifyWt;

namespace Ui
{
class PersonInfoModifyDlg;
}

/// The dialog in which one person is added or changed; opened by the page's "Add" and by a row's edit button.
/// What the store answers is not looked at: the page follows the store's notifications.
class PersonInfoModifyDlg : public qarn_base::CommonDialog
{
    Q_OBJECT
public:
    enum Mode { AddMode = 0, EditMode = 1 };

    explicit PersonInfoModifyDlg(QWidget* parent);
    ~PersonInfoModifyDlg() override;

    /// Called once, before exec(). `mode` is a Mode; with any other the main button only closes the dialog.
    void init(int mode, const qarn_data::PersonInfo& info);

private:
    void slotAddBtClicked();
    void slotAddContinuouslyBtClicked();

    std::unique_ptr<Ui::PersonInfoModifyDlg> m_ui;
    PersonInfoModifyWt* m_modifyWt; ///< owned by the scroll area
    int m_mode = AddMode;
};

} // namespace qarn_personMgr
