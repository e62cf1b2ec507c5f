// The whole at the size of a large site: 100,000 persons in 2,000 organizations, 20,000 with photographs.
// Each step against the peer of the bench that measures it alone.

#include "client/LargeSite.h"
#include "client/SiteSteps.h"
#include "support/StoreFiles.h"

#include <QApplication>

using namespace qarn_bench;

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const StoreFiles files;
    const QString store = files.path(QStringLiteral("big.db"));
    openStore(store);
    LargeSite::fill();
    LargeSite::check();
    closeStore();
    int result = measureStart(files, store);
    result |= measureOpen(store);
    result |= measurePageTurn();
    result |= measureSearch(store);
    result |= measureExport(files);
    result |= measureImport(files);
    result |= measureSend(files);
    closeStore();
    return result;
}
