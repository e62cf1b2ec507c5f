#pragma once

#include <XCOMMON/XWidget.h>
#include <qarn_data/PersonInfo.h>

#include <QList>
#include <QStringList>

class QVBoxLayout;

namespace qarn_data
{
struct OrganizationInfo;
}

namespace qarn_personMgr
{

class PersonInfoWt;

/// The persons of one page, a row each. Rows are used again from page to page. Column header, check-all
/// box and paging belong to the form.
class PersonsTableWt : public XCOMMON::XWidget
{
    Q_OBJECT
public:
    explicit PersonsTableWt(QWidget* parent);

    /// startNum: order number of the first row.
    void setPersons(const QList<qarn_data::PersonInfo>& persons, int startNum);

    Qt::CheckState checkState() const; ///< of all rows together
    void setAllChecked(bool checked);  ///< emits nothing
    QStringList getCheckedPersonIds() const;
    QList<qarn_data::PersonInfo> getCheckedPersons() const;

    /// Gives the rows of these persons all values of `info` but id and organization.
    void updatePersons(const qarn_data::PersonInfo& info, const QStringList& personIds);
    void updateOrganizationName(const QString& organizationId, const QString& name);

signals:
    void signalCheckState(Qt::CheckState state); ///< the operator checked or unchecked a row

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PersonInfoWt* createRow(const qarn_data::PersonInfo& person);
    void removeLastRow();
    void selectRow(PersonInfoWt* row);
    void followOrganization(const qarn_data::OrganizationInfo& organization, bool success);

    QList<PersonInfoWt*> m_rows; ///< in the order shown; owned as children
    PersonInfoWt* m_curSelRow = nullptr;
    QVBoxLayout* m_layout; ///< the rows and a stretch at the end
};

} // namespace qarn_personMgr
