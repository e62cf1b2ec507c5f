#pragma once

#include <qarn_base/BaseForm.h>
#include <qarn_data/PersonInfo.h>

#include <QList>
#include <QStringList>
#include <memory>

namespace XCOMMON
{
class XMenu;
}

namespace qarn_base
{
class SearchTreeTools;
}

namespace qarn_personMgr
{

class CoveredRun;
class ExportPersonsDlg;
class ImportPersonsDlg;
class ImportPersonsThread;
class PersonsTableWt;
class SynchronizeFacesThread;
class SynchronizeFacesToDevsDlg;

namespace Ui
{
class PersonMgrForm;
}

/// The module's page: organization tree, filters, tool bar and the persons of the selected organization a
/// page at a time. It changes nothing on screen by itself after a command; the notifications of the data
/// service bring the page up to date. Made by PersonMgrInit, owned by the host. GUI thread.
///
/// The commands on persons stand in PersonMgrFormPersons.cpp, import and export in
/// PersonMgrFormTransfer.cpp, the device commands in PersonMgrFormSync.cpp.
class PersonMgrForm : public qarn_base::BaseForm
{
    Q_OBJECT
public:
    explicit PersonMgrForm(QWidget* parent = nullptr);
    ~PersonMgrForm() override;

    /// Queries with the current selection and filters and shows the page; without a selection the whole
    /// store is searched.
    void searchPersons(int page);
    /// The selected organization, with or without those below it; empty when none is selected.
    QStringList collectOrganizationIds(bool withChildren) const;

    int formType() const override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private slots:
    void slotAddPersonBtClicked();
    void slotDeletePersonsBtClicked();
    void slotMovePersonsBtClicked();
    void slotExportPersonsBtClicked();
    void slotImportPersonsBtClicked();
    void slotSynchronizeToDevBtClicked();
    void slotSynchronizeFromDevBtClicked();
    void slotCurPagePersons(const QList<qarn_data::PersonInfo>& persons, int curPage, int totalCnt);
    void slotAddPersonsToLocalDB(const qarn_data::PersonList& persons, bool success);
    void slotUpdatePersonInLocalDB(const qarn_data::PersonInfo& info, const QStringList& personIds,
                                   bool success);
    void slotDeletePersonsFromLocalDB(const QStringList& ids, bool success);

private:
    void setStyles();
    void setToolBarIcons();
    void createTable();
    void connectCommands();
    void connectData();
    void connectFilters();
    void setHeaderRightMargin(int margin);
    void clearFilters();

    void createDeleteMenu();
    void deleteCheckedPersons();
    void deleteAllPersons();
    void modifyCustomFields();

    QString askExportPath(bool faceMode); ///< empty: the operator cancelled, or was told what is wrong
    void exportPersons(const ExportPersonsDlg& dialog, const QString& path);
    ImportPersonsThread* createImport(const ImportPersonsDlg& dialog); ///< null: something is missing
    SynchronizeFacesThread* createSyncToDevs(const SynchronizeFacesToDevsDlg& dialog); ///< likewise
    void followSync(SynchronizeFacesThread* thread, const CoveredRun& run);

    std::unique_ptr<Ui::PersonMgrForm> m_ui;
    PersonsTableWt* m_personsTable = nullptr; ///< owned by the scroll area
    qarn_base::SearchTreeTools* m_searchTreeTools = nullptr;
    /// While an import or a synchronisation from devices runs, the notifications of its many changes are
    /// left alone; the page is queried anew at its end.
    bool m_bulkOperationRunning = false;
    XCOMMON::XMenu* m_deleteMenu = nullptr; ///< null until first used
};

} // namespace qarn_personMgr
