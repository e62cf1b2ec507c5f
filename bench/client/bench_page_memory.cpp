// Resident bytes after 2,000 pages of 50 photographs, against those after the first 20 pages.

#include "support/Figure.h"
#include "support/Memory.h"
#include "support/Photographs.h"
#include "support/StoreFiles.h"
#include "table/PageWindow.h"
#include "table/PhotographedPersons.h"

#include <QApplication>

using namespace qarn_bench;

namespace
{

constexpr int PageSize = 50;
constexpr int PagesInStore = 40; // 2,000 photographs, more than the thumbnails that are kept
constexpr int FirstPages = 20;
constexpr int AllPages = 2000;
constexpr QSize PhotoSize(240, 320);

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const StoreFiles files;
    openStore(files.path(QStringLiteral("photos.db")));
    addPhotographedPersons(PageSize * PagesInStore, photographs(PageSize, PhotoSize));
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
