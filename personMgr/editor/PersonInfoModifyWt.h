#pragma once

#include <XCOMMON/XWidget.h>
#include <qarn_data/PersonInfo.h>

#include <memory>

class QScrollArea;

namespace qarn_base
{
class DatetimeSpanSelWt;
}

namespace qarn_personMgr
{

namespace Ui
{
class PersonInfoModifyWt;
}

/// The form of the person editor: edits one record that it keeps. The record's organization is never touched.
class PersonInfoModifyWt : public XCOMMON::XWidget
{
    Q_OBJECT
public:
    explicit PersonInfoModifyWt(QScrollArea* scrollArea); ///< scrolled to a section that unfolds
    ~PersonInfoModifyWt() override;

    void setPersonInfo(const qarn_data::PersonInfo& info);
    bool checkInput(); ///< false: the reason is shown at the field
    /// Gathers the form into the record; a new record gets its id here.
    qarn_data::PersonInfo& getPersonInfo();
    /// Makes the form ready for the next, similar person: keeps organization, sex, validity, remarks, job and
    /// the dates.
    void clearInput();

public slots:
    void slotCustomInfoExpandBtClicked(bool expanded);
    void slotExtraInfoExpandBtClicked(bool expanded);
    void slotValidTimeRangeLineEtClicked();
    void slotDateTimeSelectedChanged(const QDateTime& startDateTime, const QDateTime& endDateTime);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void setUpFields();
    void makeConnections();
    void showFaceSlot();
    void showInputError(const QWidget* field, const QString& text) const;
    int heightToExpand(const QWidget* section, const QWidget* otherSection) const;
    int heightToFold(const QWidget* section, const QWidget* otherSection) const;

    std::unique_ptr<Ui::PersonInfoModifyWt> m_ui;
    qarn_data::PersonInfo m_personInfo;
    int m_baseHeight = -1; ///< pixels, with both sections folded; -1 before the first resize
    QScrollArea* m_scrollArea;
    qarn_base::DatetimeSpanSelWt* m_timeSpanSelWt; ///< owned by this widget
};

} // namespace qarn_personMgr
