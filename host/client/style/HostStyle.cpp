#include "style/HostStyle.h"

#include "style/Palette.h"

#include <XCOMMON/HostImages.h>

#include <QAbstractItemView>
#include <QCalendarWidget>
#include <QComboBox>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QStyledItemDelegate>
#include <QTextCharFormat>

namespace
{

constexpr int toolTipDelayMs = 400;

/// The image under ":/images/images/" that stands for one of Qt's icons; null: Qt's own.
const char* imageFor(QStyle::StandardPixmap which)
{
    switch (which) {
    case QStyle::SP_MessageBoxInformation:
        return "information";
    case QStyle::SP_MessageBoxWarning:
        return "warning";
    case QStyle::SP_MessageBoxCritical:
        return "error";
    case QStyle::SP_MessageBoxQuestion:
        return "question";
    case QStyle::SP_FileDialogNewFolder:
        return "folder_add";
    case QStyle::SP_FileDialogToParent:
    case QStyle::SP_ArrowUp:
        return "up";
    case QStyle::SP_FileDialogBack:
    case QStyle::SP_ArrowBack:
    case QStyle::SP_ArrowLeft:
        return "back";
    case QStyle::SP_ArrowForward:
    case QStyle::SP_ArrowRight:
        return "forward";
    case QStyle::SP_FileDialogListView:
        return "list_view";
    case QStyle::SP_FileDialogDetailedView:
        return "detail_view";
    case QStyle::SP_DirIcon:
    case QStyle::SP_DirLinkIcon:
    case QStyle::SP_DirClosedIcon:
        return "folder";
    case QStyle::SP_DirOpenIcon:
    case QStyle::SP_DirLinkOpenIcon:
        return "folder_open";
    case QStyle::SP_FileIcon:
    case QStyle::SP_FileLinkIcon:
        return "file";
    case QStyle::SP_DirHomeIcon:
        return "home";
    case QStyle::SP_ComputerIcon:
    case QStyle::SP_DesktopIcon:
    case QStyle::SP_DriveHDIcon:
        return "drive";
    case QStyle::SP_LineEditClearButton:
        return "clear_n";
    case QStyle::SP_BrowserReload:
        return "refresh";
    default:
        return nullptr;
    }
}

/// Qt's pure red cannot be read on a dark ground.
void colorWeekend(QCalendarWidget& calendar)
{
    QTextCharFormat format;
    format.setForeground(palette::color(palette::Link));
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
        calendar.setWeekdayTextFormat(day, format);
}

bool hasPlainDelegate(const QComboBox& combo)
{
    const QByteArray delegate = combo.itemDelegate()->metaObject()->className();
    return delegate == "QComboBoxDelegate" || delegate == "QComboMenuDelegate";
}

} // namespace

HostStyle::HostStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void HostStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (auto* calendar = qobject_cast<QCalendarWidget*>(widget))
        colorWeekend(*calendar);
    // A view that was built before it had a parent has measured its rows without the style sheet.
    if (auto* view = qobject_cast<QAbstractItemView*>(widget))
        QMetaObject::invokeMethod(view, &QAbstractItemView::doItemsLayout, Qt::QueuedConnection);
    auto* combo = qobject_cast<QComboBox*>(widget);
    if (combo != nullptr && hasPlainDelegate(*combo)) // it would ignore the sheet's rows
        combo->setItemDelegate(new QStyledItemDelegate(combo));
}

QIcon HostStyle::standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const
{
    const char* image = imageFor(which);
    if (image == nullptr)
        return QProxyStyle::standardIcon(which, option, widget);
    return QIcon(XCOMMON::imagePath(QLatin1String(image)));
}

void HostStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    if (element != PE_FrameFocusRect) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    painter->save();
    painter->setPen(palette::color(palette::Link));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

int HostStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returnData) const
{
    switch (hint) {
    case SH_ToolTip_WakeUpDelay:
        return toolTipDelayMs;
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_ComboBox_Popup: // a list below the field, which keeps to the number of visible items
        return 0;
    case SH_ItemView_ArrowKeysNavigateIntoChildren: // Left leads from an item to the one above it
        return 1;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}
