#include "SmallScreen.h"

#include <QDialog>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVariant>

namespace qarn_base
{

namespace
{

QSize roomFor(const QDialog& dialog)
{
    const QWidget* over = dialog.parentWidget() != nullptr ? dialog.parentWidget()->window() : nullptr;
    return (over != nullptr ? over->screen() : dialog.screen())->availableSize();
}

QSize wantedSize(const QDialog& dialog)
{
    const QSize size = dialog.testAttribute(Qt::WA_Resized) ? dialog.size() : dialog.sizeHint();
    return size.expandedTo(dialog.minimumSize()).boundedTo(dialog.maximumSize());
}

/// Hands the dialog's layout and what is laid out in it to a widget of its own.
QWidget* takeContents(QDialog& dialog, int fixedTop)
{
    auto* contents = new QWidget;
    QLayout* layout = dialog.layout();
    QMargins margins = layout->contentsMargins();
    margins.setTop(qMax(0, margins.top() - fixedTop));
    contents->setLayout(layout);
    layout->setContentsMargins(margins);
    return contents;
}

} // namespace

void fitToScreen(QDialog& dialog, int fixedTop)
{
    const QSize room = roomFor(dialog);
    const QSize wanted = wantedSize(dialog);
    if (dialog.layout() == nullptr || (wanted.width() <= room.width() && wanted.height() <= room.height()))
        return;

    QWidget* focused = dialog.focusWidget();
    QWidget* contents = takeContents(dialog, fixedTop);
    // What scrolls or stretches inside may give way in height; a width is only ever cut off.
    const int leastHeight = contents->layout()->totalMinimumSize().height();
    contents->setMinimumSize(wanted.width(), qMin(leastHeight, wanted.height() - fixedTop));

    auto* scrollArea = new QScrollArea(&dialog);
    scrollArea->setObjectName(QStringLiteral("smallScreenArea"));
    scrollArea->setFrameShape(QFrame::NoFrame);
    scrollArea->setWidgetResizable(true);
    scrollArea->setFocusPolicy(Qt::NoFocus);
    scrollArea->verticalScrollBar()->setProperty("common_scrollBar_style3", true);
    scrollArea->horizontalScrollBar()->setProperty("common_scrollBar_style3", true);
    scrollArea->setWidget(contents);
    scrollArea->viewport()->setAutoFillBackground(false); // the dialog's own ground shines through
    contents->setAutoFillBackground(false);
    auto* layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(1, fixedTop, 1, 1);
    layout->addWidget(scrollArea);

    dialog.setMinimumSize(0, 0);
    dialog.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    const int scrollBar = scrollArea->verticalScrollBar()->sizeHint().width() + 2;
    dialog.resize(QSize(wanted.width() + scrollBar, wanted.height()).boundedTo(room));
    if (focused != nullptr)
        focused->setFocus();
}

} // namespace qarn_base
