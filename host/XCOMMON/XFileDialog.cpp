#include "FileDialogSuffix.h"

#include <XCOMMON/XFileDialog.h>

#include <QAbstractItemView>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QScreen>
#include <QSignalBlocker>

namespace XCOMMON
{

namespace
{

constexpr QSize roomySize(820, 500); // all columns of the list can be seen

QString run(XFileDialog& dialog, QString* selectedFilter)
{
    if (selectedFilter != nullptr && !selectedFilter->isEmpty())
        dialog.selectNameFilter(*selectedFilter);
    if (dialog.exec() != QDialog::Accepted)
        return QString();
    if (selectedFilter != nullptr)
        *selectedFilter = dialog.selectedNameFilter();
    return dialog.selectedFiles().value(0);
}

/// Where to start: a proposed directory that does not exist would be taken for a file name, as the desktop
/// of an account without one would be.
QString startIn(const QString& proposed)
{
    const QFileInfo start(proposed);
    return proposed.isEmpty() || start.exists() || (start.dir().exists() && !start.suffix().isEmpty())
               ? proposed
               : QDir::homePath();
}

} // namespace

XFileDialog::XFileDialog(QWidget* parent, const QString& caption, const QString& directory,
                         const QString& filter)
    : QFileDialog(parent, caption, startIn(directory), filter)
{
    setObjectName(QStringLiteral("XFileDialog"));
    setOption(DontUseNativeDialog);
    resize(roomySize.boundedTo(screen()->availableSize()));
}

void XFileDialog::accept()
{
    auto* edit = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    if (acceptMode() == AcceptSave && fileMode() == AnyFile && edit != nullptr &&
        !QFileInfo(directory(), edit->text()).isDir()) {
        const QString name = withFilterSuffix(edit->text(), selectedNameFilter());
        // QFileDialog would prefer a file that is still selected in its list to the typed name.
        if (auto* list = findChild<QAbstractItemView*>(QStringLiteral("listView")))
            list->clearSelection();
        // Told of the text, it would select that file and, where it lies elsewhere, keep its last part only.
        const QSignalBlocker quiet(edit);
        edit->setText(name);
    }
    QFileDialog::accept();
}

QString XFileDialog::getExistingDirectory(QWidget* parent, const QString& caption, const QString& dir,
                                          Options options)
{
    XFileDialog dialog(parent, caption, dir);
    dialog.setFileMode(Directory);
    dialog.setOptions(options | DontUseNativeDialog);
    return run(dialog, nullptr);
}

QString XFileDialog::getOpenFileName(QWidget* parent, const QString& caption, const QString& dir,
                                     const QString& filter, QString* selectedFilter, Options options)
{
    XFileDialog dialog(parent, caption, dir, filter);
    dialog.setFileMode(ExistingFile);
    dialog.setOptions(options | DontUseNativeDialog);
    return run(dialog, selectedFilter);
}

QString XFileDialog::getSaveFileName(QWidget* parent, const QString& caption, const QString& dir,
                                     const QString& filter, QString* selectedFilter, Options options)
{
    XFileDialog dialog(parent, caption, dir, filter);
    dialog.setAcceptMode(AcceptSave);
    dialog.setOptions(options | DontUseNativeDialog);
    return run(dialog, selectedFilter);
}

} // namespace XCOMMON
