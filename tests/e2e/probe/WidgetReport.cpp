#include "WidgetReport.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QJsonObject>
#include <QTreeView>

namespace
{

QJsonObject rectangle(const QWidget& widget, const QRect& local)
{
    const qreal ratio = widget.devicePixelRatioF();
    const QPoint corner = widget.mapTo(widget.window(), local.topLeft());
    return {{QStringLiteral("windowId"), static_cast<qint64>(widget.window()->internalWinId())},
            {QStringLiteral("x"), corner.x() * ratio},
            {QStringLiteral("y"), corner.y() * ratio},
            {QStringLiteral("width"), local.width() * ratio},
            {QStringLiteral("height"), local.height() * ratio}};
}

QString textOf(const QWidget& widget)
{
    for (const char* name : {"text", "currentText", "plainText", "title", "windowTitle"}) {
        const QVariant value = widget.property(name);
        if (value.isValid() && !value.toString().isEmpty())
            return value.toString();
    }
    return QString();
}

QJsonObject describe(const QWidget& widget)
{
    QJsonObject report = rectangle(widget, widget.rect());
    report[QStringLiteral("name")] = widget.objectName();
    report[QStringLiteral("class")] = QString::fromLatin1(widget.metaObject()->className());
    report[QStringLiteral("text")] = textOf(widget);
    report[QStringLiteral("enabled")] = widget.isEnabled();
    report[QStringLiteral("focus")] = widget.hasFocus();
    report[QStringLiteral("checked")] = widget.property("checkState").isValid()
                                            ? widget.property("checkState").toInt()
                                            : widget.property("checked").toInt();
    report[QStringLiteral("window")] = QString::fromLatin1(widget.window()->metaObject()->className());
    // What part of it is not scrolled away or covered by an edge.
    report[QStringLiteral("seen")] = !widget.visibleRegion().isEmpty();
    return report;
}

void collect(const QAbstractItemView& view, const QModelIndex& parent, QJsonArray* items)
{
    for (int row = 0; row < view.model()->rowCount(parent); ++row) {
        for (int column = 0; column < view.model()->columnCount(parent); ++column) {
            const QModelIndex index = view.model()->index(row, column, parent);
            const QRect area = view.visualRect(index) & view.viewport()->rect();
            if (area.isEmpty())
                continue;
            QJsonObject report = rectangle(*view.viewport(), area);
            report[QStringLiteral("text")] = index.data().toString();
            report[QStringLiteral("column")] = column;
            report[QStringLiteral("checked")] = index.data(Qt::CheckStateRole).toInt();
            report[QStringLiteral("selected")] = view.selectionModel()->isSelected(index);
            items->append(report);
        }
        const QModelIndex first = view.model()->index(row, 0, parent);
        const auto* tree = qobject_cast<const QTreeView*>(&view);
        if (tree != nullptr && tree->isExpanded(first))
            collect(view, first, items);
    }
}

} // namespace

QJsonArray reportWindows()
{
    QJsonArray windows;
    const QWidgetList all = QApplication::topLevelWidgets();
    for (const QWidget* window : all) {
        if (window->isVisible())
            windows.append(describe(*window));
    }
    return windows;
}

QJsonArray reportWidgets(const QString& name)
{
    QJsonArray widgets;
    const QWidgetList all = QApplication::allWidgets();
    for (const QWidget* widget : all) {
        if (widget->objectName() == name && widget->isVisible())
            widgets.append(describe(*widget));
    }
    return widgets;
}

QJsonArray reportItems(const QString& name)
{
    QJsonArray items;
    const QWidgetList all = QApplication::allWidgets();
    for (const QWidget* widget : all) {
        const auto* view = qobject_cast<const QAbstractItemView*>(widget);
        if (view != nullptr && view->isVisible() && view->objectName() == name && view->model() != nullptr)
            collect(*view, view->rootIndex(), &items);
    }
    return items;
}
