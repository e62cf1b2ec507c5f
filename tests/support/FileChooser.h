#pragma once

#include <QAbstractItemView>
#include <QCompleter>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QtTest>

/// A key for each letter that a keyboard has; the others come as from an input method.
inline void typeText(QWidget* field, const QString& text)
{
    for (const QChar letter : text) {
        if (letter.unicode() < 128) {
            QTest::keyClick(field, letter.toLatin1());
        } else {
            QInputMethodEvent event;
            event.setCommitString(letter);
            QCoreApplication::sendEvent(field, &event);
        }
    }
}

/// Types a path into an open file dialog, key by key: a text that is set from outside is not taken over, or
/// taken for another one, depending on what has the focus and what is listed already.
inline void typePath(QWidget* fileDialog, const QString& path)
{
    QCOMPARE(fileDialog->objectName(), QStringLiteral("XFileDialog"));
    auto* edit = fileDialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    QVERIFY(edit != nullptr);
    QTest::mouseClick(edit, Qt::LeftButton);
    edit->selectAll();
    typeText(edit, path);
    edit->completer()->popup()->hide(); // its proposals would take the next key or click
}

/// Types a path and takes it, or cancels without one.
inline void choosePath(QWidget* fileDialog, const QString& path)
{
    if (path.isEmpty()) {
        QTest::keyClick(fileDialog, Qt::Key_Escape);
        return;
    }
    typePath(fileDialog, path);
    QTest::keyClick(fileDialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")), Qt::Key_Return);
}
