#pragma once

#include <QWidget>
#include <memory>

namespace qarn_data
{
struct PersonInfo;
}

namespace qarn_personMgr
{

namespace Ui
{
class PersonExtraInfoWt;
}

/// The "Extra Info" section of the person editor: what is not needed to recognise a face.
class PersonExtraInfoWt : public QWidget
{
    Q_OBJECT
public:
    explicit PersonExtraInfoWt(QWidget* parent = nullptr);
    ~PersonExtraInfoWt() override;

    void setPersonInfo(const qarn_data::PersonInfo& info); ///< an invalid date leaves its input as it is
    void getPersonInfo(qarn_data::PersonInfo& info) const;

protected:
    /// Keeps the wheel, which is to scroll the form, from changing a date that has not the focus.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::unique_ptr<Ui::PersonExtraInfoWt> m_ui;
};

} // namespace qarn_personMgr
