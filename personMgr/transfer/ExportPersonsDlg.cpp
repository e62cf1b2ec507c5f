#include "transfer/ExportPersonsDlg.h"

#include "shared/Alerts.h"
#include "transfer/NamingRule.h"
#include "transfer/PersonFileFormat.h"
#include "ui_ExportPersonsDlg.h"

#include <QSignalBlocker>

namespace qarn_personMgr
{

namespace
{

/// The only column of both trees.
constexpr int ItemColumn = 0;
/// The item that stands for all others.
constexpr int AllItem = 0;

struct ColumnTitle {
    int code;
    const char* title; ///< in the file; differs from the item's text
};

// In the order of the items below the first one.
constexpr ColumnTitle infoColumns[] = {
    {SerialNumColumn, QT_TRANSLATE_NOOP("qarn_personMgr::ExportPersonsDlg", "*Serail Num")},
    {NameColumn, QT_TRANSLATE_NOOP("qarn_personMgr::ExportPersonsDlg", "*Person Name")},
    {OrganizationColumn, QT_TRANSLATE_NOOP("qarn_personMgr::ExportPersonsDlg", "Organization")},
    {SexColumn, QT_TRANSLATE_NOOP("qarn_personMgr::ExportPersonsDlg", "Sex")},
    {EmailColumn, QT_TRANSLATE_NOOP("qarn_personMgr::ExportPersonsDlg", "Email")},
    {PhoneNumColumn, QT_TRANSLATE_NOOP("qarn_personMgr::ExportPersonsDlg", "Phone Num")},
    {IdentityIdColumn, QT_TRANSLATE_NOOP("qarn_personMgr::ExportPersonsDlg", "Identity ID")},
    {ValidTimeColumn, QT_TRANSLATE_NOOP("qarn_personMgr::ExportPersonsDlg", "Valid Time")},
    {InvalidTimeColumn, QT_TRANSLATE_NOOP("qarn_personMgr::ExportPersonsDlg", "Invalid Time")},
};
constexpr int faceColumns[] = {SerialNumColumn, NameColumn, SexColumn, PhoneNumColumn, IdentityIdColumn};

/// The codes of a tree's items below the first one.
QList<int> columnCodes(bool faceMode)
{
    if (faceMode)
        return QList<int>(std::begin(faceColumns), std::end(faceColumns));
    QList<int> codes;
    for (const ColumnTitle& column : infoColumns)
        codes.append(column.code);
    return codes;
}

QString columnTitle(int code)
{
    for (const ColumnTitle& column : infoColumns) {
        if (column.code == code)
            return ExportPersonsDlg::tr(column.title);
    }
    return QString();
}

Qt::CheckState stateOfAll(const QTreeWidget* tree)
{
    int checked = 0;
    const int others = tree->topLevelItemCount() - 1;
    for (int i = AllItem + 1; i <= others; ++i)
        checked += tree->topLevelItem(i)->checkState(ItemColumn) == Qt::Checked ? 1 : 0;
    if (checked == 0)
        return Qt::Unchecked;
    return checked == others ? Qt::Checked : Qt::PartiallyChecked;
}

} // namespace

ExportPersonsDlg::ExportPersonsDlg(QWidget* parent) : CommonDialog(parent), m_ui(new Ui::ExportPersonsDlg)
{
    m_ui->setupUi(this);
    const QTreeWidget* faces = m_ui->personFaceTreeWt;
    m_ui->namingRules->setText(QStringLiteral("%1_%2_%3")
                                   .arg(faces->topLevelItem(1)->text(ItemColumn),
                                        faces->topLevelItem(2)->text(ItemColumn),
                                        faces->topLevelItem(3)->text(ItemColumn)));
    connectTree(m_ui->personInfoTreeWt);
    connectTree(m_ui->personFaceTreeWt);
    connect(m_ui->personChecked, &QRadioButton::clicked, this,
            [this] { m_ui->stackedWidget->setCurrentWidget(m_ui->page_1); });
    connect(m_ui->faceChecked, &QRadioButton::clicked, this,
            [this] { m_ui->stackedWidget->setCurrentWidget(m_ui->page_2); });
    connect(m_ui->exportBt, &QPushButton::clicked, this, &ExportPersonsDlg::exportPersons);
    connect(m_ui->cancelBt, &QPushButton::clicked, this, &ExportPersonsDlg::reject);
}

ExportPersonsDlg::~ExportPersonsDlg() = default;

bool ExportPersonsDlg::isFaceMode() const
{
    return m_ui->faceChecked->isChecked();
}

bool ExportPersonsDlg::isExportChildren() const
{
    return m_ui->exportChildren->isChecked();
}

int ExportPersonsDlg::getColumns(QStringList& headerTitles) const
{
    headerTitles.clear();
    int mask = 0;
    int position = AllItem;
    for (const int code : columnCodes(isFaceMode())) {
        if (currentTree()->topLevelItem(++position)->checkState(ItemColumn) != Qt::Checked)
            continue;
        headerTitles.append(columnTitle(code));
        mask |= code;
    }
    return mask;
}

QList<int> ExportPersonsDlg::getFaceElements() const
{
    QStringList words;
    for (int i = AllItem + 1; i < m_ui->personFaceTreeWt->topLevelItemCount(); ++i)
        words.append(m_ui->personFaceTreeWt->topLevelItem(i)->text(ItemColumn));
    const QList<int> codes = columnCodes(true);
    QList<int> elements;
    for (const int position : namingRulePositions(m_ui->namingRules->text().trimmed(), words))
        elements.append(codes.value(position, IdentityIdColumn));
    return elements;
}

void ExportPersonsDlg::slotItemClicked(QTreeWidgetItem* item, int /*column*/)
{
    if (m_handledStates.value(item) == item->checkState(ItemColumn))
        return;
    QTreeWidget* tree = item->treeWidget();
    QTreeWidgetItem* all = tree->topLevelItem(AllItem);
    const QSignalBlocker blocker(tree);
    QList<QTreeWidgetItem*> changed{item};
    if (item == all) {
        changed = applyToAll(all);
    } else {
        all->setCheckState(ItemColumn, stateOfAll(tree));
        remember(all);
    }
    remember(item);
    if (isFaceMode())
        updateNamingRules(changed);
}

void ExportPersonsDlg::connectTree(QTreeWidget* tree)
{
    for (int i = AllItem; i < tree->topLevelItemCount(); ++i)
        remember(tree->topLevelItem(i));
    connect(tree, &QTreeWidget::itemClicked, this, &ExportPersonsDlg::slotItemClicked);
    // The keyboard changes a box without a click.
    connect(tree, &QTreeWidget::itemChanged, this, &ExportPersonsDlg::slotItemClicked);
}

void ExportPersonsDlg::remember(QTreeWidgetItem* item)
{
    m_handledStates.insert(item, item->checkState(ItemColumn));
}

/// Gives all other items the state of the first one; returns those that had another.
QList<QTreeWidgetItem*> ExportPersonsDlg::applyToAll(QTreeWidgetItem* all)
{
    QList<QTreeWidgetItem*> changed;
    const QTreeWidget* tree = all->treeWidget();
    for (int i = AllItem + 1; i < tree->topLevelItemCount(); ++i) {
        QTreeWidgetItem* item = tree->topLevelItem(i);
        if (item->checkState(ItemColumn) == all->checkState(ItemColumn))
            continue;
        item->setCheckState(ItemColumn, all->checkState(ItemColumn));
        remember(item);
        changed.append(item);
    }
    return changed;
}

void ExportPersonsDlg::updateNamingRules(const QList<QTreeWidgetItem*>& changed)
{
    QString rule = m_ui->namingRules->text();
    for (const QTreeWidgetItem* item : changed)
        rule =
            namingRuleWithElement(rule, item->text(ItemColumn), item->checkState(ItemColumn) == Qt::Checked);
    m_ui->namingRules->setText(rule);
}

QTreeWidget* ExportPersonsDlg::currentTree() const
{
    return isFaceMode() ? m_ui->personFaceTreeWt : m_ui->personInfoTreeWt;
}

void ExportPersonsDlg::exportPersons()
{
    if (currentTree()->topLevelItem(AllItem)->checkState(ItemColumn) == Qt::Unchecked)
        alertWarning(tr("Please select export columns"));
    else
        accept();
}

} // namespace qarn_personMgr
