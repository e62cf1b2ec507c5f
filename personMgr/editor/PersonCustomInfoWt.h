#pragma once

#include <QMap>
#include <QWidget>

class QLineEdit;
class QVBoxLayout;

namespace qarn_data
{
struct PersonInfo;
}

namespace qarn_personMgr
{

/// The "Custom Info" section of the person editor: one input for each custom field that is defined when the
/// section is built.
class PersonCustomInfoWt : public QWidget
{
    Q_OBJECT
public:
    explicit PersonCustomInfoWt(QWidget* parent = nullptr);

    /// Inputs whose field has no value in the record keep their text.
    void setPersonInfo(const qarn_data::PersonInfo& info);
    /// Replaces all custom values of the record by what the inputs hold; blank ones are left out.
    void getPersonInfo(qarn_data::PersonInfo& info) const;

private:
    void addRow(QVBoxLayout* layout, const QString& name);

    QMap<QString, QLineEdit*> m_fieldEdits; ///< by field name
};

} // namespace qarn_personMgr
