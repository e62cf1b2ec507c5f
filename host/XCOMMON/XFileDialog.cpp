#include "FileDialogSuffix.h"

#include <XCOMMON/XFileDialog.h>

#include <QAbstractItemView>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPointer>
#include <QScreen>
#include <QSignalBlocker>

namespace XCOMMON
{

namespace
{

constexpr QSize roomySize(820, 500); // all columns of the list can be seen

QString run(XFileDialog* made, QFileDialog::Options options, QString* selectedFilter = nullptr)
{
    // The parent may go, and take the dialog with it, while the dialog is open.
    const QPointer<XFileDialog> dialog = made;
    dialog->setOptions(options | QFileDialog::DontUseNativeDialog);
    if (selectedFilter != nullptr && !selectedFilter->isEmpty())
        dialog->selectNameFilter(*selectedFilter);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (dialog.isNull())
        return QString();
    dialog->deleteLater();
    if (accepted && selectedFilter != nullptr)
        *selectedFilter = dialog->selectedNameFilter();
    return accepted ? dialog->selectedFiles().value(0) : QString();
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
    auto* dialog = new XFileDialog(parent, caption, dir);
    dialog->setFileMode(Directory);
    return run(dialog, options);
}

QString XFileDialog::getOpenFileName(QWidget* parent, const QString& caption, const QString& dir,
                                     const QString& filter, QString* selectedFilter, Options options)
{
    auto* dialog = new XFileDialog(parent, caption, dir, filter);
    dialog->setFileMode(ExistingFile);
    return run(dialog, options, selectedFilter);
}

QString XFileDialog::getSaveFileName(QWidget* parent, const QString& caption, const QString& dir,
                                     const QString& filter, QString* selectedFilter, Options options)
{
    auto* dialog = new XFileDialog(parent, caption, dir, filter);
    dialog->setAcceptMode(AcceptSave);
    return run(dialog, options, selectedFilter);
}

} // namespace XCOMMON
