#include "startup/StoreOpener.h"

#include "startup/StoreFailureDlg.h"

#include <qarn_data/DataService.h>

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <cstdio>

QString StoreOpener::defaultPath()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation))
        .filePath(QStringLiteral("persons.db"));
}

QString StoreOpener::open(const QString& path, bool ask, QString reason)
{
    QString current = path;
    for (;; reason.clear()) {
        if (reason.isEmpty()) {
            QDir().mkpath(QFileInfo(current).absolutePath());
            if (qarn_data::DataService::instance().openAhead(current, &reason))
                return current;
        }
        if (!ask) {
            std::fprintf(stderr, "%s\n", qPrintable(reason));
            return QString();
        }
        StoreFailureDlg dialog(reason);
        dialog.exec();
        if (dialog.choice() == StoreFailureDlg::Quit)
            return QString();
        if (dialog.choice() == StoreFailureDlg::AnotherFile && !dialog.anotherFile().isEmpty())
            current = dialog.anotherFile();
    }
}
