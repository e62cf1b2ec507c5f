#include <qarn_base/CommonDialog.h>

#include "SmallScreen.h"
#include "TitleBar.h"

namespace qarn_base
{

struct CommonDialog::Private {
    TitleBar* titleBar;
};

CommonDialog::CommonDialog(QWidget* parent, bool showMinMax, bool modal)
    : XCOMMON::MoveableDialog(parent),
      d(std::make_unique<Private>())
{
    d->titleBar = new TitleBar(showMinMax, this);
    setMoveAreaHeight(TitleBarHeight);
    setModal(modal);
    connect(d->titleBar, &TitleBar::signalClose, this, &CommonDialog::slotCloseBtClicked);
    connect(d->titleBar, &TitleBar::signalMaximize, this, &CommonDialog::slotMaximizeBtClicked);
    connect(d->titleBar, &TitleBar::signalMinimize, this, &CommonDialog::slotMinimizeBtClicked);
}

CommonDialog::~CommonDialog() = default;

void CommonDialog::setTitle(const QString& title)
{
    d->titleBar->setTitle(title);
    setWindowTitle(title);
}

void CommonDialog::setVisible(bool visible)
{
    if (visible && !isVisible()) {
        fitToScreen(*this, TitleBarHeight);
        // The form below has come after the title bar was made.
        d->titleBar->raise();
        d->titleBar->goLastInTabOrder();
    }
    XCOMMON::MoveableDialog::setVisible(visible);
}

void CommonDialog::slotCloseBtClicked()
{
    quitSystem();
}

void CommonDialog::slotMaximizeBtClicked()
{
    if (isMaximized())
        showNormal();
    else
        showMaximized();
}

void CommonDialog::slotMinimizeBtClicked()
{
    showMinimized();
}

void CommonDialog::quitSystem()
{
    reject();
}

void CommonDialog::resizeEvent(QResizeEvent* event)
{
    XCOMMON::MoveableDialog::resizeEvent(event);
    // The dialog's border stays free.
    d->titleBar->setGeometry(1, 1, width() - 2, TitleBarHeight - 1);
}

} // namespace qarn_base
