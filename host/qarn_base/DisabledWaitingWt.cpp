#include <qarn_base/DisabledWaitingWt.h>

#include "BusyIndicator.h"
#include "InputBlocker.h"

#include <qarn_base/DisabledWaitingWtManager.h>
#include <qarn_base/HostColors.h>

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>

namespace qarn_base
{

namespace
{

constexpr int PanelWidth = 320; ///< pixels
constexpr int ShadeAlpha = 160;

QLabel* makeLabel(const QString& name, const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setWordWrap(true);
    label->setFixedWidth(PanelWidth - 40);
    return label;
}

} // namespace

struct DisabledWaitingWt::Private {
    QUuid uuid = QUuid::createUuid();
    bool transparent = false;
    QWidget* panel;
    QLabel* caption;
    QLabel* description;
    std::unique_ptr<InputBlocker> blocker; ///< while the overlay is shown
};

DisabledWaitingWt::DisabledWaitingWt(QWidget* parent, const QString& caption, const QString& description,
                                     bool transparent)
    : QWidget(parent),
      d(std::make_unique<Private>())
{
    d->transparent = transparent;
    build(caption, description);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::BusyCursor);
    setAccessibleName(caption);
    setAccessibleDescription(description);
    if (parent != nullptr) {
        parent->installEventFilter(this);
        setGeometry(parent->rect());
    }
    DisabledWaitingWtManager::instance().m_widgets.insert(d->uuid, this);
}

DisabledWaitingWt::~DisabledWaitingWt()
{
    DisabledWaitingWtManager::instance().m_widgets.remove(d->uuid);
}

void DisabledWaitingWt::build(const QString& caption, const QString& description)
{
    d->panel = new QWidget(this);
    d->panel->setFixedWidth(PanelWidth);
    auto* indicator = new BusyIndicator(d->panel);
    d->caption = makeLabel(QStringLiteral("caption"), caption, d->panel);
    d->description = makeLabel(QStringLiteral("description"), description, d->panel);

    auto* inside = new QVBoxLayout(d->panel);
    inside->setContentsMargins(20, 20, 20, 20);
    inside->setSpacing(10);
    inside->addWidget(indicator, 0, Qt::AlignHCenter);
    inside->addWidget(d->caption);
    inside->addWidget(d->description);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(d->panel, 0, Qt::AlignCenter);
}

QUuid DisabledWaitingWt::getUuid() const
{
    return d->uuid;
}

void DisabledWaitingWt::updateDescription(const QString& description)
{
    d->description->setText(description);
    setAccessibleDescription(description);
}

bool DisabledWaitingWt::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parent()) {
        if (event->type() == QEvent::Resize)
            setGeometry(parentWidget()->rect());
        else if (event->type() == QEvent::ChildPolished)
            raise(); // what is added meanwhile comes below
    }
    return QWidget::eventFilter(watched, event);
}

bool DisabledWaitingWt::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::KeyRelease:
        event->accept();
        return true;
    case QEvent::KeyPress:
        event->accept();
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Tab)
            focusNextPrevChild(true);
        else if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Backtab)
            focusNextPrevChild(false);
        return true;
    default:
        return QWidget::event(event);
    }
}

/// Tab leads out of the covered widget, never into it.
bool DisabledWaitingWt::focusNextPrevChild(bool next)
{
    const auto step = [next](QWidget* w) { return next ? w->nextInFocusChain() : w->previousInFocusChain(); };
    for (QWidget* widget = step(this); widget != this; widget = step(widget)) {
        const bool reachable = (widget->focusPolicy() & Qt::TabFocus) && widget->isVisible() &&
                               widget->isEnabled() && widget->window() == window();
        if (reachable && parentWidget() != nullptr && !parentWidget()->isAncestorOf(widget) &&
            widget != parentWidget()) {
            widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
    return true;
}

void DisabledWaitingWt::paintEvent(QPaintEvent*)
{
    if (d->transparent)
        return;
    QPainter painter(this);
    QColor shade = colors::Window;
    shade.setAlpha(ShadeAlpha);
    painter.fillRect(rect(), shade);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colors::Line);
    painter.setBrush(colors::Panel);
    painter.drawRoundedRect(QRectF(d->panel->geometry()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
}

void DisabledWaitingWt::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    raise();
    if (parentWidget() != nullptr && !d->blocker)
        d->blocker = std::make_unique<InputBlocker>(*parentWidget(), *this);
}

void DisabledWaitingWt::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (!isHidden() || !d->blocker)
        return; // the whole window went out of sight; the work goes on
    const std::unique_ptr<InputBlocker> blocker = std::move(d->blocker);
    blocker->restoreFocus();
}

} // namespace qarn_base
