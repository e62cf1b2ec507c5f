#pragma once

#include <qarn_base/CommonDialog.h>
#include <qarn_base/Export.h>

#include <QString>

namespace qarn_base
{

/// Modal message box: label "text", buttons "okBt" and "cancelBt".
class QARN_BASE_EXPORT XMessageBox : public CommonDialog
{
    Q_OBJECT
public:
    enum Button : quint16 { NoButton = 0, Ok = 1, Cancel = 2 }; ///< bits of a button set

    /// Shows the text and returns the pressed button; Escape and the close button give Cancel. The last
    /// argument is kept for the host's older callers and has no effect.
    static Button question(QWidget* parent, const QString& text, quint16 buttons, bool reserved);
    static Button information(QWidget* parent, const QString& text, quint16 buttons, bool reserved);

private:
    enum class Kind { Question, Information };

    XMessageBox(Kind kind, const QString& text, quint16 buttons, QWidget* parent);
    static Button ask(Kind kind, QWidget* parent, const QString& text, quint16 buttons);
};

} // namespace qarn_base
