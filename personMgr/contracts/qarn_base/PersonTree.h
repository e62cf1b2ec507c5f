#pragma once

#include <qarn_base/CommonTree.h>
#include <qarn_base/Export.h>

#include <QString>

namespace qarn_data
{
struct OrganizationInfo;
}

namespace qarn_base
{

/// The organizations of the register as a tree, in step with every change of the store. Keeps expansion,
/// selection and scroll position while it follows.
class QARN_BASE_EXPORT PersonTree : public CommonTree
{
    Q_OBJECT
public:
    explicit PersonTree(QWidget* parent = nullptr, TreeConfig* config = nullptr);
    ~PersonTree() override;

    QString getCurSelOrganizationId() const;                      ///< empty: nothing is selected
    TreeItem* getOrganizationItem(const QString& id) const;       ///< null when unknown
    TreeItem* getOrganizationParentItem(const QString& id) const; ///< null when unknown or the root

public slots:
    void slotReload(); ///< compares with the store that is open now; every change of it is followed anyway

protected:
    void showEvent(QShowEvent* event) override;

private:
    void follow(const qarn_data::OrganizationInfo& organization, bool success);
    void followDeletion(const QStringList& ids, bool success);
    void prepareChange();

    struct Private;
    std::unique_ptr<Private> p;
};

} // namespace qarn_base
