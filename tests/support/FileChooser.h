#pragma once

#include <QAbstractItemView>
#include <QCompleter>
#include <QLineEdit>
#include <QtTest>

/// Types a path into an open file dialog, key by key: a text that is set from outside is not taken over, or
/// taken for another one, depending on what has the focus and what is listed already.
inline void typePath(QWidget* fileDialog, const QString& path)
{
    QCOMPARE(fileDialog->objectName(), QStringLiteral("XFileDialog"));
    auto* edit = fileDialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    QVERIFY(edit != nullptr);
    QTest::mouseClick(edit, Qt::LeftButton);
    edit->selectAll();
    QTest::keyClicks(edit, path);
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
