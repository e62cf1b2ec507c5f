#include "startup/SelfTest.h"

#include "window/MainWindow.h"

#include <qarn_base/PageEditWt.h>
#include <qarn_data/DataService.h>
#include <qarn_data/PersonData.h>

#include <QLabel>

using qarn_data::PersonData;

namespace
{

QStringList shownSerialNumbers(const QWidget& page)
{
    QStringList shown;
    for (const QWidget* row : page.findChildren<QWidget*>(QStringLiteral("qarn_personMgr__PersonInfoWt"))) {
        const auto* label = row->findChild<QLabel*>(QStringLiteral("serialNum"));
        shown.append(label == nullptr ? QString() : label->text());
    }
    return shown;
}

} // namespace

QString selfTestFindings(const MainWindow& window)
{
    if (!qarn_data::DataService::instance().isOpen())
        return QStringLiteral("the store is not open");
    const QWidget* page = window.personsPage();
    const auto* pager = page->findChild<qarn_base::PageEditWt*>();
    if (pager == nullptr)
        return QStringLiteral("the persons page has no paging bar");
    const qarn_data::PersonList persons = PersonData::instance().getAllPersons(false);
    QStringList expected;
    for (int row = 0; row < qMin(pager->getPageSize(), persons.count()); ++row)
        expected.append(persons.at(row).serialNum);
    const QStringList shown = shownSerialNumbers(*page);
    if (shown != expected)
        return QStringLiteral("the page shows %1 persons, the store has %2 for it")
            .arg(shown.count())
            .arg(expected.count());
    const int page1 = persons.isEmpty() ? 0 : 1;
    if (pager->getCurPageNum() != page1)
        return QStringLiteral("the paging bar stands on page %1 instead of %2")
            .arg(pager->getCurPageNum())
            .arg(page1);
    return QString();
}
