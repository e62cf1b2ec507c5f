#include "editor/FieldNameDelegate.h"

#include "editor/CustomFieldRules.h"

#include <QLineEdit>

namespace qarn_personMgr
{

QWidget* FieldNameDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                         const QModelIndex& index) const
{
    QWidget* widget = QStyledItemDelegate::createEditor(parent, option, index);
    if (auto* editor = qobject_cast<QLineEdit*>(widget)) {
        editor->setMaxLength(CustomFieldNameMaxLength);
        emit signalEditorOpened(editor, index);
    }
    return widget;
}

void FieldNameDelegate::finishEditing(QLineEdit* editor)
{
    emit commitData(editor);
    emit closeEditor(editor);
}

} // namespace qarn_personMgr
