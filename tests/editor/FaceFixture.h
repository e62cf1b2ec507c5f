#pragma once

#include "editor/FaceImageModifyWt.h"

#include "EditorTools.h"

#include <qarn_data/PersonInfo.h>

#include <QPushButton>
#include <QTemporaryDir>

// What the tests of the face slot share.

inline const QString ChangeTip = QStringLiteral("Click to change face Iamge");
inline const QPoint Middle(83, 109);

inline QPushButton* deleteBt(const qarn_personMgr::FaceImageModifyWt& slot)
{
    return slot.findChild<QPushButton*>();
}

inline QColor shown(qarn_personMgr::FaceImageModifyWt& slot)
{
    return slot.grab().toImage().pixelColor(Middle);
}

inline QByteArray writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
    return bytes;
}

/// A small JPEG whose header promises another size.
inline QByteArray jpegClaiming(quint16 width, quint16 height)
{
    QByteArray bytes = plainPicture(Qt::red);
    const int frame = bytes.indexOf(QByteArray("\xff\xc0\x00", 3));
    const char size[] = {char(height >> 8), char(height & 0xff), char(width >> 8), char(width & 0xff)};
    return bytes.replace(frame + 5, 4, QByteArray(size, 4));
}

class FaceFixture
{
protected:
    void open()
    {
        m_directory = std::make_unique<QTemporaryDir>();
        m_window = std::make_unique<QWidget>();
        m_window->resize(200, 240);
        m_slot = new qarn_personMgr::FaceImageModifyWt(m_window.get());
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_three.faceImage1 = plainPicture(Qt::red);
        m_three.faceImage2 = plainPicture(Qt::green);
        m_three.faceImage3 = plainPicture(Qt::blue);
    }

    void close()
    {
        QCOMPARE(m_modal.pending(), 0);
        m_window.reset();
    }

    void choose(const QString& path)
    {
        expectFile(m_modal, path);
        QTest::mouseClick(m_slot, Qt::LeftButton, {}, Middle);
    }

    std::unique_ptr<QWidget> m_window;
    qarn_personMgr::FaceImageModifyWt* m_slot = nullptr;
    std::unique_ptr<QTemporaryDir> m_directory;
    ModalDriver m_modal;
    qarn_data::PersonInfo m_three; ///< red, green and blue pictures
};
