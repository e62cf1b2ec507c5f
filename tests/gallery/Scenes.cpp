#include "Scenes.h"

#include "Gallery.h"

#include <XCOMMON/XFileDialog.h>
#include <XCOMMON/XMenu.h>
#include <qarn_base/AbilityDevsSelFromTreeDlg.h>
#include <qarn_base/ItemModifyDlg.h>
#include <qarn_base/XMessageBox.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QMouseEvent>
#include <QScreen>
#include <QSet>
#include <QTimer>
#include <QToolTip>

namespace
{

constexpr int settleMs = 350; // windows appear, icons load
constexpr int fewestColors = 8;

void settle()
{
    QEventLoop loop;
    QTimer::singleShot(settleMs, &loop, &QEventLoop::quit);
    loop.exec();
}

int colorsIn(const QImage& image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); y += 3) {
        for (int x = 0; x < image.width(); x += 3)
            colors.insert(image.pixel(x, y));
    }
    return colors.size();
}

bool shoot(const QString& path)
{
    settle();
    const QPixmap picture = QGuiApplication::primaryScreen()->grabWindow(0);
    if (colorsIn(picture.toImage()) < fewestColors) {
        qWarning("%s shows nothing", qPrintable(path));
        return false;
    }
    return picture.save(path);
}

/// Opens something modal, takes its picture and closes it again.
template <typename Open>
bool shootModal(const QString& path, Open open)
{
    bool taken = false;
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, qApp, [&] {
        taken = shoot(path);
        while (QWidget* window = QApplication::activePopupWidget())
            window->close();
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
            dialog->reject();
    });
    timer.start(settleMs);
    open();
    return taken;
}

bool shootDialogs(Gallery& gallery, const QDir& directory)
{
    using namespace qarn_base;
    bool all = shootModal(directory.filePath(QStringLiteral("dialog-question.png")), [&] {
        XMessageBox::question(&gallery, QStringLiteral("Do you want to delete the select organization?"), 3,
                              false);
    });
    all &= shootModal(directory.filePath(QStringLiteral("dialog-information.png")), [&] {
        XMessageBox::information(&gallery, QStringLiteral("organization has persons, can not be deleted"), 1,
                                 false);
    });
    all &= shootModal(directory.filePath(QStringLiteral("dialog-item.png")), [&] {
        ItemModifyDlg dialog([](const QString&, const QString&) { return true; }, &gallery);
        dialog.setModifyType(ItemModifyDlg::AddItem, QStringLiteral("Add Organization"), QString(),
                             QString());
        dialog.setItemName(QStringLiteral("Research"));
        dialog.exec();
    });
    all &= shootModal(directory.filePath(QStringLiteral("dialog-devices.png")), [&] {
        AbilityDevsSelFromTreeDlg dialog(&gallery, 16, 0, true, QStringLiteral("Synchronize From Devs"),
                                         QStringLiteral("Please select channels"),
                                         QStringLiteral("Synchronize"));
        dialog.exec();
    });
    all &= shootModal(directory.filePath(QStringLiteral("dialog-replace.png")), [&] {
        QMessageBox::warning(&gallery, QStringLiteral("Save As"),
                             QStringLiteral("persons.csv already exists.\nDo you want to replace it?"),
                             QMessageBox::Yes | QMessageBox::No);
    });
    return all;
}

bool shootFileDialogs(Gallery& gallery, const QDir& directory)
{
    const QString start = QDir::rootPath();
    bool all = shootModal(directory.filePath(QStringLiteral("dialog-file-save.png")), [&] {
        XCOMMON::XFileDialog::getSaveFileName(&gallery, QStringLiteral("Export Persons"), start,
                                              QStringLiteral("CSV(*.csv)"));
    });
    all &= shootModal(directory.filePath(QStringLiteral("dialog-file-directory.png")), [&] {
        XCOMMON::XFileDialog::getExistingDirectory(&gallery, QStringLiteral("Select Export Path"), start);
    });
    return all;
}

bool shootPopups(Gallery& gallery, const QDir& directory)
{
    gallery.showPage(1);
    gallery.findChild<QLineEdit*>(QStringLiteral("focusedEdit"))->setFocus();
    settle(); // a change of the focus would take the tool tip along
    QToolTip::showText(gallery.mapToGlobal(QPoint(300, 300)), QStringLiteral("serail num has exist!"));
    bool all = shoot(directory.filePath(QStringLiteral("popup-tooltip.png")));
    QToolTip::hideText();
    all &= shootModal(directory.filePath(QStringLiteral("popup-combo.png")), [&] {
        gallery.findChild<QComboBox*>(QStringLiteral("galleryCombo"))->showPopup();
        settle();
        settle();
        settle();
    });
    auto* date = gallery.findChild<QDateEdit*>(QStringLiteral("galleryDate"));
    all &= shootModal(directory.filePath(QStringLiteral("popup-calendar.png")), [&] {
        const QPoint arrow(date->width() - 8, date->height() / 2);
        QMouseEvent press(QEvent::MouseButtonPress, arrow, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(date, &press);
        settle();
        settle();
        settle();
    });
    XCOMMON::XMenu menu;
    menu.addAction(QStringLiteral("Delete Checked Persons"));
    menu.setActiveAction(menu.addAction(QStringLiteral("Delete All Persons")));
    menu.addSeparator();
    menu.addAction(QStringLiteral("not now"))->setEnabled(false);
    all &= shootModal(directory.filePath(QStringLiteral("popup-menu.png")),
                      [&] { menu.exec(gallery.mapToGlobal(QPoint(300, 300))); });
    return all;
}

} // namespace

bool takeScreenshots(Gallery& gallery, const QString& directory)
{
    const QDir target(directory);
    bool all = true;
    for (int page = 0; page < gallery.pageCount(); ++page) {
        gallery.showPage(page);
        all &= shoot(target.filePath(QStringLiteral("page-%1.png").arg(gallery.pageName(page))));
    }
    all &= shootPopups(gallery, target);
    all &= shootDialogs(gallery, target);
    return shootFileDialogs(gallery, target) && all;
}
