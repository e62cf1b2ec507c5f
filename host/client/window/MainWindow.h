#pragma once

#include <QWidget>

class ClientSettings;
class QListWidget;
class QSplitter;
class QStackedWidget;
class QuitGuard;
class TitleBar;

/// The client's window: title bar, list of pages ("pageList") at the left, the pages ("pages") beside it.
/// Remembers size, splitter, page and rows a page in the settings.
class MainWindow : public QWidget
{
    Q_OBJECT
public:
    /// Pages are made here and live until the window goes; the store must stay open as long.
    explicit MainWindow(ClientSettings& settings);
    ~MainWindow() override;

    void setStoreName(const QString& name); ///< shown in the title
    QWidget* personsPage() const { return m_personsPage; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void buildWindow();
    void addPage(const QString& title, const QString& icon, QWidget* page);
    void restore();
    void applyPageSize(int size);
    void showAlerts();
    void showSettings();
    void countAlert();

    ClientSettings& m_settings;
    TitleBar* m_titleBar = nullptr;
    QSplitter* m_splitter = nullptr;
    QListWidget* m_pageList = nullptr;
    QStackedWidget* m_pages = nullptr;
    QWidget* m_personsPage = nullptr;
    QuitGuard* m_quitGuard = nullptr;
    int m_unreadAlerts = 0;
};
