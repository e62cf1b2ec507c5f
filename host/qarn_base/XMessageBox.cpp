#include <qarn_base/XMessageBox.h>

#include "DialogButtons.h"

#include <XCOMMON/XPushButton.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QStyle>

namespace qarn_base
{

namespace
{

constexpr int IconSide = 32; ///< pixels
constexpr int LeastWidth = 360;
} // namespace

XMessageBox::XMessageBox(Kind kind, const QString& text, quint16 buttons, QWidget* parent)
    : CommonDialog(parent)
{
    setTitle(kind == Kind::Question ? tr("Question") : tr("Information"));
    setMinimumWidth(LeastWidth);
    setAccessibleDescription(text);

    auto* icon = new QLabel(this);
    const QStyle::StandardPixmap picture =
        kind == Kind::Question ? QStyle::SP_MessageBoxQuestion : QStyle::SP_MessageBoxInformation;
    icon->setPixmap(
        style()->standardIcon(picture, nullptr, this).pixmap(windowHandle(), QSize(IconSide, IconSide)));
    auto* label = new QLabel(text, this);
    label->setObjectName(QStringLiteral("text"));
    label->setTextFormat(Qt::PlainText); // names that are quoted in it may hold anything
    label->setWordWrap(true);
    auto* message = new QHBoxLayout;
    message->setSpacing(16);
    message->addWidget(icon, 0, Qt::AlignTop);
    message->addWidget(label, 1);

    auto* row = new QHBoxLayout;
    row->setSpacing(15);
    row->addStretch();
    // A box without any button could not be answered.
    if (buttons & Ok || !(buttons & Cancel)) {
        auto* okBt = makeDialogButton(QStringLiteral("okBt"), tr("Ok"), this);
        makePrimary(okBt);
        row->addWidget(okBt);
        connect(okBt, &QPushButton::clicked, this, [this] { done(Ok); });
    }
    if (buttons & Cancel) {
        auto* cancelBt = makeDialogButton(QStringLiteral("cancelBt"), tr("Cancel"), this);
        row->addWidget(cancelBt);
        connect(cancelBt, &QPushButton::clicked, this, [this] { done(Cancel); });
    }

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, TitleBarHeight + 24, 24, 20);
    layout->setSpacing(24);
    layout->addLayout(message, 1);
    layout->addLayout(row);
}

XMessageBox::Button XMessageBox::ask(Kind kind, QWidget* parent, const QString& text, quint16 buttons)
{
    // The parent may go, and take the box with it, while the box waits for its answer.
    const QPointer<XMessageBox> box = new XMessageBox(kind, text, buttons, parent);
    const int answer = box->exec();
    if (box.isNull())
        return Cancel;
    box->deleteLater();
    return answer == Ok ? Ok : Cancel;
}

XMessageBox::Button XMessageBox::question(QWidget* parent, const QString& text, quint16 buttons, bool)
{
    return ask(Kind::Question, parent, text, buttons);
}

XMessageBox::Button XMessageBox::information(QWidget* parent, const QString& text, quint16 buttons, bool)
{
    return ask(Kind::Information, parent, text, buttons);
}

} // namespace qarn_base
