#pragma once

#include <qarn_base/CommonDialog.h>

class ClientSettings;
class QComboBox;
class QFormLayout;
class QLineEdit;
class QVBoxLayout;

/// Edits language ("language"), rows a page ("pageSize") and store ("storePath"). Ok writes the settings;
/// language and store take effect at the next start, and the dialog says so. "backupBt" copies the register
/// that is open to a file.
class SettingsDlg : public qarn_base::CommonDialog
{
    Q_OBJECT
public:
    SettingsDlg(ClientSettings& settings, const QString& storePath, QWidget* parent);

    int pageSize() const; ///< the chosen rows a page

private:
    void build();
    void buildFields(QFormLayout* form);
    void buildButtons(QVBoxLayout* column);
    void fill(const QString& storePath);
    void chooseStore();
    void backUp();
    void save();

    ClientSettings& m_settings;
    QComboBox* m_language = nullptr;
    QComboBox* m_pageSize = nullptr;
    QLineEdit* m_storePath = nullptr;
};
