#include "window/MainWindow.h"

#include "alerts/AlertHistoryDlg.h"
#include "alerts/ToastStack.h"
#include "devices/DevicesPage.h"
#include "entry/PersonMgrInit.h"
#include "settings/ClientSettings.h"
#include "settings/SettingsDlg.h"
#include "startup/StoreOpener.h"
#include "window/EdgeResizer.h"
#include "window/PageListDelegate.h"
#include "window/QuitGuard.h"
#include "window/TitleBar.h"

#include <qarn_base/BaseForm.h>
#include <qarn_worker/SystemAssistant.h>

#include <QCloseEvent>
#include <QComboBox>
#include <QListWidget>
#include <QScreen>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

using qarn_worker::SystemAssistant;

namespace
{

constexpr int frameMargin = 1;
constexpr int pageListWidth = 66;
constexpr QSize firstSize(1280, 760);

} // namespace

MainWindow::MainWindow(ClientSettings& settings) : m_settings(settings)
{
    setObjectName(QStringLiteral("mainWindow"));
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_StyledBackground);
    buildWindow();
    auto& module = qarn_personMgr::PersonMgrInit::instance();
    module.moduleInit();
    m_personsPage = module.createPersonMgrForm();
    addPage(tr("Persons"), QStringLiteral("persons"), m_personsPage);
    addPage(tr("Devices"), QStringLiteral("devices"), new DevicesPage);

    m_quitGuard = new QuitGuard(this);
    connect(m_quitGuard, &QuitGuard::signalMayQuit, this, &QWidget::close);
    new EdgeResizer(this);
    new ToastStack(this);
    connect(&SystemAssistant::instance(), &SystemAssistant::signalMessageAlert, this,
            &MainWindow::countAlert);
    restore();
}

MainWindow::~MainWindow() = default;

void MainWindow::buildWindow()
{
    setWindowTitle(tr("Person register"));
    setWindowIcon(QIcon(QStringLiteral(":/client/qarn-client.svg")));
    m_titleBar = new TitleBar(this);
    m_titleBar->setTitle(windowTitle());
    m_pageList = new QListWidget(this);
    m_pageList->setObjectName(QStringLiteral("pageList"));
    m_pageList->setAccessibleName(tr("Pages"));
    m_pageList->setItemDelegate(new PageListDelegate(m_pageList));
    m_pages = new QStackedWidget(this);
    m_pages->setObjectName(QStringLiteral("pages"));
    m_splitter = new QSplitter(this);
    m_splitter->setObjectName(QStringLiteral("pageSplitter"));
    m_splitter->setChildrenCollapsible(false);
    m_splitter->addWidget(m_pageList);
    m_splitter->addWidget(m_pages);
    m_splitter->setStretchFactor(1, 1);
    m_pageList->setMinimumWidth(52);
    m_splitter->setSizes({pageListWidth, firstSize.width() - pageListWidth});

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(frameMargin, frameMargin, frameMargin, frameMargin);
    column->setSpacing(0);
    column->addWidget(m_titleBar);
    column->addWidget(m_splitter, 1);
    connect(m_pageList, &QListWidget::currentRowChanged, m_pages, &QStackedWidget::setCurrentIndex);
    connect(m_titleBar, &TitleBar::signalAlertsClicked, this, &MainWindow::showAlerts);
    connect(m_titleBar, &TitleBar::signalSettingsClicked, this, &MainWindow::showSettings);
}

void MainWindow::addPage(const QString& title, const QString& icon, QWidget* page)
{
    // A page keeps the size that it needs; on a small screen the operator scrolls.
    auto* area = new QScrollArea(m_pages);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(page);
    m_pages->addWidget(area);
    auto* item =
        new QListWidgetItem(QIcon(QStringLiteral(":/images/images/%1.png").arg(icon)), title, m_pageList);
    item->setToolTip(title);
}

void MainWindow::setStoreName(const QString& name)
{
    m_titleBar->setTitle(windowTitle() + QStringLiteral("  \u2013  ") + name);
}

void MainWindow::restore()
{
    resize(firstSize.boundedTo(screen()->availableSize()));
    restoreGeometry(m_settings.windowGeometry());
    m_splitter->restoreState(m_settings.splitterState());
    m_pageList->setCurrentRow(qBound(0, m_settings.currentPage(), m_pages->count() - 1));
    applyPageSize(m_settings.pageSize());
    m_pageList->setFocus();
}

void MainWindow::applyPageSize(int size)
{
    auto* combo = personsPage()->findChild<QComboBox*>(QStringLiteral("pageSize"));
    const int index = combo == nullptr ? -1 : combo->findText(QString::number(size));
    if (index >= 0 && index != combo->currentIndex())
        combo->setCurrentIndex(index);
}

void MainWindow::countAlert()
{
    m_titleBar->setUnreadAlerts(++m_unreadAlerts);
}

void MainWindow::showAlerts()
{
    m_titleBar->setUnreadAlerts(m_unreadAlerts = 0);
    AlertHistoryDlg(this).exec();
}

void MainWindow::showSettings()
{
    const QString configured = m_settings.storePath();
    SettingsDlg dialog(m_settings, configured.isEmpty() ? StoreOpener::defaultPath() : configured, this);
    if (dialog.exec() == QDialog::Accepted)
        applyPageSize(dialog.pageSize());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    if (!m_quitGuard->mayQuit()) {
        event->ignore();
        return;
    }
    if (const auto* combo = personsPage()->findChild<QComboBox*>(QStringLiteral("pageSize")))
        m_settings.setPageSize(combo->currentText().toInt());
    m_settings.saveWindow(saveGeometry(), m_splitter->saveState(), m_pageList->currentRow());
    event->accept();
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::WindowStateChange)
        m_titleBar->showMaximized(isMaximized());
    QWidget::changeEvent(event);
}
