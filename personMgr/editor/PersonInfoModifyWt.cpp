#include "editor/PersonInfoModifyWt.h"

#include "editor/PersonInputRules.h"
#include "ui_PersonInfoModifyWt.h"

#include <qarn_base/DatetimeSpanSelWt.h>
#include <qarn_data/PersonData.h>

#include <QRegExpValidator>
#include <QResizeEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolTip>
#include <QUuid>

using qarn_base::DatetimeSpanSelWt;
using qarn_base::ExpandInfoBt;
using qarn_base::TimeSpaceLineEt;
using qarn_data::PersonData;
using qarn_data::PersonInfo;

namespace qarn_personMgr
{

namespace
{
constexpr qint64 MaxValidSecs = 94608000; ///< three years of 365 days
constexpr int ScrollMargin = 50;
enum Sex { Male = 1, Female = 2 };
enum SexIndex { MaleIndex = 0, FemaleIndex = 1 };

QValidator* makeValidator(const QString& pattern, QObject* parent)
{
    return new QRegExpValidator(QRegExp(pattern), parent);
}
} // namespace

PersonInfoModifyWt::PersonInfoModifyWt(QScrollArea* scrollArea)
    : XWidget(scrollArea),
      m_ui(std::make_unique<Ui::PersonInfoModifyWt>()),
      m_scrollArea(scrollArea),
      m_timeSpanSelWt(new DatetimeSpanSelWt(this, true))
{
    m_ui->setupUi(this);
    setBackgroundColor(QColor(QStringLiteral("#172335")));
    setUpFields();
    makeConnections();
}

PersonInfoModifyWt::~PersonInfoModifyWt() = default;

void PersonInfoModifyWt::setUpFields()
{
    m_ui->serailNum->setValidator(makeValidator(QStringLiteral("[0-9 a-z A-Z - { }]+$"), this));
    m_ui->phoneNum->setValidator(makeValidator(QStringLiteral("[0-9]+$"), this));
    m_ui->validTimeRange->setUsingYearInTimeSpaceDescription(true);
    m_timeSpanSelWt->setMaxSpanSecs(MaxValidSecs);
    m_timeSpanSelWt->hide();
    m_ui->customInfoWt->hide();
    m_ui->extraInfoWt->hide();
}

void PersonInfoModifyWt::makeConnections()
{
    connect(m_ui->customInfoExpandBt, &ExpandInfoBt::signalExpand, this,
            &PersonInfoModifyWt::slotCustomInfoExpandBtClicked);
    connect(m_ui->extraInfoExpandBt, &ExpandInfoBt::signalExpand, this,
            &PersonInfoModifyWt::slotExtraInfoExpandBtClicked);
    connect(m_timeSpanSelWt, &DatetimeSpanSelWt::signalDatetimeSpanSelChanged, this,
            &PersonInfoModifyWt::slotDateTimeSelectedChanged);
    connect(m_ui->validTimeRange, &TimeSpaceLineEt::signalClicked, this,
            &PersonInfoModifyWt::slotValidTimeRangeLineEtClicked);
    for (const QRadioButton* button : {m_ui->faceImage1, m_ui->faceImage2, m_ui->faceImage3})
        connect(button, &QRadioButton::clicked, this, &PersonInfoModifyWt::showFaceSlot);
}

void PersonInfoModifyWt::setPersonInfo(const PersonInfo& info)
{
    m_personInfo = info;
    m_ui->name->setText(info.name);
    m_ui->serailNum->setText(info.serialNum);
    m_ui->serailNum->setReadOnly(!info.serialNum.isEmpty());
    m_ui->sex->setCurrentIndex(info.sex == Male ? MaleIndex : FemaleIndex);
    m_ui->email->setText(info.email);
    m_ui->phoneNum->setText(info.phoneNum);
    m_ui->remarks->setText(info.remarks);
    if (info.validStartTime.isValid() && info.validEndTime.isValid())
        m_ui->validTimeRange->setDateTimeSpace(info.validStartTime, info.validEndTime);
    if (info.name.isEmpty())
        m_ui->name->setFocus();
    else
        m_ui->phoneNum->setFocus();
    m_ui->customInfoWt->setPersonInfo(info);
    m_ui->extraInfoWt->setPersonInfo(info);
    m_ui->faceImage->setPersonInfo(info);
}

bool PersonInfoModifyWt::checkInput()
{
    const auto exists = [](const QString& number) {
        return PersonData::instance().isPersonSerialNumExist(number);
    };
    switch (
        checkPersonInput(m_ui->name->text(), m_ui->serailNum->text(), m_personInfo.id.isEmpty(), exists)) {
    case PersonInputError::None:
        return true;
    case PersonInputError::BlankName:
        showInputError(m_ui->name, tr("person name can't be empty or all blank space!"));
        break;
    case PersonInputError::BlankSerialNum:
        showInputError(m_ui->serailNum, tr("serail num can't be empty or all blank space!"));
        break;
    case PersonInputError::SerialNumExists:
        showInputError(m_ui->serailNum, tr("serail num has exist!"));
        break;
    }
    return false;
}

PersonInfo& PersonInfoModifyWt::getPersonInfo()
{
    m_personInfo.name = m_ui->name->text().trimmed();
    m_personInfo.serialNum = storedSerialNum(m_ui->serailNum->text());
    m_personInfo.sex = m_ui->sex->currentIndex() == MaleIndex ? Male : Female;
    m_personInfo.email = m_ui->email->text().trimmed();
    m_personInfo.phoneNum = m_ui->phoneNum->text().trimmed();
    const QPair<QDateTime, QDateTime> valid = m_ui->validTimeRange->getDateTimeSpace();
    m_personInfo.validStartTime = valid.first;
    m_personInfo.validEndTime = valid.second;
    m_personInfo.remarks = m_ui->remarks->text().trimmed();
    if (m_personInfo.id.isEmpty())
        m_personInfo.id = QUuid::createUuid().toString();
    m_ui->faceImage->getPersonInfo(m_personInfo);
    m_ui->customInfoWt->getPersonInfo(m_personInfo);
    m_ui->extraInfoWt->getPersonInfo(m_personInfo);
    return m_personInfo;
}

void PersonInfoModifyWt::clearInput()
{
    PersonInfo next = m_personInfo;
    for (QString* text : {&next.id, &next.name, &next.serialNum, &next.email, &next.phoneNum,
                          &next.identityId, &next.address})
        text->clear();
    next.customFields.clear();
    for (QByteArray* image : {&next.faceImage1, &next.faceImage2, &next.faceImage3})
        image->clear();
    setPersonInfo(next);
}

void PersonInfoModifyWt::slotCustomInfoExpandBtClicked(bool expanded)
{
    m_ui->customInfoWt->setVisible(expanded);
    if (expanded) {
        setFixedHeight(heightToExpand(m_ui->customInfoWt, m_ui->extraInfoWt));
        m_scrollArea->ensureWidgetVisible(m_ui->customInfoWt, ScrollMargin, ScrollMargin);
    } else {
        setFixedHeight(heightToFold(m_ui->customInfoWt, m_ui->extraInfoWt));
    }
}

void PersonInfoModifyWt::slotExtraInfoExpandBtClicked(bool expanded)
{
    m_ui->extraInfoWt->setVisible(expanded);
    if (expanded) {
        setFixedHeight(heightToExpand(m_ui->extraInfoWt, m_ui->customInfoWt));
        QScrollBar* bar = m_scrollArea->verticalScrollBar();
        bar->setValue(bar->maximum());
    } else {
        setFixedHeight(heightToFold(m_ui->extraInfoWt, m_ui->customInfoWt));
    }
}

void PersonInfoModifyWt::slotValidTimeRangeLineEtClicked()
{
    const QPoint below(0, m_ui->validTimeRange->height() + 1);
    m_timeSpanSelWt->move(m_ui->validTimeRange->mapToGlobal(below));
    m_timeSpanSelWt->setInitDateTime(m_ui->validTimeRange->getStartTime(),
                                     m_ui->validTimeRange->getEndTime());
    m_timeSpanSelWt->show();
}

void PersonInfoModifyWt::slotDateTimeSelectedChanged(const QDateTime& startDateTime,
                                                     const QDateTime& endDateTime)
{
    m_ui->validTimeRange->setDateTimeSpace(startDateTime, endDateTime);
}

void PersonInfoModifyWt::resizeEvent(QResizeEvent* event)
{
    if (m_baseHeight < 0)
        m_baseHeight = event->size().height();
    XWidget::resizeEvent(event);
}

void PersonInfoModifyWt::showFaceSlot()
{
    const QRadioButton* buttons[] = {m_ui->faceImage1, m_ui->faceImage2, m_ui->faceImage3};
    int index = 0;
    for (int i = 0; i < 3; ++i) {
        if (buttons[i]->isChecked()) {
            index = i;
            break;
        }
    }
    m_ui->faceImage->setCurIndex(index);
}

void PersonInfoModifyWt::showInputError(const QWidget* field, const QString& text) const
{
    QToolTip::showText(field->mapToGlobal(QPoint(0, 0)), text);
}

int PersonInfoModifyWt::heightToExpand(const QWidget* section, const QWidget* otherSection) const
{
    return (otherSection->isVisible() ? height() : m_baseHeight) + section->height();
}

int PersonInfoModifyWt::heightToFold(const QWidget* section, const QWidget* otherSection) const
{
    return otherSection->isVisible() ? height() - section->height() : m_baseHeight;
}

} // namespace qarn_personMgr
