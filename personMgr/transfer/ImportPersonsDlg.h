#pragma once

#include <qarn_base/CommonDialog.h>

#include <QList>
#include <QString>

#include <memory>

class QCheckBox;
class QWidget;

namespace qarn_personMgr
{

namespace Ui
{
class ImportPersonsDlg;
}

/// Asks what to import: a person file, or a directory of photographs with the rule of their names. Also
/// writes the empty template. It imports nothing itself; the main form reads its answers.
class ImportPersonsDlg : public qarn_base::CommonDialog
{
    Q_OBJECT
public:
    explicit ImportPersonsDlg(QWidget* parent);
    ~ImportPersonsDlg() override;

    bool isFaceMode() const;
    QString getPath() const;          ///< the person file or the directory, as it stands in the field
    QList<int> getNamingRule() const; ///< ImportNameElement codes in the order of the file name

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void connectMode();
    void connectNamingRule(QCheckBox* box, const QString& word);
    void showMode(bool faceMode);
    void browse();
    void import();
    void downloadTemplate();

    const std::unique_ptr<Ui::ImportPersonsDlg> m_ui;
    QString m_infoFilePath; ///< the person file chosen last
    QString m_facesDirPath; ///< the directory chosen last
};

} // namespace qarn_personMgr
