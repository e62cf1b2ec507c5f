#pragma once

#include <qarn_base/CommonDialog.h>

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <memory>

class QLineEdit;
class QTableWidgetItem;

namespace qarn_personMgr
{

namespace Ui
{
class CustomFieldsModifyDlg;
}

/// Lets the operator define the custom fields of the register; opened by the persons page. Nothing is stored
/// before "Ok".
class CustomFieldsModifyDlg : public qarn_base::CommonDialog
{
    Q_OBJECT
public:
    explicit CustomFieldsModifyDlg(QWidget* parent);
    ~CustomFieldsModifyDlg() override;

private:
    enum Column { NameColumn = 0, OperColumn = 1 };
    enum Role { AcceptedNameRole = Qt::UserRole, RowIdRole = Qt::UserRole + 1 };

    void setUpTable();
    void makeConnections();
    void appendRow(const QString& name);

    void addField();
    void editName(const QString& rowId);
    void editCurrentName();
    void deleteField(const QString& rowId);
    void save();

    void watchNameEditor(QLineEdit* editor, const QString& rowId);
    /// Ends a running edit and checks its name now instead of when the editor has gone.
    void settleNameEdit();
    void checkName(const QString& rowId);

    QLineEdit* openEditor(const QTableWidgetItem* item) const; ///< null when the name is not being edited
    QTableWidgetItem* nameItem(const QString& rowId) const;    ///< null when the row is gone
    QStringList names(const QTableWidgetItem* except = nullptr) const;

    std::unique_ptr<Ui::CustomFieldsModifyDlg> m_ui;
    QPointer<QWidget> m_nameEditor; ///< null: no name is edited, and none waits to be checked
    QString m_editedRowId;
    /// Receiver of what the line editors report. It goes with the members, before the child widgets: an
    /// editor that dies with the dialog is not answered by a half destroyed one.
    QObject m_editorWatch;
};

} // namespace qarn_personMgr
