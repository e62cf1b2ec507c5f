#include "Gallery.h"

#include "Pages.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QStackedWidget>

Gallery::Gallery(QWidget* parent) : QWidget(parent), m_names(new QListWidget), m_pages(new QStackedWidget)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_names);
    row->addWidget(m_pages, 1);
    m_names->setObjectName(QStringLiteral("pageList"));
    m_names->setFixedWidth(140);
    connect(m_names, &QListWidget::currentRowChanged, m_pages, &QStackedWidget::setCurrentIndex);

    addPage(QStringLiteral("buttons"), makeButtonsPage());
    addPage(QStringLiteral("fields"), makeFieldsPage());
    addPage(QStringLiteral("trees"), makeTreesPage());
    addPage(QStringLiteral("views"), makeViewsPage());
    addPage(QStringLiteral("panels"), makePanelsPage());
    showPage(0);
}

int Gallery::pageCount() const
{
    return m_pages->count();
}

QString Gallery::pageName(int page) const
{
    return m_names->item(page)->text();
}

void Gallery::showPage(int page)
{
    m_names->setCurrentRow(page);
}

void Gallery::addPage(const QString& name, QWidget* page)
{
    m_names->addItem(name);
    m_pages->addWidget(page);
}
