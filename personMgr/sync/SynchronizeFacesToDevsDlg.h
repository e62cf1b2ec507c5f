#pragma once

#include <qarn_base/CommonDialog.h>

#include <QList>
#include <QPair>

#include <memory>

namespace qarn_personMgr
{
namespace Ui
{
class SynchronizeFacesToDevsDlg;
}

/// Asks which persons go to which device channels. Collects the choices only.
class SynchronizeFacesToDevsDlg : public qarn_base::CommonDialog
{
    Q_OBJECT
public:
    explicit SynchronizeFacesToDevsDlg(QWidget* parent);
    ~SynchronizeFacesToDevsDlg() override;

    bool isOrganizationMode() const;
    bool isSyncChildren() const;
    bool isDeleteRemoved() const;
    QList<QPair<QString, int>> getCheckedChannels() const;

private:
    void connectAll();
    void chooseSource(bool organization);
    void validate();

    std::unique_ptr<Ui::SynchronizeFacesToDevsDlg> ui;
};

} // namespace qarn_personMgr
