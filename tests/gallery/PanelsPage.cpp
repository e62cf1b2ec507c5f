#include "Pages.h"

#include <XCOMMON/XWidget.h>
#include <qarn_base/DisabledWaitingWt.h>

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>

namespace
{

QWidget* makeCovered(bool transparent)
{
    auto* panel = new XCOMMON::XWidget;
    panel->setBackgroundColor(QColor(QStringLiteral("#172335")));
    auto* column = new QVBoxLayout(panel);
    for (int i = 0; i < 5; ++i)
        column->addWidget(new QPushButton(QStringLiteral("below the overlay")));
    new qarn_base::DisabledWaitingWt(panel, QStringLiteral("Import Persons"),
                                     QStringLiteral("Importing 17 of 200..."), transparent);
    return panel;
}

QWidget* makeToast(const char* kind)
{
    auto* toast = new QFrame;
    toast->setObjectName(QStringLiteral("toast"));
    toast->setProperty("alertKind", QLatin1String(kind));
    auto* column = new QVBoxLayout(toast);
    auto* title = new QLabel(QLatin1String(kind));
    title->setObjectName(QStringLiteral("alertTitle"));
    column->addWidget(title);
    auto* text =
        new QLabel(QStringLiteral("There is no room left at \"/media/stick\". Free some space or choose "
                                  "another place."));
    text->setWordWrap(true);
    column->addWidget(text);
    return toast;
}

QWidget* makeTabs()
{
    auto* tabs = new QTabWidget;
    auto* group = new QGroupBox(QStringLiteral("Group"));
    auto* column = new QVBoxLayout(group);
    auto* progress = new QProgressBar;
    progress->setValue(40);
    column->addWidget(progress);
    auto* link = new QLabel(QStringLiteral("<a href=\"#\">Download personnel import template</a>"));
    column->addWidget(link);
    column->addWidget(new QLabel(QStringLiteral("A label with <b>bold</b> text")));
    column->addStretch();
    tabs->addTab(group, QStringLiteral("First"));
    tabs->addTab(new QWidget, QStringLiteral("Second"));
    return tabs;
}

} // namespace

QWidget* makePanelsPage()
{
    auto* page = new QWidget;
    auto* columns = new QHBoxLayout(page);
    columns->setContentsMargins(30, 30, 30, 30);
    columns->setSpacing(20);
    columns->addWidget(makeCovered(false), 1);
    columns->addWidget(makeCovered(true), 1);
    auto* toasts = new QVBoxLayout;
    for (const char* kind : {"success", "warning", "error"})
        toasts->addWidget(makeToast(kind));
    toasts->addWidget(makeTabs(), 1);
    columns->addLayout(toasts, 1);
    return page;
}
