#pragma once

#include <QString>
#include <QWidget>

class QListWidget;
class QStackedWidget;

/// The window: names of the pages at the left, the page at the right.
class Gallery : public QWidget
{
    Q_OBJECT
public:
    explicit Gallery(QWidget* parent = nullptr);

    int pageCount() const;
    QString pageName(int page) const;
    void showPage(int page);

private:
    void addPage(const QString& name, QWidget* page);

    QListWidget* m_names;
    QStackedWidget* m_pages;
};
