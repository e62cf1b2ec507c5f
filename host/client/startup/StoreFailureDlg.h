#pragma once

#include <qarn_base/CommonDialog.h>

/// Tells why a store cannot be opened and asks what to do: "retryBt", "otherFileBt", "quitBt". Escape quits.
class StoreFailureDlg : public qarn_base::CommonDialog
{
    Q_OBJECT
public:
    enum Choice { Quit, TryAgain, AnotherFile };

    explicit StoreFailureDlg(const QString& reason, QWidget* parent = nullptr);

    Choice choice() const { return m_choice; }
    QString anotherFile() const { return m_anotherFile; } ///< may not exist yet: then a new store is made

private:
    void chooseFile();
    void finish(Choice choice);

    Choice m_choice = Quit;
    QString m_anotherFile;
};
