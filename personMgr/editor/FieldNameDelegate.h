#pragma once

#include <QStyledItemDelegate>

class QLineEdit;

namespace qarn_personMgr
{

/// Edits the names in the custom fields dialog. However an editor is opened, it has the length limit and is
/// announced, since the check of the typed name hangs on its end.
class FieldNameDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                          const QModelIndex& index) const override;
    /// Takes over what stands in the editor and closes it.
    void finishEditing(QLineEdit* editor);

signals:
    void signalEditorOpened(QLineEdit* editor, const QModelIndex& index) const;
};

} // namespace qarn_personMgr
