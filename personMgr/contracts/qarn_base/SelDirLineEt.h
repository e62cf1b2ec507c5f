#pragma once

#include <XCOMMON/XLineEdit.h>
#include <qarn_base/Export.h>

namespace qarn_base
{

/// Read-only path field: a click anywhere, Return or Space asks for a path.
class QARN_BASE_EXPORT SelDirLineEt : public XCOMMON::XLineEdit
{
    Q_OBJECT
public:
    explicit SelDirLineEt(QWidget* parent = nullptr);

signals:
    void signalClicked();

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace qarn_base
