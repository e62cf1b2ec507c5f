#include <qarn_base/SelDirLineEt.h>

#include "FieldClick.h"

#include <QAction>

namespace qarn_base
{

SelDirLineEt::SelDirLineEt(QWidget* parent) : XCOMMON::XLineEdit(parent)
{
    setReadOnly(true);
    setCursor(Qt::PointingHandCursor);
    const QAction* icon = addAction(QIcon(QStringLiteral(":/images/images/folder.png")), TrailingPosition);
    connect(icon, &QAction::triggered, this, &SelDirLineEt::signalClicked);
    setAccessibleDescription(tr("Press Return to choose a path"));
}

void SelDirLineEt::mouseReleaseEvent(QMouseEvent* event)
{
    XCOMMON::XLineEdit::mouseReleaseEvent(event);
    if (isClick(*event, rect()))
        emit signalClicked();
}

void SelDirLineEt::keyPressEvent(QKeyEvent* event)
{
    if (isPressKey(*event)) {
        event->accept();
        emit signalClicked();
        return;
    }
    XCOMMON::XLineEdit::keyPressEvent(event);
}

} // namespace qarn_base
