#include "Pages.h"
#include "Shown.h"

#include <qarn_base/EditOperWt.h>
#include <qarn_base/ExpandInfoBt.h>
#include <qarn_base/IconButton.h>
#include <qarn_base/TreeItemOperWt.h>

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

#include <array>

namespace
{

struct ShownState {
    const char* name;
    QStyle::State state;
    bool enabled;
};

const std::array<ShownState, 5> states = {{{"normal", QStyle::State_None, true},
                                           {"hover", QStyle::State_MouseOver, true},
                                           {"pressed", QStyle::State_MouseOver | QStyle::State_Sunken, true},
                                           {"focus", QStyle::State_HasFocus, true},
                                           {"disabled", QStyle::State_None, false}}};

void addPushButtons(QGridLayout* grid, int row, const char* property, const QString& text)
{
    grid->addWidget(new QLabel(QLatin1String(property)), row, 0);
    int column = 1;
    for (const ShownState& shown : states) {
        auto* button = new Shown<QPushButton>(text, shown.state);
        button->setFixedSize(96, 28);
        button->setProperty(property, true);
        button->setEnabled(shown.enabled);
        grid->addWidget(button, row, column++);
    }
}

template <typename Box>
void addBoxes(QGridLayout* grid, int row, const QString& name, Qt::CheckState check)
{
    grid->addWidget(new QLabel(name), row, 0);
    int column = 1;
    for (const ShownState& shown : states) {
        auto* box = new Shown<Box>(QStringLiteral("All"), shown.state);
        if constexpr (std::is_same_v<Box, QCheckBox>) {
            box->setTristate(check == Qt::PartiallyChecked);
            box->setCheckState(check);
        } else {
            box->setAutoExclusive(false);
            box->setChecked(check == Qt::Checked);
        }
        box->setEnabled(shown.enabled);
        grid->addWidget(box, row, column++);
    }
}

QWidget* makeToolBar()
{
    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    const std::array<std::pair<const char*, const char*>, 6> buttons = {
        {{"Add Person", "add_iconBt_n"},
         {"Del Person", "delete_iconBt_n"},
         {"Move Person", "organization_iconBt"},
         {"Import Person", "import_iconBt_n"},
         {"Export Person", "export_iconBt_n"},
         {"CustomProperty", "config_iconBt_n"}}};
    for (const auto& [text, image] : buttons) {
        auto* button = new qarn_base::IconButton;
        const QString path = QStringLiteral(":/images/images/%1.png").arg(QLatin1String(image));
        button->setIcons(path, path);
        button->setText(QLatin1String(text));
        button->setFixedHeight(28);
        button->setProperty("common_bt_style2", true);
        row->addWidget(button);
    }
    row->addStretch();
    return bar;
}

QWidget* makeSmallButtons()
{
    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(24);
    row->addWidget(new qarn_base::EditOperWt(QStringLiteral("id")));
    row->addWidget(new qarn_base::TreeItemOperWt(false, true, true, true));
    auto* tool = new QToolButton;
    tool->setText(QStringLiteral("tool button"));
    row->addWidget(tool);
    for (const char* image : {"edit_n", "edit_h", "delete_n", "delete_h"}) {
        auto* button = new QPushButton; // as the rows of the list have them
        button->setFixedSize(18, 18);
        button->setStyleSheet(QStringLiteral("QPushButton{border-image:url(:/images/images/%1.png);}")
                                  .arg(QLatin1String(image)));
        row->addWidget(button);
    }
    auto* expand = new qarn_base::ExpandInfoBt;
    expand->setText(QStringLiteral("Custom Info"));
    expand->setFixedWidth(220);
    row->addWidget(expand);
    row->addStretch();
    return bar;
}

} // namespace

QWidget* makeButtonsPage()
{
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(30, 30, 30, 30);
    grid->setVerticalSpacing(14);
    int column = 1;
    for (const ShownState& shown : states)
        grid->addWidget(new QLabel(QLatin1String(shown.name)), 0, column++);
    grid->setColumnStretch(column, 1);
    addPushButtons(grid, 1, "common_bt_style1", QStringLiteral("Search"));
    addPushButtons(grid, 2, "common_bt_style2", QStringLiteral("Add continuously"));
    addPushButtons(grid, 3, "none", QStringLiteral("Plain"));
    addBoxes<QCheckBox>(grid, 4, QStringLiteral("check box"), Qt::Unchecked);
    addBoxes<QCheckBox>(grid, 5, QStringLiteral("check box, checked"), Qt::Checked);
    addBoxes<QCheckBox>(grid, 6, QStringLiteral("check box, partly"), Qt::PartiallyChecked);
    addBoxes<QRadioButton>(grid, 7, QStringLiteral("radio button"), Qt::Unchecked);
    addBoxes<QRadioButton>(grid, 8, QStringLiteral("radio button, checked"), Qt::Checked);
    grid->addWidget(makeToolBar(), 9, 0, 1, 7);
    grid->addWidget(makeSmallButtons(), 10, 0, 1, 7);
    grid->setRowStretch(11, 1);
    return page;
}
