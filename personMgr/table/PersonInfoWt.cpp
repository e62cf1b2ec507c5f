#include "table/PersonInfoWt.h"
#include "ui_PersonInfoWt.h"

#include "editor/PersonInfoModifyDlg.h"
#include "query/PersonFilter.h"
#include "shared/Colors.h"
#include "shared/ModalDialog.h"
#include "table/FaceThumbnails.h"

#include <qarn_base/BaseTools.h>
#include <qarn_base/XMessageBox.h>
#include <qarn_data/PersonData.h>

#include <QCursor>
#include <QMouseEvent>

using qarn_base::BaseTools;
using qarn_base::XMessageBox;
using qarn_data::PersonData;
using qarn_data::PersonInfo;

namespace qarn_personMgr
{
namespace
{

constexpr int orderNumColumn = 125; // pixels
constexpr int otherColumns = 7;
constexpr int male = 1;

constexpr QRgb hoveredColor = 0xff213147;
constexpr QRgb selectedColor = 0xff293a56;
constexpr QRgb selectedText = 0xffccd3dd;

QString makeStyleSheet(QRgb background, QRgb line, QRgb text)
{
    return QStringLiteral("QWidget{background-color:%1;border-bottom: 1px solid %2;}"
                          "QLabel {color:%3; border:0px;} QCheckBox{color:%3; border:0px;}")
        .arg(QColor(background).name(), QColor(line).name(), QColor(text).name());
}

/// In the order of PersonInfoWt::StyleState.
const QString& styleSheetOf(int state)
{
    static const QString styleSheets[] = {makeStyleSheet(Colors::Page, hoveredColor, Colors::QuietText),
                                          makeStyleSheet(hoveredColor, hoveredColor, Colors::QuietText),
                                          makeStyleSheet(selectedColor, selectedColor, selectedText)};
    return styleSheets[state];
}

} // namespace

PersonInfoWt::PersonInfoWt(const PersonInfo& info, QWidget* parent)
    : PEWidget(parent),
      m_ui(std::make_unique<Ui::PersonInfoWt>())
{
    m_ui->setupUi(this);
    m_ui->editBt->setImages(QStringLiteral(":/images/images/edit_n.png"),
                            QStringLiteral(":/images/images/edit_h.png"));
    m_ui->deleteBt->setImages(QStringLiteral(":/images/images/delete_n.png"),
                              QStringLiteral(":/images/images/delete_h.png"));
    setStyleState(NormalStyle);
    connect(m_ui->orderNum, &QCheckBox::clicked, this, &PersonInfoWt::signalCheckState);
    connect(m_ui->editBt, &QPushButton::clicked, this, &PersonInfoWt::editPerson);
    connect(m_ui->deleteBt, &QPushButton::clicked, this, &PersonInfoWt::deletePerson);
    setPersonInfo(info);
}

PersonInfoWt::~PersonInfoWt() = default;

void PersonInfoWt::setPersonInfo(const PersonInfo& info)
{
    if (info.id != m_personInfo.id)
        m_ui->orderNum->setChecked(false);
    m_personInfo = info;
    showFace();
    m_ui->serialNum->setText(info.serialNum);
    m_ui->name->setText(info.name);
    m_ui->sex->setText(BaseTools::instance().strSex(info.sex == male));
    m_ui->organization->setText(PersonData::instance().getOrganizationName(info.organizationId));
    const bool valid = isWithin(info.validStartTime, info.validEndTime, QDateTime::currentDateTime());
    m_ui->isValid->setText(BaseTools::instance().strValid(valid));
    m_ui->orderNum->setAccessibleName(tr("select %1").arg(info.name));
    m_ui->editBt->setAccessibleName(tr("edit %1").arg(info.name));
    m_ui->deleteBt->setAccessibleName(tr("delete %1").arg(info.name));
}

void PersonInfoWt::showFace()
{
    const QImage face = FaceThumbnails::instance().thumbnail(m_personInfo.faceImage1, m_ui->faceImage->size(),
                                                             devicePixelRatioF());
    if (face.isNull())
        m_ui->faceImage->clear();
    else
        m_ui->faceImage->setPixmap(QPixmap::fromImage(face));
}

PersonInfo PersonInfoWt::getPersonInfo() const
{
    return m_personInfo;
}

void PersonInfoWt::setOrderNum(int num)
{
    m_ui->orderNum->setText(QString::number(num));
}

bool PersonInfoWt::isChecked() const
{
    return m_ui->orderNum->isChecked();
}

void PersonInfoWt::setChecked(bool checked)
{
    m_ui->orderNum->setChecked(checked);
}

void PersonInfoWt::setSelected(bool selected)
{
    m_selected = selected;
    if (selected)
        setStyleState(SelectedStyle);
    else // not the whole rectangle: a part of it may be scrolled away under another widget
        setStyleState(visibleRegion().contains(mapFromGlobal(QCursor::pos())) ? HoveredStyle : NormalStyle);
}

void PersonInfoWt::setStyleState(int state)
{
    if (state < NormalStyle || state > SelectedStyle)
        return;
    const QString& style = styleSheetOf(state);
    if (style != styleSheet()) // setting the same one again would polish all children anew
        setStyleSheet(style);
}

void PersonInfoWt::updateOrganization(const QString& organizationId, const QString& name)
{
    if (m_personInfo.organizationId == organizationId)
        m_ui->organization->setText(name);
}

void PersonInfoWt::editPerson()
{
    ModalDialog<PersonInfoModifyDlg> dialog(BaseTools::instance().getRootParentWt(this));
    dialog->init(PersonInfoModifyDlg::EditMode, m_personInfo);
    dialog.exec();
}

void PersonInfoWt::deletePerson()
{
    // While the question is open a change of the page may give this row another person, or take it away.
    const PersonInfo person = m_personInfo;
    QWidget* window = BaseTools::instance().getRootParentWt(this);
    const QString text = tr("Do you want to delete the person: %1?").arg(person.name);
    if (XMessageBox::question(window, text, XMessageBox::Ok | XMessageBox::Cancel, false) == XMessageBox::Ok)
        PersonData::instance().deletePersons({person.id});
}

void PersonInfoWt::enterEvent(QEvent* event)
{
    PEWidget::enterEvent(event);
    if (!m_selected)
        setStyleState(HoveredStyle);
}

void PersonInfoWt::leaveEvent(QEvent* event)
{
    PEWidget::leaveEvent(event);
    if (!m_selected)
        setStyleState(NormalStyle);
}

void PersonInfoWt::mouseReleaseEvent(QMouseEvent* event)
{
    PEWidget::mouseReleaseEvent(event);
    emit signalSelected(this);
    m_selected = true;
    setStyleState(SelectedStyle);
}

void PersonInfoWt::mouseDoubleClickEvent(QMouseEvent* event)
{
    PEWidget::mouseDoubleClickEvent(event);
    emit m_ui->editBt->clicked();
}

void PersonInfoWt::resizeEvent(QResizeEvent* event)
{
    PEWidget::resizeEvent(event);
    const int widest = (width() - orderNumColumn) / otherColumns;
    for (QLabel* label : {m_ui->serialNum, m_ui->name, m_ui->organization})
        label->setMaximumWidth(qMax(0, widest));
}

} // namespace qarn_personMgr
