#pragma once

#include <XCOMMON/MoveableDialog.h>
#include <qarn_base/Export.h>

#include <memory>

namespace qarn_base
{

/// Dialog with the host's title bar: label "title" and buttons "closeBt", "maximizeBt", "minimizeBt". The
/// title bar lies over the upper TitleBarHeight pixels; a form keeps its contents below them by its
/// layout's upper margin. Escape rejects.
class QARN_BASE_EXPORT CommonDialog : public XCOMMON::MoveableDialog
{
    Q_OBJECT
public:
    static constexpr int TitleBarHeight = 35; ///< pixels

    explicit CommonDialog(QWidget* parent = nullptr, bool showMinMax = false, bool modal = true);
    ~CommonDialog() override;

    void setTitle(const QString& title);
    /// A dialog that is larger than its screen shrinks to it when it is shown, and its contents scroll.
    void setVisible(bool visible) override;

public slots:
    void slotCloseBtClicked();
    void slotMaximizeBtClicked();
    void slotMinimizeBtClicked();

protected:
    virtual void quitSystem(); ///< what the close button does: rejects

    void resizeEvent(QResizeEvent* event) override;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace qarn_base
