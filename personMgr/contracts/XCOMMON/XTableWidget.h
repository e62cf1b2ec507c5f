#pragma once

#include <XCOMMON/Export.h>

#include <QTableWidget>

namespace XCOMMON
{

/// Table of the host's look: whole rows are selected, no grid, no row numbers.
class XCOMMON_EXPORT XTableWidget : public QTableWidget
{
    Q_OBJECT
public:
    explicit XTableWidget(QWidget* parent = nullptr);

    void insertRow(int row); ///< keeps the row height of the host's look
    void removeRow(int row); ///< deletes the row's cell widgets when control returns to the event loop
};

} // namespace XCOMMON
