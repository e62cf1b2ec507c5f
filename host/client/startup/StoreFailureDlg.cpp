#include "startup/StoreFailureDlg.h"

#include <XCOMMON/XFileDialog.h>
#include <XCOMMON/XPushButton.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace
{

XCOMMON::XPushButton* addButton(QHBoxLayout* row, const char* name, const QString& text, const char* style)
{
    auto* button = new XCOMMON::XPushButton(row->parentWidget());
    button->setObjectName(QLatin1String(name));
    button->setText(text);
    button->setProperty(style, true);
    button->setMinimumSize(110, 28);
    row->addWidget(button);
    return button;
}

} // namespace

StoreFailureDlg::StoreFailureDlg(const QString& reason, QWidget* parent) : CommonDialog(parent)
{
    setTitle(tr("The person register cannot be opened"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(28, TitleBarHeight + 24, 28, 20);
    column->setSpacing(24);
    auto* text =
        new QLabel(reason + QStringLiteral("\n\n") +
                       tr("Nothing was changed. Try again once the cause is gone, or use another file."),
                   this);
    text->setObjectName(QStringLiteral("reason"));
    text->setWordWrap(true);
    text->setMinimumWidth(440);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    column->addWidget(text);

    auto* row = new QHBoxLayout;
    column->addLayout(row);
    row->setSpacing(12);
    row->addStretch(1);
    auto* retry = addButton(row, "retryBt", tr("Try again"), "common_bt_style1");
    auto* other = addButton(row, "otherFileBt", tr("Another file..."), "common_bt_style2");
    auto* quit = addButton(row, "quitBt", tr("Quit"), "common_bt_style2");
    retry->setDefault(true);
    connect(retry, &QPushButton::clicked, this, [this] { finish(TryAgain); });
    connect(other, &QPushButton::clicked, this, &StoreFailureDlg::chooseFile);
    connect(quit, &QPushButton::clicked, this, [this] { finish(Quit); });
}

void StoreFailureDlg::chooseFile()
{
    const QString start = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    m_anotherFile = XCOMMON::XFileDialog::getSaveFileName(this, tr("Open or make a person register"), start,
                                                          tr("Person register (*.db)"), nullptr,
                                                          QFileDialog::DontConfirmOverwrite);
    if (!m_anotherFile.isEmpty())
        finish(AnotherFile);
}

void StoreFailureDlg::finish(Choice choice)
{
    m_choice = choice;
    done(choice);
}
