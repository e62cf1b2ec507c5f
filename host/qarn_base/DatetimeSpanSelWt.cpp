#include <qarn_base/DatetimeSpanSelWt.h>

#include "DatetimeSpanRules.h"
#include "DialogButtons.h"
#include "ReasonLabel.h"

#include <XCOMMON/XPushButton.h>
#include <qarn_base/HostColors.h>

#include <QDateTimeEdit>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScreen>

namespace qarn_base
{

namespace
{
constexpr int FieldWidth = 190; ///< pixels
constexpr int FieldHeight = 28;
constexpr qint64 SecondsAnHour = 3600;
constexpr qint64 SecondsADay = 24 * SecondsAnHour;
} // namespace

struct DatetimeSpanSelWt::Private {
    QDateTime originalStart;
    QDateTime originalEnd;
    qint64 maxSpanSecs = 0;
    QDateTimeEdit* start;
    QDateTimeEdit* end;
    ReasonLabel* reason;
    XCOMMON::XPushButton* okBt;
    XCOMMON::XPushButton* cancelBt;

    void build(DatetimeSpanSelWt* q);
    QString textOf(SpanProblem problem) const;
    QString maxSpanText() const;
};

namespace
{

QDateTimeEdit* makeField(const QString& name, const QString& accessibleName, QWidget* parent)
{
    auto* field = new QDateTimeEdit(parent);
    field->setObjectName(name);
    field->setAccessibleName(accessibleName);
    // In local time the field would put back what is typed of an hour that the clock change skips.
    field->setTimeSpec(Qt::UTC);
    field->setDisplayFormat(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
    field->setCalendarPopup(true);
    field->setFixedSize(FieldWidth, FieldHeight);
    return field;
}

} // namespace

DatetimeSpanSelWt::DatetimeSpanSelWt(QWidget* parent, bool popup)
    : QWidget(parent, popup ? Qt::Popup | Qt::FramelessWindowHint : Qt::Widget),
      d(std::make_unique<Private>())
{
    d->build(this);
    const QDateTime now = QDateTime::currentDateTime();
    setInitDateTime(now, now);
    connect(d->start, &QDateTimeEdit::dateTimeChanged, d->reason, &ReasonLabel::hideReason);
    connect(d->end, &QDateTimeEdit::dateTimeChanged, d->reason, &ReasonLabel::hideReason);
    connect(d->okBt, &QPushButton::clicked, this, &DatetimeSpanSelWt::confirm);
    connect(d->cancelBt, &QPushButton::clicked, this, &QWidget::hide);
}

DatetimeSpanSelWt::~DatetimeSpanSelWt() = default;

void DatetimeSpanSelWt::Private::build(DatetimeSpanSelWt* q)
{
    start = makeField(QStringLiteral("startDateTime"), tr("Start"), q);
    end = makeField(QStringLiteral("endDateTime"), tr("End"), q);
    reason = new ReasonLabel(2, q);
    okBt = makeDialogButton(QStringLiteral("okBt"), tr("Ok"), q);
    makePrimary(okBt);
    cancelBt = makeDialogButton(QStringLiteral("cancelBt"), tr("Cancel"), q);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(15);
    buttons->addStretch();
    buttons->addWidget(okBt);
    buttons->addWidget(cancelBt);
    auto* layout = new QGridLayout(q);
    layout->setContentsMargins(16, 14, 16, 14);
    layout->setHorizontalSpacing(12);
    layout->setVerticalSpacing(8);
    layout->addWidget(new QLabel(tr("Start"), q), 0, 0);
    layout->addWidget(start, 0, 1);
    layout->addWidget(new QLabel(tr("End"), q), 1, 0);
    layout->addWidget(end, 1, 1);
    layout->addWidget(reason, 2, 0, 1, 2);
    layout->addLayout(buttons, 3, 0, 1, 2);
    QWidget::setTabOrder(start, end);
}

void DatetimeSpanSelWt::setInitDateTime(const QDateTime& start, const QDateTime& end)
{
    const QDateTime now = QDateTime::currentDateTime();
    d->originalStart = start.isValid() ? start : now;
    d->originalEnd = end.isValid() ? end : d->originalStart;
    d->start->setDateTime(wallClock(d->originalStart));
    d->end->setDateTime(wallClock(d->originalEnd));
    d->reason->hideReason();
}

void DatetimeSpanSelWt::setMaxSpanSecs(qint64 seconds)
{
    d->maxSpanSecs = seconds;
}

void DatetimeSpanSelWt::confirm()
{
    d->start->interpretText();
    d->end->interpretText();
    const QDateTime start = editedTime(d->originalStart, d->start->dateTime());
    const QDateTime end = editedTime(d->originalEnd, d->end->dateTime());
    const SpanProblem problem = checkSpan(start, end, d->maxSpanSecs);
    if (problem == SpanProblem::None) {
        hide();
        emit signalDatetimeSpanSelChanged(start, end);
        return;
    }
    d->reason->showReason(d->textOf(problem));
    (problem == SpanProblem::NoStart ? d->start : d->end)->setFocus();
}

QString DatetimeSpanSelWt::Private::textOf(SpanProblem problem) const
{
    switch (problem) {
    case SpanProblem::None:
        break;
    case SpanProblem::NoStart:
        return tr("The clock change skips this start time. Choose another one.");
    case SpanProblem::NoEnd:
        return tr("The clock change skips this end time. Choose another one.");
    case SpanProblem::EndBeforeStart:
        return tr("The end must not be before the start.");
    case SpanProblem::TooLong:
        return tr("The period must not be longer than %1.").arg(maxSpanText());
    }
    return QString();
}

QString DatetimeSpanSelWt::Private::maxSpanText() const
{
    if (maxSpanSecs % SecondsADay == 0)
        return tr("%1 days").arg(maxSpanSecs / SecondsADay);
    if (maxSpanSecs % SecondsAnHour == 0)
        return tr("%1 hours").arg(maxSpanSecs / SecondsAnHour);
    return tr("%1 seconds").arg(maxSpanSecs);
}

void DatetimeSpanSelWt::showEvent(QShowEvent* event)
{
    if (isWindow()) {
        adjustSize();
        const QScreen* at = QGuiApplication::screenAt(pos());
        const QRect room = (at != nullptr ? at : screen())->availableGeometry();
        move(qMax(room.left(), qMin(x(), room.right() + 1 - width())),
             qMax(room.top(), qMin(y(), room.bottom() + 1 - height())));
    }
    QWidget::showEvent(event);
    d->start->setFocus(Qt::PopupFocusReason);
}

void DatetimeSpanSelWt::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        confirm();
    else if (event->key() == Qt::Key_Escape)
        hide();
    else
        QWidget::keyPressEvent(event);
}

void DatetimeSpanSelWt::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), colors::Panel);
    painter.setPen(colors::Border);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace qarn_base
