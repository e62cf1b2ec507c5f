#include "settings/SettingsDlg.h"

#include "settings/BackupThread.h"
#include "settings/ClientSettings.h"
#include "startup/Language.h"

#include <XCOMMON/XFileDialog.h>
#include <XCOMMON/XPushButton.h>
#include <qarn_base/ComboBox.h>
#include <qarn_base/DisabledWaitingWt.h>
#include <qarn_base/DisabledWaitingWtManager.h>
#include <qarn_base/SelDirLineEt.h>

#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace
{

constexpr int fieldWidth = 340;
constexpr int fieldHeight = 28;

qarn_base::ComboBox* makeCombo(const char* name, const QString& label, QWidget* parent)
{
    auto* combo = new qarn_base::ComboBox(parent);
    combo->setObjectName(QLatin1String(name));
    combo->setAccessibleName(label);
    combo->setFixedSize(fieldWidth, fieldHeight);
    return combo;
}

XCOMMON::XPushButton* makeButton(const char* name, const QString& text, const char* style, QWidget* parent)
{
    auto* button = new XCOMMON::XPushButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setText(text);
    button->setProperty(style, true);
    button->setMinimumSize(96, 28);
    return button;
}

QString proposedBackup()
{
    QDir directory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    if (!directory.exists())
        directory = QDir::home();
    return directory.filePath(
        QStringLiteral("persons-%1.db").arg(QDate::currentDate().toString(Qt::ISODate)));
}

} // namespace

SettingsDlg::SettingsDlg(ClientSettings& settings, const QString& storePath, QWidget* parent)
    : CommonDialog(parent),
      m_settings(settings)
{
    setObjectName(QStringLiteral("SettingsDlg"));
    setTitle(tr("Settings"));
    build();
    fill(storePath);
}

void SettingsDlg::build()
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(32, TitleBarHeight + 24, 32, 20);
    column->setSpacing(18);
    auto* form = new QFormLayout;
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    form->setHorizontalSpacing(20);
    form->setVerticalSpacing(12);
    column->addLayout(form);
    buildFields(form);
    auto* hint = new QLabel(tr("Language and person register take effect at the next start."), this);
    hint->setObjectName(QStringLiteral("quietText"));
    hint->setWordWrap(true);
    column->addWidget(hint);
    buildButtons(column);
}

void SettingsDlg::buildFields(QFormLayout* form)
{
    m_language = makeCombo("language", tr("Language"), this);
    form->addRow(tr("Language"), m_language);
    m_pageSize = makeCombo("pageSize", tr("Rows a page"), this);
    form->addRow(tr("Rows a page"), m_pageSize);
    auto* path = new qarn_base::SelDirLineEt(this);
    path->setObjectName(QStringLiteral("storePath"));
    path->setAccessibleName(tr("Person register"));
    path->setFixedSize(fieldWidth, fieldHeight);
    form->addRow(tr("Person register"), path);
    m_storePath = path;
    connect(path, &qarn_base::SelDirLineEt::signalClicked, this, &SettingsDlg::chooseStore);
    auto* backup = makeButton("backupBt", tr("Back up..."), "common_bt_style2", this);
    form->addRow(tr("Backup"), backup);
    connect(backup, &QPushButton::clicked, this, &SettingsDlg::backUp);
}

void SettingsDlg::buildButtons(QVBoxLayout* column)
{
    auto* row = new QHBoxLayout;
    column->addLayout(row);
    row->setSpacing(15);
    row->addStretch(1);
    auto* ok = makeButton("okBt", tr("Ok"), "common_bt_style1", this);
    auto* cancel = makeButton("cancelBt", tr("Cancel"), "common_bt_style2", this);
    row->addWidget(ok);
    row->addWidget(cancel);
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &SettingsDlg::save);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
}

void SettingsDlg::fill(const QString& storePath)
{
    for (const Language& language : availableLanguages())
        m_language->addItem(language.name, language.code);
    m_language->setCurrentIndex(qMax(0, m_language->findData(m_settings.language())));
    for (const int size : {20, 50, 100, 200})
        m_pageSize->addItem(QString::number(size), size);
    m_pageSize->setCurrentIndex(qMax(0, m_pageSize->findData(m_settings.pageSize())));
    m_storePath->setText(storePath);
}

void SettingsDlg::chooseStore()
{
    const QString path = XCOMMON::XFileDialog::getSaveFileName(
        this, tr("Open or make a person register"), QFileInfo(m_storePath->text()).absolutePath(),
        tr("Person register (*.db)"), nullptr, QFileDialog::DontConfirmOverwrite);
    if (!path.isEmpty())
        m_storePath->setText(path);
}

void SettingsDlg::backUp()
{
    const QPointer<SettingsDlg> guard(this); // may go while the chooser is open
    const QString path = XCOMMON::XFileDialog::getSaveFileName(
        this, tr("Back up the person register"), proposedBackup(), tr("Person register (*.db)"));
    if (guard.isNull() || path.isEmpty())
        return;
    auto* overlay = new qarn_base::DisabledWaitingWt(this, tr("Backing up..."), QString(), false);
    overlay->show();
    auto* thread = new BackupThread(path, this);
    connect(thread, &QThread::finished, this, [thread, overlayId = overlay->getUuid()] {
        qarn_base::DisabledWaitingWtManager::instance().destroyDisabledWaitingWt(overlayId);
        thread->deleteLater();
    });
    thread->start();
}

int SettingsDlg::pageSize() const
{
    return m_pageSize->currentData().toInt();
}

void SettingsDlg::save()
{
    m_settings.setLanguage(m_language->currentData().toString());
    m_settings.setPageSize(pageSize());
    m_settings.setStorePath(m_storePath->text());
    accept();
}
