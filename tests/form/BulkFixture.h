#pragma once

#include "FileChooser.h"
#include "PageFixture.h"

#include <qarn_base/DisabledWaitingWt.h>

#include <QThread>

/// The page while a worker runs.
class BulkFixture : public PageFixture
{
public:
    qarn_base::DisabledWaitingWt* overlay() const { return form->findChild<qarn_base::DisabledWaitingWt*>(); }
    QString overlayText(const char* label) const
    {
        return overlay()->findChild<QLabel*>(QLatin1String(label))->text();
    }
    QThread* thread() const { return form->findChild<QThread*>(); }
    /// Nothing of a run is left, and the page takes clicks again.
    bool isIdle() const { return overlay() == nullptr && thread() == nullptr; }

    static QAbstractButton* button(QWidget* window, const char* name)
    {
        auto* found = window->findChild<QAbstractButton*>(QLatin1String(name));
        if (found == nullptr)
            qFatal("%s has no %s", window->metaObject()->className(), name);
        return found;
    }
    static void press(QWidget* window, const char* name)
    {
        QTest::mouseClick(button(window, name), Qt::LeftButton);
    }
    void expectPress(const char* name)
    {
        driver.expect([name](QWidget* window) { press(window, name); });
    }
    void expectPath(const QString& path) ///< as a host file dialog is answered; an empty one cancels
    {
        driver.expect([path](QWidget* window) { choosePath(window, path); });
    }
    /// A message box: remembers its text and presses Ok.
    void expectNotice()
    {
        driver.expect([this](QWidget* window) {
            notice = window->findChild<QLabel*>("text")->text();
            press(window, "okBt");
        });
    }

    QString notice;
};
