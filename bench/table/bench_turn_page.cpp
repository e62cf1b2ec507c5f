// Turning a page of 50 persons with photographs of 1 megapixel, first seen and seen before, against djpeg
// decoding the same 50 files at full size. Milliseconds; without a display.

#include "support/Figure.h"
#include "support/Photographs.h"
#include "support/StoreFiles.h"
#include "table/DjpegPeer.h"
#include "table/PageWindow.h"
#include "table/PhotographedPersons.h"

#include <QApplication>

using namespace qarn_bench;

namespace
{

constexpr int PageSize = 50;
constexpr int Rounds = 7;
constexpr QSize PhotoSize(1000, 1000);

int measureTurns(const char* name, double limit, const char* button, PageWindow& window,
                 const DjpegPeer& peer)
{
    Figure figure{name};
    figure.limit = limit;
    measureAlternately(
        figure, Rounds, [&] { return milliseconds([&] { window.click(button); }); },
        [&] { return peer.decodeAll(); });
    return report(figure);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const StoreFiles files;
    openStore(files.path(QStringLiteral("photos.db")));
    const QList<QByteArray> photos = photographs(PageSize, PhotoSize);
    addPhotographedPersons(PageSize * (Rounds + 1), photos);
    const DjpegPeer peer(photos);
    int result = 0;
    {
        PageWindow window;
        result |= measureTurns("turn_page_50x1mp_ms", 1.2, "nextBt", window, peer);
        result |= measureTurns("turn_page_50x1mp_again_ms", 0.3, "prevBt", window, peer);
    }
    closeStore();
    return result;
}
