#include "window/TitleBar.h"

#include <XCOMMON/XPushButton.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QStyle>
#include <QWindow>

namespace
{
constexpr int barHeight = 40;
constexpr int buttonSize = 28;
} // namespace

TitleBar::TitleBar(QWidget* parent) : QWidget(parent), m_title(new QLabel(this))
{
    setObjectName(QStringLiteral("titleBar"));
    setAttribute(Qt::WA_StyledBackground);
    setFixedHeight(barHeight);
    m_title->setObjectName(QStringLiteral("windowTitle"));
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(16, 0, 8, 0);
    row->setSpacing(4);
    row->addWidget(m_title, 1);

    m_alerts = addButton("alertsBt", QStringLiteral("bell"), tr("Messages"));
    QPushButton* settings = addButton("settingsBt", QStringLiteral("config_iconBt_n"), tr("Settings"));
    row->addSpacing(12);
    QPushButton* minimize = addButton("minimizeBt", QStringLiteral("minimize_n"), tr("Minimize"));
    m_maximize = addButton("maximizeBt", QStringLiteral("maximize_n"), tr("Maximize"));
    QPushButton* close = addButton("closeBt", QStringLiteral("close_n"), tr("Quit"));

    connect(m_alerts, &QPushButton::clicked, this, &TitleBar::signalAlertsClicked);
    connect(settings, &QPushButton::clicked, this, &TitleBar::signalSettingsClicked);
    connect(minimize, &QPushButton::clicked, this, [this] { window()->showMinimized(); });
    connect(m_maximize, &QPushButton::clicked, this, &TitleBar::toggleMaximized);
    connect(close, &QPushButton::clicked, this, [this] { window()->close(); });
}

QPushButton* TitleBar::addButton(const char* name, const QString& icon, const QString& text)
{
    auto* button = new XCOMMON::XPushButton(this);
    button->setObjectName(QLatin1String(name));
    button->setProperty("titleBarBt", true);
    button->setIcon(QIcon(QStringLiteral(":/images/images/%1.png").arg(icon)));
    button->setIconSize(QSize(16, 16));
    button->setFixedHeight(buttonSize);
    button->setMinimumWidth(buttonSize);
    button->setToolTip(text);
    button->setAccessibleName(text);
    layout()->addWidget(button);
    return button;
}

void TitleBar::setTitle(const QString& title)
{
    m_title->setText(title);
}

void TitleBar::setUnreadAlerts(int count)
{
    m_alerts->setText(count > 0 ? QString::number(count) : QString());
    m_alerts->setProperty("unread", count > 0);
    m_alerts->style()->unpolish(m_alerts);
    m_alerts->style()->polish(m_alerts);
}

void TitleBar::showMaximized(bool maximized)
{
    const QString text = maximized ? tr("Restore") : tr("Maximize");
    m_maximize->setToolTip(text);
    m_maximize->setAccessibleName(text);
}

void TitleBar::toggleMaximized()
{
    window()->setWindowState(window()->windowState() ^ Qt::WindowMaximized);
}

void TitleBar::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && window()->windowHandle() != nullptr)
        window()->windowHandle()->startSystemMove();
}

void TitleBar::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        toggleMaximized();
}
