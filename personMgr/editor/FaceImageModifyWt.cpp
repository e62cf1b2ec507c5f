#include "editor/FaceImageModifyWt.h"

#include "ui_FaceImageModifyWt.h"

#include <XCOMMON/PhotoDecoder.h>
#include <XCOMMON/ToolsCollection.h>
#include <XCOMMON/XFileDialog.h>
#include <XCOMMON/XPushButton.h>
#include <qarn_base/XMessageBox.h>
#include <qarn_data/PersonInfo.h>

#include <QBuffer>
#include <QFileInfo>
#include <QKeyEvent>
#include <QPainter>
#include <QStandardPaths>
#include <QStyleOptionFocusRect>

using qarn_base::XMessageBox;
using qarn_data::PersonInfo;
using XCOMMON::PhotoDecoder;

namespace qarn_personMgr
{

namespace
{
constexpr QSize DeleteBtSize(18, 18);
constexpr int DeleteBtInset = 2;
constexpr QByteArray PersonInfo::*FaceMembers[] = {&PersonInfo::faceImage1, &PersonInfo::faceImage2,
                                                   &PersonInfo::faceImage3};

/// Where the file dialog of any face slot opens.
QString& lastDirectory()
{
    static QString directory = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    return directory;
}

QByteArray encodeJpeg(const QPixmap& picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return picture.save(&buffer, "jpg") ? bytes : QByteArray();
}
} // namespace

FaceImageModifyWt::FaceImageModifyWt(QWidget* parent)
    : QWidget(parent),
      m_ui(std::make_unique<Ui::FaceImageModifyWt>()),
      m_deleteBt(new XCOMMON::XPushButton(this)),
      m_defaultPicture(QStringLiteral(":/personMgr_images/images/default_face_image.png"))
{
    m_ui->setupUi(this);
    setFocusPolicy(Qt::TabFocus);
    m_deleteBt->setFixedSize(DeleteBtSize);
    m_deleteBt->move(width() - DeleteBtSize.width() - DeleteBtInset, DeleteBtInset);
    m_deleteBt->setToolTip(tr("delete"));
    m_deleteBt->setAccessibleName(tr("delete"));
    m_deleteBt->setStyleSheet(
        QStringLiteral("QPushButton{border-image:url(:/images/images/delete_n.png);}"
                       "QPushButton:hover{border-image:url(:/images/images/delete_h.png);}"));
    m_deleteBt->hide();
    connect(m_deleteBt, &QPushButton::clicked, this, &FaceImageModifyWt::deleteCurrent);
}

FaceImageModifyWt::~FaceImageModifyWt() = default;

void FaceImageModifyWt::setPersonInfo(const PersonInfo& info)
{
    m_slots.clear();
    for (const auto member : FaceMembers)
        m_slots.append(makeSlot(info.*member));
    setCurIndex(0);
}

void FaceImageModifyWt::getPersonInfo(PersonInfo& info) const
{
    for (int i = 0; i < m_slots.size(); ++i) {
        QByteArray& image = info.*FaceMembers[i];
        image.clear();
        if (m_slots[i].isEmpty())
            continue;
        image = encodeJpeg(QPixmap::fromImage(PhotoDecoder::decode(m_slots[i].bytes)));
        if (image.isEmpty()) // no memory, or larger than a JPEG can be: better as it came than lost
            image = m_slots[i].bytes;
    }
}

void FaceImageModifyWt::setCurIndex(int index)
{
    if (index < 0 || index >= m_slots.size())
        return;
    m_curIndex = index;
    const bool empty = isCurrentEmpty();
    m_ui->label->setVisible(empty);
    m_deleteBt->setVisible(!empty);
    if (!empty)
        m_deleteBt->raise();
    setToolTip(empty ? QString() : tr("Click to change face Iamge"));
    update();
}

void FaceImageModifyWt::mouseReleaseEvent(QMouseEvent* event)
{
    chooseFile();
    QWidget::mouseReleaseEvent(event);
}

void FaceImageModifyWt::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        chooseFile();
    else
        QWidget::keyPressEvent(event);
}

void FaceImageModifyWt::paintEvent(QPaintEvent* event)
{
    QPainter painter(this); // scales fast: no smooth transformation is asked for
    painter.drawPixmap(rect(), isCurrentEmpty() ? m_defaultPicture : m_slots[m_curIndex].picture);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
    QWidget::paintEvent(event);
}

FaceImageModifyWt::Slot FaceImageModifyWt::makeSlot(const QByteArray& bytes) const
{
    const QSize painted = size() * devicePixelRatioF();
    const QImage image = bytes.isEmpty() ? QImage() : PhotoDecoder::decode(bytes, painted);
    if (image.isNull())
        return {};
    return {bytes, QPixmap::fromImage(image.scaled(painted, Qt::IgnoreAspectRatio, Qt::FastTransformation))};
}

bool FaceImageModifyWt::isCurrentEmpty() const
{
    return m_curIndex < 0 || m_slots[m_curIndex].isEmpty();
}

void FaceImageModifyWt::chooseFile()
{
    if (m_curIndex < 0)
        return;
    const QString caption = isCurrentEmpty() ? tr("Select face image") : tr("Change face image");
    const QString path =
        XCOMMON::XFileDialog::getOpenFileName(this, caption, lastDirectory(), tr("Images (*.jpg)"));
    if (path.isEmpty())
        return;
    lastDirectory() = QFileInfo(path).absolutePath();
    m_slots[m_curIndex] = makeSlot(XCOMMON::ToolsCollection::loadImage(path));
    m_ui->label->setVisible(isCurrentEmpty());
    update();
}

void FaceImageModifyWt::deleteCurrent()
{
    const auto answer =
        XMessageBox::question(parentWidget(), tr("Do you want to delete the current face image?"),
                              XMessageBox::Ok | XMessageBox::Cancel, false);
    if (answer != XMessageBox::Ok)
        return;
    m_slots[m_curIndex] = {};
    m_deleteBt->hide();
    setCurIndex(m_curIndex);
}

} // namespace qarn_personMgr
