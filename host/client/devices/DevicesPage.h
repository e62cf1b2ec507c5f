#pragma once

#include <qarn_base/BaseForm.h>
#include <qarn_data/DeviceRegistry.h>

#include <QSet>
#include <QTimer>

class DeviceTests;
class DevicesModel;
class QBoxLayout;
class QLabel;
class QPushButton;
class QStackedWidget;
class QTableView;

namespace dvx_sdk
{
struct CertificateInfo;
struct ProbeResult;
} // namespace dvx_sdk

/// The client's Devices page: which devices there are, whether they can be reached, and what can be done with
/// them. Looks after the devices while it is shown.
class DevicesPage : public qarn_base::BaseForm
{
    Q_OBJECT
public:
    explicit DevicesPage(QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void buildPage();
    QWidget* buildEmptyState();
    void buildTable();
    QPushButton* addButton(QBoxLayout* bar, const QString& text, const char* name);
    void connectAll();

    qarn_data::Device selectedDevice() const; ///< with an empty id: none is selected
    void select(const QString& deviceId);
    void updateButtons();
    void slotAdd();
    void slotEdit();
    void slotRename();
    void slotTest();
    void slotRemove();
    void slotTested(const QString& deviceId, const dvx_sdk::ProbeResult& result);
    bool askTrust(const QString& deviceId, const dvx_sdk::CertificateInfo& certificate);
    void tellResult(const QString& deviceId, const dvx_sdk::ProbeResult& result);

    DevicesModel* m_model;
    DeviceTests* m_tests;
    QTimer m_lookTimer;
    QSet<QString> m_askedFor; ///< devices whose test the operator waits for
    QString m_selected;       ///< kept over a reload of the table
    QStackedWidget* m_stack = nullptr;
    QTableView* m_table = nullptr;
    QLabel* m_status = nullptr;
    QPushButton* m_addBt = nullptr;
    QPushButton* m_editBt = nullptr;
    QPushButton* m_renameBt = nullptr;
    QPushButton* m_testBt = nullptr;
    QPushButton* m_removeBt = nullptr;
};
