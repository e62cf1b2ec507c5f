// Milliseconds a frame while the page with 200 rows is resized, against the 50 of 20 frames a second.

#include "support/Figure.h"
#include "support/StoreFiles.h"
#include "table/PageWindow.h"

#include <QApplication>

using namespace qarn_bench;

namespace
{

constexpr int Rows = 200;
constexpr int Frames = 60;
constexpr int Rounds = 3;
constexpr double FrameMs = 50;

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const StoreFiles files;
    openStore(makeStore(files, QStringLiteral("persons.db"), Rows));
    int result = 0;
    {
        PageWindow window;
        window.setPageSize(Rows);
        Figure figure{"resize_200_rows_frame_ms"};
        figure.limit = 1;
        measureAlternately(
            figure, Rounds,
            [&] {
                return milliseconds([&] {
                           for (int i = 1; i <= Frames; ++i)
                               window.resize(1280 + i * 8, 760 + i * 4);
                       }) /
                       Frames;
            },
            [] { return FrameMs; });
        result = report(figure);
    }
    closeStore();
    return result;
}
