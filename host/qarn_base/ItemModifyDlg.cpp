#include <qarn_base/ItemModifyDlg.h>

#include "DialogButtons.h"
#include "PlainToolTip.h"
#include "ReasonLabel.h"

#include <XCOMMON/XLineEdit.h>
#include <XCOMMON/XPushButton.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QToolTip>

namespace qarn_base
{

namespace
{
constexpr int FieldHeight = 28; ///< pixels
constexpr int DialogWidth = 420;
constexpr int ToolTipRise = 60;
} // namespace

struct ItemModifyDlg::Private {
    NameCheck nameCheck;
    ModifyType type = AddItem;
    QString id;
    int nameMaxLength = 32767; ///< what a line edit takes
    XCOMMON::XLineEdit* name;
    ReasonLabel* reason;
    XCOMMON::XPushButton* addContinuouslyBt;
    XCOMMON::XPushButton* okBt;
    XCOMMON::XPushButton* cancelBt;

    void build(ItemModifyDlg* q);
    QString refusal(const QString& name) const;
    bool check() const;
};

ItemModifyDlg::ItemModifyDlg(NameCheck nameCheck, QWidget* parent)
    : CommonDialog(parent),
      p(std::make_unique<Private>())
{
    p->nameCheck = std::move(nameCheck);
    p->build(this);
    connect(p->name, &QLineEdit::textEdited, p->reason, &ReasonLabel::hideReason);
    connect(p->okBt, &QPushButton::clicked, this, &ItemModifyDlg::confirm);
    connect(p->addContinuouslyBt, &QPushButton::clicked, this, &ItemModifyDlg::addAndStay);
    connect(p->cancelBt, &QPushButton::clicked, this, &QDialog::reject);
}

ItemModifyDlg::~ItemModifyDlg() = default;

void ItemModifyDlg::Private::build(ItemModifyDlg* q)
{
    name = new XCOMMON::XLineEdit(q);
    name->setObjectName(QStringLiteral("name"));
    name->setAccessibleName(tr("Name"));
    name->setFixedHeight(FieldHeight);
    auto* label = new QLabel(tr("Name"), q);
    label->setBuddy(name);
    reason = new ReasonLabel(2, q);

    addContinuouslyBt = makeDialogButton(QStringLiteral("addContinuouslyBt"), tr("Add continuously"), q);
    okBt = makeDialogButton(QStringLiteral("okBt"), tr("Ok"), q);
    makePrimary(okBt);
    cancelBt = makeDialogButton(QStringLiteral("cancelBt"), tr("Cancel"), q);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(15);
    buttons->addStretch();
    for (XCOMMON::XPushButton* button : {addContinuouslyBt, okBt, cancelBt})
        buttons->addWidget(button);

    auto* layout = new QVBoxLayout(q);
    layout->setContentsMargins(24, TitleBarHeight + 20, 24, 20);
    layout->setSpacing(6);
    layout->addWidget(label);
    layout->addWidget(name);
    layout->addWidget(reason);
    layout->addSpacing(10);
    layout->addLayout(buttons);
    q->setMinimumWidth(DialogWidth);
}

void ItemModifyDlg::setModifyType(ModifyType type, const QString& title, const QString& name,
                                  const QString& id)
{
    p->type = type;
    p->id = id;
    setTitle(title);
    p->addContinuouslyBt->setVisible(type == AddItem);
    setItemName(name);
}

void ItemModifyDlg::setItemName(const QString& name)
{
    // A name that is already longer than what may be typed is shown whole rather than cut in secret.
    p->name->setMaxLength(qMax(p->nameMaxLength, name.length()));
    p->name->setText(name);
    p->name->selectAll();
    p->name->setFocus();
    p->reason->hideReason();
}

void ItemModifyDlg::setNameMaxLength(int length)
{
    p->nameMaxLength = length;
    p->name->setMaxLength(qMax(length, p->name->text().length()));
}

/// Why the name cannot be taken; empty when it can.
QString ItemModifyDlg::Private::refusal(const QString& trimmed) const
{
    if (trimmed.isEmpty())
        return tr("The name must not be blank.");
    if (nameCheck && nameCheck(trimmed, id))
        return tr("\"%1\" is already taken. Choose another name.").arg(trimmed);
    return QString();
}

bool ItemModifyDlg::Private::check() const
{
    const QString why = refusal(name->text().trimmed());
    if (why.isEmpty())
        return true;
    reason->showReason(why);
    // Above the field, so that neither the name nor the reason below it is covered.
    QToolTip::showText(name->mapToGlobal(QPoint(0, -ToolTipRise)), plainToolTip(why), name);
    name->setFocus();
    name->selectAll();
    return false;
}

void ItemModifyDlg::confirm()
{
    if (!p->check())
        return;
    const QString name = p->name->text().trimmed();
    if (p->type == AddItem)
        emit signalAddItem(name, false);
    else
        emit signalEditItem(p->id, name);
    accept();
}

void ItemModifyDlg::addAndStay()
{
    if (!p->check())
        return;
    emit signalAddItem(p->name->text().trimmed(), true);
    p->name->setFocus();
}

} // namespace qarn_base
