#pragma once

#include <qarn_base/CommonDialog.h>

/// The alerts of this run, the newest first, in the table "alertTable".
class AlertHistoryDlg : public qarn_base::CommonDialog
{
    Q_OBJECT
public:
    explicit AlertHistoryDlg(QWidget* parent);

private:
    QWidget* makeTable();
    QWidget* makeEmptyText();
};
