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

private:
    std::unique_ptr<Ui::PersonExtraInfoWt> m_ui;
};

} // namespace qarn_personMgr
