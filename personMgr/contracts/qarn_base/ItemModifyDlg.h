#pragma once

#include <qarn_base/CommonDialog.h>
#include <qarn_base/Export.h>

#include <QString>
#include <functional>

namespace qarn_base
{

/// Asks for the name of an item to add or to rename: edit "name", buttons "okBt", "cancelBt" and, when
/// adding, "addContinuouslyBt". A blank name, or one that the check says is taken, is refused with its
/// reason at the field and the dialog stays open.
class QARN_BASE_EXPORT ItemModifyDlg : public CommonDialog
{
    Q_OBJECT
public:
    enum ModifyType { AddItem = 0, EditItem = 1 };
    using NameCheck = std::function<bool(const QString& name, const QString& id)>; ///< true: taken

    explicit ItemModifyDlg(NameCheck nameCheck, QWidget* parent = nullptr);
    ~ItemModifyDlg() override;

    void setModifyType(ModifyType type, const QString& title, const QString& name, const QString& id);
    void setItemName(const QString& name); ///< selected, ready to be typed over
    void setNameMaxLength(int length);

signals:
    /// keepAdding: the dialog stays open for the next name.
    void signalAddItem(const QString& name, bool keepAdding);
    void signalEditItem(const QString& id, const QString& name);

private:
    void confirm();
    void addAndStay();

    struct Private;
    std::unique_ptr<Private> p;
};

} // namespace qarn_base
