#pragma once

#include <QDialog>
#include <QPointer>

#include <memory>
#include <utility>

namespace qarn_personMgr
{

/// Runs a dialog for the time of one command. The dialog's parent may go while it is open, for instance
/// when the client quits; the dialog goes with it then, which a dialog on the stack would not survive.
template <class Dialog>
class ModalDialog
{
public:
    template <class... Args>
    explicit ModalDialog(Args&&... args) : m_dialog(new Dialog(std::forward<Args>(args)...))
    {
    }
    ~ModalDialog() { const std::unique_ptr<Dialog> remaining(m_dialog.data()); }
    Q_DISABLE_COPY(ModalDialog)

    Dialog* operator->() const { return m_dialog; }
    Dialog& operator*() const { return *m_dialog; }

    /// True when the operator accepted. After false nothing may be touched that the parent owned.
    bool exec() { return m_dialog->exec() == QDialog::Accepted && m_dialog; }

private:
    QPointer<Dialog> m_dialog;
};

} // namespace qarn_personMgr
