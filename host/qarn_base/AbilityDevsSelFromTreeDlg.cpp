#include <qarn_base/AbilityDevsSelFromTreeDlg.h>

#include "DialogButtons.h"
#include "ReasonLabel.h"

#include <qarn_base/AbilityDevsTree.h>

#include <XCOMMON/XPushButton.h>

#include <QHBoxLayout>
#include <QLabel>

namespace qarn_base
{

namespace
{
constexpr int TreeWidth = 424; ///< pixels
constexpr int LeastTreeHeight = 160;
constexpr int TreeHeight = 273;
} // namespace

struct AbilityDevsSelFromTreeDlg::Private {
    AbilityDevsTree* tree;
    ReasonLabel* reason;
    XCOMMON::XPushButton* okBt;
    XCOMMON::XPushButton* cancelBt;
};

AbilityDevsSelFromTreeDlg::AbilityDevsSelFromTreeDlg(QWidget* parent, int ability, int otherAbility,
                                                     bool showOffline, const QString& title,
                                                     const QString& prompt, const QString& acceptText)
    : CommonDialog(parent),
      p(std::make_unique<Private>())
{
    setTitle(title);
    build(prompt, acceptText);
    p->tree->buildTree(ability, otherAbility, showOffline, true);
    connect(p->tree, &QTreeWidget::itemChanged, p->reason, &ReasonLabel::hideReason);
    connect(p->okBt, &QPushButton::clicked, this, &AbilityDevsSelFromTreeDlg::confirm);
    connect(p->cancelBt, &QPushButton::clicked, this, &QDialog::reject);
}

AbilityDevsSelFromTreeDlg::~AbilityDevsSelFromTreeDlg() = default;

void AbilityDevsSelFromTreeDlg::build(const QString& prompt, const QString& acceptText)
{
    auto* label = new QLabel(prompt, this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    p->tree = new AbilityDevsTree(this);
    p->tree->setMinimumSize(TreeWidth, LeastTreeHeight);
    label->setBuddy(p->tree);
    p->reason = new ReasonLabel(1, this);
    p->okBt = makeDialogButton(QStringLiteral("okBt"), acceptText, this);
    makePrimary(p->okBt);
    p->cancelBt = makeDialogButton(QStringLiteral("cancelBt"), tr("Cancel"), this);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(15);
    buttons->addStretch();
    buttons->addWidget(p->okBt);
    buttons->addWidget(p->cancelBt);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(40, TitleBarHeight + 16, 40, 20);
    layout->setSpacing(8);
    layout->addWidget(label);
    layout->addWidget(p->tree, 1);
    layout->addWidget(p->reason);
    layout->addLayout(buttons);
    resize(sizeHint().expandedTo(QSize(0, minimumSizeHint().height() + TreeHeight - LeastTreeHeight)));
}

QList<QPair<QString, int>> AbilityDevsSelFromTreeDlg::getCheckedChannels() const
{
    return p->tree->getCheckedChannels();
}

void AbilityDevsSelFromTreeDlg::confirm()
{
    if (!p->tree->getCheckedChannels().isEmpty()) {
        accept();
        return;
    }
    p->reason->showReason(tr("Check at least one channel."));
    p->tree->setFocus();
}

} // namespace qarn_base
