#pragma once

#include <XCOMMON/PEWidget.h>
#include <qarn_data/PersonInfo.h>

#include <memory>

namespace qarn_personMgr
{

namespace Ui
{
class PersonInfoWt;
}

/// One person of the page: check box with the order number, face, texts, and buttons to edit and delete
/// the person. Keeps its own copy of the record and does not follow the store; its table does.
class PersonInfoWt : public XCOMMON::PEWidget
{
    Q_OBJECT
public:
    enum StyleState { NormalStyle = 0, HoveredStyle = 1, SelectedStyle = 2 };

    PersonInfoWt(const qarn_data::PersonInfo& info, QWidget* parent);
    ~PersonInfoWt() override;

    /// Another person than before starts unchecked.
    void setPersonInfo(const qarn_data::PersonInfo& info);
    qarn_data::PersonInfo getPersonInfo() const;
    void setOrderNum(int num);

    bool isChecked() const;
    void setChecked(bool checked); ///< emits nothing

    void setSelected(bool selected);
    void setStyleState(int state); ///< a StyleState; anything else does nothing

    /// Shows the organization's new name if the person belongs to it.
    void updateOrganization(const QString& organizationId, const QString& name);

signals:
    void signalSelected(qarn_personMgr::PersonInfoWt* wt);
    void signalCheckState(bool checked); ///< the operator clicked the check box

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void showFace();
    void editPerson();
    void deletePerson();

    std::unique_ptr<Ui::PersonInfoWt> m_ui;
    qarn_data::PersonInfo m_personInfo;
    bool m_selected = false;
};

} // namespace qarn_personMgr
