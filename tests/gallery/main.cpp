#include "DemoData.h"
#include "Gallery.h"
#include "Scenes.h"
#include "style/DarkStyle.h"

#include <qarn_data/DataService.h>

#include <QApplication>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    applyDarkStyle(application);
    qarn_data::DataService& store = qarn_data::DataService::instance();
    if (!store.open(QStringLiteral(":memory:")))
        return 1;
    addDemoData();
    int result = 0;
    {
        Gallery gallery;
        gallery.resize(1280, 720);
        gallery.show();
        gallery.activateWindow();
        const QStringList arguments = QApplication::arguments();
        const int option = arguments.indexOf(QStringLiteral("--screenshots"));
        if (option > 0 && option + 1 < arguments.size())
            result = takeScreenshots(gallery, arguments.at(option + 1)) ? 0 : 1;
        else
            result = QApplication::exec();
    }
    store.close();
    return result;
}
