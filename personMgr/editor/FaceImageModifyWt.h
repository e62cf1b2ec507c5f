#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QVector>
#include <QWidget>
#include <memory>

namespace XCOMMON
{
class XPushButton;
}
namespace qarn_data
{
struct PersonInfo;
}

namespace qarn_personMgr
{

namespace Ui
{
class FaceImageModifyWt;
}

/// The picture area of the person editor: holds the three face images of a person and shows one of them. A
/// click chooses a file for the slot that is shown.
class FaceImageModifyWt : public QWidget
{
    Q_OBJECT
public:
    explicit FaceImageModifyWt(QWidget* parent = nullptr);
    ~FaceImageModifyWt() override;

    void setPersonInfo(const qarn_data::PersonInfo& info); ///< shows the first slot
    /// Writes a fresh JPEG encoding of each full-size picture; empty slots give empty images.
    void getPersonInfo(qarn_data::PersonInfo& info) const;
    void setCurIndex(int index); ///< ignored unless there is such a slot

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override; ///< Space and Return stand for a click
    void paintEvent(QPaintEvent* event) override;

private:
    /// One face image. The picture is kept in the size in which it is painted; the full one is decoded from
    /// the bytes when it is saved, so that large photographs neither delay the editor nor fill the memory.
    struct Slot {
        QByteArray bytes;
        QPixmap picture; ///< null: the slot is empty

        bool isEmpty() const { return picture.isNull(); }
    };

    Slot makeSlot(const QByteArray& bytes) const;
    bool isCurrentEmpty() const;
    void chooseFile();
    void deleteCurrent();

    std::unique_ptr<Ui::FaceImageModifyWt> m_ui;
    XCOMMON::XPushButton* m_deleteBt; ///< owned by this widget
    QPixmap m_defaultPicture;
    QVector<Slot> m_slots;
    int m_curIndex = -1; ///< -1 until a record is shown
};

} // namespace qarn_personMgr
