// Resident bytes after 2,000 pages of 50 photographs, against those after the first 20 pages.

#include "support/Figure.h"
#include "support/Memory.h"
#include "support/People.h"
#include "support/StoreFiles.h"
#include "table/PageWindow.h"
#include "table/Photographs.h"

#include <qarn_data/PersonData.h>

#include <QApplication>

using namespace qarn_bench;

namespace
{

constexpr int PageSize = 50;
constexpr int PagesInStore = 40; // 2,000 photographs, more than the thumbnails that are kept
constexpr int FirstPages = 20;
constexpr int AllPages = 2000;
constexpr int DistinctPhotos = 50;
constexpr QSize PhotoSize(240, 320);

void fill()
{
    People people(1);
    QList<QByteArray> photos;
    for (int i = 0; i < DistinctPhotos; ++i)
        photos.append(photograph(quint32(i + 1), PhotoSize));
    const QString root = qarn_data::PersonData::instance().getRootOrganizationId();
    qarn_data::PersonList persons;
    for (int i = 0; i < PageSize * PagesInStore; ++i) {
        persons.append(people.next(root));
        persons.last().faceImage1 = withComment(photos.at(i % DistinctPhotos), i);
    }
    if (!qarn_data::PersonData::instance().addPersons(persons))
        qFatal("the store does not take the persons");
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const StoreFiles files;
    openStore(files.path(QStringLiteral("photos.db")));
    fill();
    Figure figure{"memory_2000_pages_bytes"};
    figure.limit = 1.1;
    {
        PageWindow window;
        for (int page = 2; page <= AllPages; ++page) { // the first is shown from the start
            window.click(page % PagesInStore == 1 ? "firstBt" : "nextBt");
            if (page == FirstPages)
                figure.peer = residentBytes();
        }
        figure.ours = residentBytes();
    }
    const int result = report(figure);
    closeStore();
    return result;
}
