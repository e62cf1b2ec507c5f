#include "editor/CustomFieldsModifyDlg.h"

#include "editor/CustomFieldRules.h"
#include "shared/Alerts.h"
#include "ui_CustomFieldsModifyDlg.h"

#include <qarn_base/EditOperWt.h>
#include <qarn_base/XMessageBox.h>
#include <qarn_data/PersonData.h>

#include <QHeaderView>
#include <QLineEdit>
#include <QSet>
#include <QShortcut>
#include <QUuid>

using qarn_base::EditOperWt;
using qarn_base::XMessageBox;
using qarn_data::PersonData;

namespace qarn_personMgr
{

namespace
{
constexpr int NameColumnWidth = 200;
} // namespace

CustomFieldsModifyDlg::CustomFieldsModifyDlg(QWidget* parent)
    : CommonDialog(parent),
      m_ui(std::make_unique<Ui::CustomFieldsModifyDlg>())
{
    m_ui->setupUi(this);
    setTitle(tr("Custom Fields Set"));
    setUpTable();
    makeConnections();
    const QStringList fields = PersonData::instance().getCustomFields();
    for (const QString& name : fields)
        appendRow(name);
}

CustomFieldsModifyDlg::~CustomFieldsModifyDlg() = default;

void CustomFieldsModifyDlg::setUpTable()
{
    const QString icon = QStringLiteral(":/images/images/add_iconBt_n.png");
    m_ui->addFieldBt->setIcons(icon, icon);

    m_ui->tableWidget->setMouseTracking(true);
    // Every way to edit leads through editName(), which sees to the check of the name.
    m_ui->tableWidget->setEditTriggers(QAbstractItemView::NoEditTriggers);
    QHeaderView* header = m_ui->tableWidget->horizontalHeader();
    header->setSectionResizeMode(NameColumn, QHeaderView::Fixed);
    header->resizeSection(NameColumn, NameColumnWidth);
    header->setSectionResizeMode(OperColumn, QHeaderView::Stretch);
}

void CustomFieldsModifyDlg::makeConnections()
{
    connect(m_ui->addFieldBt, &QPushButton::clicked, this, &CustomFieldsModifyDlg::addField);
    connect(m_ui->okBt, &QPushButton::clicked, this, &CustomFieldsModifyDlg::save);
    connect(m_ui->cancelBt, &QPushButton::clicked, this, &CustomFieldsModifyDlg::reject);
    connect(m_ui->tableWidget, &QTableWidget::cellDoubleClicked, this, [this](int row, int column) {
        if (column == NameColumn)
            editName(m_ui->tableWidget->item(row, NameColumn)->data(RowIdRole).toString());
    });
    auto* renameKey = new QShortcut(QKeySequence(Qt::Key_F2), m_ui->tableWidget);
    renameKey->setContext(Qt::WidgetWithChildrenShortcut);
    connect(renameKey, &QShortcut::activated, this, &CustomFieldsModifyDlg::editCurrentName);
}

void CustomFieldsModifyDlg::appendRow(const QString& name)
{
    const QString rowId = QUuid::createUuid().toString();
    auto* item = new QTableWidgetItem(name);
    item->setFlags(item->flags() | Qt::ItemIsEditable);
    item->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    item->setToolTip(name);
    item->setData(AcceptedNameRole, name);
    item->setData(RowIdRole, rowId);

    auto* operWt = new EditOperWt(rowId);
    connect(operWt, &EditOperWt::signalEditBtClicked, this, &CustomFieldsModifyDlg::editName);
    connect(operWt, &EditOperWt::signalDeleteBtClicked, this, &CustomFieldsModifyDlg::deleteField);

    const int row = m_ui->tableWidget->rowCount();
    m_ui->tableWidget->insertRow(row);
    m_ui->tableWidget->setItem(row, NameColumn, item);
    auto* operItem = new QTableWidgetItem;
    operItem->setFlags(operItem->flags() & ~Qt::ItemIsEditable); // Tab out of a name opens nothing here
    m_ui->tableWidget->setItem(row, OperColumn, operItem);
    m_ui->tableWidget->setCellWidget(row, OperColumn, operWt);
}

void CustomFieldsModifyDlg::addField()
{
    settleNameEdit();
    if (m_ui->tableWidget->rowCount() >= MaxCustomFields) {
        alertWarning(tr("the maximum number of custom fields has been reached"));
        return;
    }
    const QStringList taken = names();
    appendRow(defaultCustomFieldName(tr("Custom Field"), QSet<QString>(taken.cbegin(), taken.cend())));
    QTableWidgetItem* added = m_ui->tableWidget->item(m_ui->tableWidget->rowCount() - 1, NameColumn);
    m_ui->tableWidget->scrollToItem(added);
    editName(added->data(RowIdRole).toString());
}

void CustomFieldsModifyDlg::editName(const QString& rowId)
{
    QTableWidgetItem* item = nameItem(rowId);
    if (item == nullptr || openEditor(item) != nullptr)
        return;
    settleNameEdit();
    m_ui->tableWidget->setCurrentItem(item);
    m_ui->tableWidget->editItem(item);
    if (QLineEdit* editor = openEditor(item))
        watchNameEditor(editor, rowId);
}

void CustomFieldsModifyDlg::editCurrentName()
{
    const int row = m_ui->tableWidget->currentRow();
    if (row >= 0)
        editName(m_ui->tableWidget->item(row, NameColumn)->data(RowIdRole).toString());
}

void CustomFieldsModifyDlg::deleteField(const QString& rowId)
{
    settleNameEdit();
    const auto answer = XMessageBox::question(this, tr("Do you want to delete this custom field?"),
                                              XMessageBox::Ok | XMessageBox::Cancel, false);
    if (answer != XMessageBox::Ok)
        return;
    if (const QTableWidgetItem* item = nameItem(rowId))
        m_ui->tableWidget->removeRow(item->row());
}

void CustomFieldsModifyDlg::save()
{
    settleNameEdit();
    PersonData::instance().resetCustomFields(names());
    accept();
}

void CustomFieldsModifyDlg::watchNameEditor(QLineEdit* editor, const QString& rowId)
{
    editor->setMaxLength(CustomFieldNameMaxLength);
    editor->selectAll(); // the limit has set the text anew
    m_nameEditor = editor;
    m_editedRowId = rowId;
    // Rows that light up under the mouse would disturb the editor.
    m_ui->tableWidget->setMouseTracking(false);
    const QWidget* watched = editor; // reported when it is no line edit any more
    connect(editor, &QObject::destroyed, &m_editorWatch, [this, watched, rowId] {
        checkName(rowId);
        if (m_nameEditor == nullptr || m_nameEditor == watched) { // else the next name is being edited
            m_nameEditor.clear();
            m_ui->tableWidget->setMouseTracking(true);
        }
    });
}

void CustomFieldsModifyDlg::settleNameEdit()
{
    if (m_nameEditor == nullptr)
        return;
    // An editor that the table has closed lives until control returns to the event loop, with nothing to
    // hand over any more.
    const QTableWidgetItem* item = nameItem(m_editedRowId);
    if (item != nullptr && openEditor(item) == m_nameEditor) {
        QAbstractItemDelegate* delegate = m_ui->tableWidget->itemDelegate();
        emit delegate->commitData(m_nameEditor);
        emit delegate->closeEditor(m_nameEditor);
    }
    m_nameEditor.clear();
    checkName(m_editedRowId);
}

void CustomFieldsModifyDlg::checkName(const QString& rowId)
{
    QTableWidgetItem* item = nameItem(rowId);
    if (item == nullptr)
        return;
    const QString accepted = item->data(AcceptedNameRole).toString();
    switch (decideRename(accepted, item->text(), names(item))) {
    case RenameDecision::Unchanged:
        break;
    case RenameDecision::Refused:
        item->setText(accepted);
        alertWarning(tr("custom field name has exist"));
        break;
    case RenameDecision::Accepted:
        item->setData(AcceptedNameRole, item->text());
        item->setToolTip(item->text());
        break;
    }
}

QLineEdit* CustomFieldsModifyDlg::openEditor(const QTableWidgetItem* item) const
{
    return qobject_cast<QLineEdit*>(m_ui->tableWidget->cellWidget(item->row(), NameColumn));
}

QTableWidgetItem* CustomFieldsModifyDlg::nameItem(const QString& rowId) const
{
    for (int row = 0; row < m_ui->tableWidget->rowCount(); ++row) {
        QTableWidgetItem* item = m_ui->tableWidget->item(row, NameColumn);
        if (item->data(RowIdRole).toString() == rowId)
            return item;
    }
    return nullptr;
}

QStringList CustomFieldsModifyDlg::names(const QTableWidgetItem* except) const
{
    QStringList texts;
    for (int row = 0; row < m_ui->tableWidget->rowCount(); ++row) {
        const QTableWidgetItem* item = m_ui->tableWidget->item(row, NameColumn);
        if (item != except)
            texts.append(item->text());
    }
    return texts;
}

} // namespace qarn_personMgr
