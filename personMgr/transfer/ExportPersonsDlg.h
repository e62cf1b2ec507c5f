#pragma once

#include <qarn_base/CommonDialog.h>

#include <QList>
#include <QMap>
#include <QStringList>

#include <memory>

class QTreeWidget;
class QTreeWidgetItem;

namespace qarn_personMgr
{

namespace Ui
{
class ExportPersonsDlg;
}

/// Asks how to export persons: as a person file with chosen columns, or as face files named after chosen
/// elements. The main form reads its answers, then asks for the target.
class ExportPersonsDlg : public qarn_base::CommonDialog
{
    Q_OBJECT
public:
    explicit ExportPersonsDlg(QWidget* parent);
    ~ExportPersonsDlg() override;

    bool isFaceMode() const;
    bool isExportChildren() const; ///< persons of child organizations too
    /// The mask of the chosen PersonColumn codes, and their titles in the same order.
    int getColumns(QStringList& headerTitles) const;
    QList<int> getFaceElements() const; ///< PersonColumn codes in the order of the file name

public slots:
    void slotItemClicked(QTreeWidgetItem* item, int column);

private:
    void connectTree(QTreeWidget* tree);
    void remember(QTreeWidgetItem* item);
    QList<QTreeWidgetItem*> applyToAll(QTreeWidgetItem* all);
    void updateNamingRules(const QList<QTreeWidgetItem*>& changed);
    QTreeWidget* currentTree() const;
    void exportPersons();

    const std::unique_ptr<Ui::ExportPersonsDlg> m_ui;
    QMap<QTreeWidgetItem*, Qt::CheckState> m_handledStates; ///< what an item had when last handled
};

} // namespace qarn_personMgr
