#include "editor/PersonCustomInfoWt.h"

#include "editor/ElidedLabel.h"

#include <qarn_data/PersonData.h>

#include <QHBoxLayout>
#include <QLineEdit>
#include <QVBoxLayout>

using qarn_data::PersonData;
using qarn_data::PersonInfo;

namespace qarn_personMgr
{

namespace
{
const QMargins SectionMargins(0, 25, 230, 0);
const QMargins RowMargins(0, 0, 90, 0);
constexpr int SectionSpacing = 10;
constexpr int RowSpacing = 20;
constexpr int HintIndent = 18; ///< below the text of the section's header
constexpr QSize EditSize(205, 28);
constexpr int ValueMaxLength = 64;
} // namespace

PersonCustomInfoWt::PersonCustomInfoWt(QWidget* parent) : QWidget(parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(SectionMargins);
    layout->setSpacing(SectionSpacing);
    const QStringList names = PersonData::instance().getCustomFields();
    for (const QString& name : names)
        addRow(layout, name);
    if (names.isEmpty()) {
        auto* hint = new QLabel(tr("Please add custom field first"), this);
        hint->setIndent(HintIndent);
        layout->addWidget(hint);
    }
    // The editor adds this height to its own before it has laid the section out.
    setFixedHeight(layout->sizeHint().height());
}

void PersonCustomInfoWt::addRow(QVBoxLayout* layout, const QString& name)
{
    auto* row = new QHBoxLayout;
    row->setContentsMargins(RowMargins);
    row->setSpacing(RowSpacing);
    row->addStrut(EditSize.height()); // a style sheet may take the edit's own minimum away
    layout->addLayout(row);

    auto* label = new ElidedLabel(name, this);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    row->addWidget(label, 1);

    auto* edit = new QLineEdit(this);
    edit->setFixedSize(EditSize);
    edit->setMaxLength(ValueMaxLength);
    edit->setAccessibleName(name);
    row->addWidget(edit);
    m_fieldEdits.insert(name, edit);
}

void PersonCustomInfoWt::setPersonInfo(const PersonInfo& info)
{
    for (auto it = info.customFields.cbegin(); it != info.customFields.cend(); ++it) {
        if (QLineEdit* edit = m_fieldEdits.value(it.key()))
            edit->setText(it.value());
    }
}

void PersonCustomInfoWt::getPersonInfo(PersonInfo& info) const
{
    info.customFields.clear();
    for (auto it = m_fieldEdits.cbegin(); it != m_fieldEdits.cend(); ++it) {
        const QString value = it.value()->text().trimmed();
        if (!value.isEmpty())
            info.customFields.insert(it.key(), value);
    }
}

} // namespace qarn_personMgr
