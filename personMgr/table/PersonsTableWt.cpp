#include "table/PersonsTableWt.h"

#include "shared/Colors.h"
#include "table/PersonInfoWt.h"

#include <qarn_data/DataSignals.h>

#include <QPainter>
#include <QSet>
#include <QVBoxLayout>
#include <algorithm>

using qarn_data::DataSignals;
using qarn_data::OrganizationInfo;
using qarn_data::PersonInfo;

namespace qarn_personMgr
{
namespace
{

constexpr int emptyHeight = 200; // pixels
constexpr int bottomMargin = 90; // pixels

} // namespace

PersonsTableWt::PersonsTableWt(QWidget* parent) : XWidget(parent), m_layout(new QVBoxLayout(this))
{
    setBackgroundColor(Colors::Page);
    m_layout->setContentsMargins(0, 0, 0, bottomMargin);
    m_layout->setSpacing(0);
    m_layout->addStretch(1);
}

PersonInfoWt* PersonsTableWt::createRow(const PersonInfo& person)
{
    auto* row = new PersonInfoWt(person, this);
    connect(row, &PersonInfoWt::signalSelected, this, &PersonsTableWt::selectRow);
    connect(row, &PersonInfoWt::signalCheckState, this, [this] { emit signalCheckState(checkState()); });
    connect(&DataSignals::instance(), &DataSignals::signalUpdateOrganizationInLocalDB, this,
            &PersonsTableWt::followOrganization);
    return row;
}

/// The row may be handling a click at this moment, so it goes when control is back in the event loop.
void PersonsTableWt::removeLastRow()
{
    const std::unique_ptr<QLayoutItem> item(m_layout->takeAt(m_layout->count() - 2));
    PersonInfoWt* row = m_rows.takeLast();
    row->setParent(nullptr);
    row->deleteLater();
}

void PersonsTableWt::setPersons(const QList<PersonInfo>& persons, int startNum)
{
    m_curSelRow = nullptr;
    const int reused = std::min(m_rows.count(), persons.count());
    for (int i = 0; i < reused; ++i) {
        m_rows.at(i)->setPersonInfo(persons.at(i));
        m_rows.at(i)->setSelected(false);
        m_rows.at(i)->setOrderNum(startNum + i);
    }
    while (m_rows.count() > reused)
        removeLastRow();
    for (int i = reused; i < persons.count(); ++i) {
        PersonInfoWt* row = createRow(persons.at(i));
        row->setOrderNum(startNum + i);
        m_layout->insertWidget(m_layout->count() - 1, row);
        m_rows.append(row);
    }
    setFixedHeight(m_rows.isEmpty() ? emptyHeight : m_rows.first()->height() * m_rows.count() + bottomMargin);
    update();
}

void PersonsTableWt::selectRow(PersonInfoWt* row)
{
    if (m_curSelRow != nullptr && m_curSelRow != row)
        m_curSelRow->setSelected(false);
    m_curSelRow = row;
}

Qt::CheckState PersonsTableWt::checkState() const
{
    const auto checked = std::count_if(m_rows.cbegin(), m_rows.cend(),
                                       [](const PersonInfoWt* row) { return row->isChecked(); });
    if (checked == 0)
        return Qt::Unchecked;
    return checked == m_rows.count() ? Qt::Checked : Qt::PartiallyChecked;
}

void PersonsTableWt::setAllChecked(bool checked)
{
    for (PersonInfoWt* row : qAsConst(m_rows))
        row->setChecked(checked);
}

QStringList PersonsTableWt::getCheckedPersonIds() const
{
    QStringList ids;
    const QList<PersonInfo> persons = getCheckedPersons();
    for (const PersonInfo& person : persons)
        ids.append(person.id);
    return ids;
}

QList<PersonInfo> PersonsTableWt::getCheckedPersons() const
{
    QList<PersonInfo> persons;
    for (const PersonInfoWt* row : m_rows) {
        if (row->isChecked())
            persons.append(row->getPersonInfo());
    }
    return persons;
}

void PersonsTableWt::updatePersons(const PersonInfo& info, const QStringList& personIds)
{
    QSet<QString> pending(personIds.cbegin(), personIds.cend());
    for (int i = 0; i < m_rows.count() && !pending.isEmpty(); ++i) {
        const PersonInfo shown = m_rows.at(i)->getPersonInfo();
        if (!pending.remove(shown.id))
            continue;
        PersonInfo updated = info;
        updated.id = shown.id;
        updated.organizationId = shown.organizationId;
        m_rows.at(i)->setPersonInfo(updated);
    }
}

void PersonsTableWt::followOrganization(const OrganizationInfo& organization, bool success)
{
    if (success)
        updateOrganizationName(organization.id, organization.name);
}

void PersonsTableWt::updateOrganizationName(const QString& organizationId, const QString& name)
{
    for (PersonInfoWt* row : qAsConst(m_rows))
        row->updateOrganization(organizationId, name);
}

void PersonsTableWt::paintEvent(QPaintEvent* event)
{
    XWidget::paintEvent(event);
    if (!m_rows.isEmpty())
        return;
    QPainter painter(this);
    painter.setPen(QColor(Colors::QuietText));
    painter.drawText(
        rect(), Qt::AlignCenter | Qt::TextWordWrap,
        tr("No persons to show. Select another organization, change the filters, or add persons."));
}

} // namespace qarn_personMgr
