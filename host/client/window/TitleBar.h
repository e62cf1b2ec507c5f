#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

/// The main window's title bar: "windowTitle", "alertsBt", "settingsBt", "minimizeBt", "maximizeBt",
/// "closeBt". The window is moved by it; a double click maximises.
class TitleBar : public QWidget
{
    Q_OBJECT
public:
    explicit TitleBar(QWidget* parent);

    void setTitle(const QString& title);
    void setUnreadAlerts(int count); ///< 0: no mark
    void showMaximized(bool maximized);

signals:
    void signalAlertsClicked();
    void signalSettingsClicked();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    QPushButton* addButton(const char* name, const QString& icon, const QString& text);
    void toggleMaximized();

    QLabel* m_title;
    QPushButton* m_alerts = nullptr;
    QPushButton* m_maximize = nullptr;
};
