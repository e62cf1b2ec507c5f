#pragma once

#include <qarn_base/CommonDialog.h>

#include <QString>
#include <memory>

namespace qarn_personMgr
{

namespace Ui
{
class ChangePersonsOrganizationDlg;
}

/// Asks where checked persons are to be moved, and whether they leave their present organization. Changes
/// nothing itself; the main form does when it is accepted.
class ChangePersonsOrganizationDlg : public qarn_base::CommonDialog
{
    Q_OBJECT
public:
    explicit ChangePersonsOrganizationDlg(QWidget* parent);
    ~ChangePersonsOrganizationDlg() override;

    QString getSelOrganizationId() const; ///< not empty once accepted
    /// The box asks whether to remove the persons from where they are; this tells whether to keep them.
    bool isRetainOld() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void validate();

    std::unique_ptr<Ui::ChangePersonsOrganizationDlg> m_ui;
};

} // namespace qarn_personMgr
