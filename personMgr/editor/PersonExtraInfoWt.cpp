#include "editor/PersonExtraInfoWt.h"

#include "ui_PersonExtraInfoWt.h"

#include <qarn_data/PersonInfo.h>

#include <QEvent>

using qarn_data::PersonInfo;

namespace qarn_personMgr
{

PersonExtraInfoWt::PersonExtraInfoWt(QWidget* parent)
    : QWidget(parent),
      m_ui(std::make_unique<Ui::PersonExtraInfoWt>())
{
    m_ui->setupUi(this);
    for (QDateEdit* date : {m_ui->birthDate, m_ui->employDate}) {
        date->setFocusPolicy(Qt::StrongFocus);
        date->installEventFilter(this);
    }
}

PersonExtraInfoWt::~PersonExtraInfoWt() = default;

void PersonExtraInfoWt::setPersonInfo(const PersonInfo& info)
{
    if (info.birthDate.isValid())
        m_ui->birthDate->setDate(info.birthDate);
    m_ui->identityType->setCurrentIndex(info.identityType);
    m_ui->identityId->setText(info.identityId);
    m_ui->job->setText(info.job);
    if (info.employDate.isValid())
        m_ui->employDate->setDate(info.employDate);
    m_ui->address->setText(info.address);
}

void PersonExtraInfoWt::getPersonInfo(PersonInfo& info) const
{
    info.birthDate = m_ui->birthDate->date();
    info.identityType = m_ui->identityType->currentIndex();
    info.identityId = m_ui->identityId->text().trimmed();
    info.job = m_ui->job->text().trimmed();
    info.employDate = m_ui->employDate->date();
    info.address = m_ui->address->text().trimmed();
}

bool PersonExtraInfoWt::eventFilter(QObject* watched, QEvent* event)
{
    const auto* date = qobject_cast<QDateEdit*>(watched);
    if (date != nullptr && event->type() == QEvent::Wheel && !date->hasFocus()) {
        event->ignore(); // goes on to the scroll area
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace qarn_personMgr
