// Resident memory after 2,000 pages of 50 photographs of 1 megapixel, without the bytes of the photographs,
// against the same after the first 20 pages.

#include "support/Figure.h"
#include "support/Memory.h"
#include "support/Photographs.h"
#include "support/StoreFiles.h"
#include "table/PageWindow.h"
#include "table/PhotographedPersons.h"

#include <qarn_data/PersonData.h>

#include <QApplication>

using namespace qarn_bench;

namespace
{

constexpr int PageSize = 50;
constexpr int PagesInStore = 40; // 2,000 photographs, more than the thumbnails that are kept
constexpr int FirstPages = 20;
constexpr int AllPages = 2000;
constexpr QSize PhotoSize(1000, 1000);

double photographBytes()
{
    qint64 bytes = 0;
    for (const qarn_data::PersonInfo& person : qarn_data::PersonData::instance().getAllPersons(false))
        bytes += person.faceImage1.size();
    return static_cast<double>(bytes);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const StoreFiles files;
    openStore(files.path(QStringLiteral("photos.db")));
    addPhotographedPersons(PageSize * PagesInStore, photographs(PageSize, PhotoSize));
    const double heldByStore = photographBytes();
    Figure figure{"memory_2000_pages_bytes"};
    figure.limit = 1.1;
    {
        PageWindow window;
        for (int page = 2; page <= AllPages; ++page) { // the first is shown from the start
            window.click(page % PagesInStore == 1 ? "firstBt" : "nextBt");
            if (page == FirstPages)
                figure.peer = residentBytes() - heldByStore;
        }
        figure.ours = residentBytes() - heldByStore;
    }
    const int result = report(figure);
    closeStore();
    return result;
}
