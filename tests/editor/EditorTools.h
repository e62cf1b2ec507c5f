#pragma once

#include "FileChooser.h"
#include "ModalDriver.h"

#include <QFileInfo>
#include <QImage>
#include <QLineEdit>
#include <QtTest>

// What the tests of the editor's windows share.

/// A child by object name; ends the test program when there is none.
template <typename Widget>
Widget* child(const QWidget* parent, const char* name)
{
    auto* found = parent->findChild<Widget*>(QLatin1String(name));
    if (found == nullptr)
        qFatal("%s has no child %s", parent->metaObject()->className(), name);
    return found;
}

/// Types over what stands in a field.
inline void typeInto(QLineEdit* edit, const QString& text)
{
    QTest::mouseClick(edit, Qt::LeftButton);
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClicks(edit, text);
}

inline void click(const QWidget* parent, const char* button)
{
    QTest::mouseClick(child<QWidget>(parent, button), Qt::LeftButton);
}

/// Presses a button of the next modal window.
inline void expectAnswer(ModalDriver& modal, const char* button)
{
    modal.expect([button](QWidget* window) { click(window, button); });
}

/// Enters a path in the next file dialog.
inline void expectFile(ModalDriver& modal, const QString& path)
{
    modal.expect([path](QWidget* window) { choosePath(window, path); });
}

inline QString samplePath(const QString& relative)
{
    const QString root =
        qEnvironmentVariable("QARN_SAMPLE_DATA", QStringLiteral(QARN_SOURCE_DIR "/../shared/data"));
    return root + QLatin1Char('/') + relative;
}

#define SKIP_WITHOUT_SAMPLES()                                                                               \
    if (!QFileInfo::exists(samplePath(QStringLiteral("faces.tsv"))))                                         \
    QSKIP("no sample data; set QARN_SAMPLE_DATA to its directory")

inline QByteArray encoded(const QImage& image, const char* format = "jpg")
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

inline QByteArray plainPicture(const QColor& color, const QSize& size = QSize(60, 80),
                               const char* format = "jpg")
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return encoded(image, format);
}

/// Whether two colours are the same but for what JPEG does to them.
inline bool similar(const QColor& a, const QColor& b)
{
    return qAbs(a.red() - b.red()) + qAbs(a.green() - b.green()) + qAbs(a.blue() - b.blue()) < 30;
}
