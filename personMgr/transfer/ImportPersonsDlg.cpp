#include "transfer/ImportPersonsDlg.h"

#include "shared/Alerts.h"
#include "transfer/NamingRule.h"
#include "transfer/PersonFileFormat.h"
#include "transfer/PersonFileWriter.h"
#include "ui_ImportPersonsDlg.h"

#include <XCOMMON/XFileDialog.h>

#include <QKeyEvent>
#include <QPointer>
#include <QStandardPaths>
#include <QToolTip>

using XCOMMON::XFileDialog;

namespace qarn_personMgr
{

namespace
{

QString desktopDirectory()
{
    return QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
}

/// A key that a link answers to.
bool isActivation(const QEvent& event)
{
    if (event.type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent&>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space;
}

void showToolTip(QWidget* field, const QString& text)
{
    QToolTip::showText(field->mapToGlobal(QPoint(0, 0)), text, field);
}

} // namespace

ImportPersonsDlg::ImportPersonsDlg(QWidget* parent) : CommonDialog(parent), m_ui(new Ui::ImportPersonsDlg)
{
    m_ui->setupUi(this);
    setTitle(tr("Import persons"));
    m_ui->downloadTemplate->installEventFilter(this);
    connectMode();
    connectNamingRule(m_ui->serialNumChecked, tr("Serial Num"));
    connectNamingRule(m_ui->personNameChecked, tr("Person Name"));
    connectNamingRule(m_ui->sexChecked, tr("Sex"));
    connect(m_ui->filePath, &qarn_base::SelDirLineEt::signalClicked, this, &ImportPersonsDlg::browse);
    connect(m_ui->importBt, &QPushButton::clicked, this, &ImportPersonsDlg::import);
    connect(m_ui->cancelBt, &QPushButton::clicked, this, &ImportPersonsDlg::reject);
}

ImportPersonsDlg::~ImportPersonsDlg() = default;

bool ImportPersonsDlg::isFaceMode() const
{
    return m_ui->personFaceChecked->isChecked();
}

QString ImportPersonsDlg::getPath() const
{
    return m_ui->filePath->text();
}

QList<int> ImportPersonsDlg::getNamingRule() const
{
    QList<int> rule =
        namingRulePositions(m_ui->namingRules->text(), {tr("Serial Num"), tr("Person Name"), tr("Sex")});
    rule.removeAll(-1);
    return rule; // the words stand in the order of ImportNameElement
}

bool ImportPersonsDlg::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ui->downloadTemplate && event->type() == QEvent::MouseButtonRelease)
        downloadTemplate();
    if (watched == m_ui->downloadTemplate && isActivation(*event)) {
        downloadTemplate();
        return true; // else the dialog's default button would take the key too
    }
    return CommonDialog::eventFilter(watched, event);
}

void ImportPersonsDlg::connectMode()
{
    connect(m_ui->personInfoChecked, &QRadioButton::clicked, this, [this] { showMode(false); });
    connect(m_ui->personFaceChecked, &QRadioButton::clicked, this, [this] { showMode(true); });
}

void ImportPersonsDlg::connectNamingRule(QCheckBox* box, const QString& word)
{
    connect(box, &QCheckBox::toggled, this, [this, word](bool checked) {
        const QString rule = m_ui->namingRules->text();
        m_ui->namingRules->setText(checked ? namingRuleWithWord(rule, word)
                                           : namingRuleWithoutWord(rule, word));
    });
}

void ImportPersonsDlg::showMode(bool faceMode)
{
    m_ui->stackedWidget->setCurrentWidget(faceMode ? m_ui->page_2 : m_ui->page);
    m_ui->filePath->setText(faceMode ? m_facesDirPath : m_infoFilePath);
}

void ImportPersonsDlg::browse()
{
    const QPointer<ImportPersonsDlg> guard(this); // may go while the chooser is open
    const bool faceMode = isFaceMode();
    const QString path =
        faceMode
            ? XFileDialog::getExistingDirectory(this, tr("Select Person faces dir"), desktopDirectory(),
                                                QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks)
            : XFileDialog::getOpenFileName(this, tr("Select Person info file"), desktopDirectory(),
                                           QStringLiteral("CSV(*.csv)"));
    if (guard.isNull())
        return;
    (faceMode ? m_facesDirPath : m_infoFilePath) = path;
    m_ui->filePath->setText(path);
}

void ImportPersonsDlg::import()
{
    if (getPath().isEmpty())
        showToolTip(m_ui->filePath, isFaceMode() ? tr("Please select person faces dir")
                                                 : tr("Please select person info file"));
    else if (isFaceMode() && m_ui->namingRules->text().isEmpty())
        showToolTip(m_ui->namingRules, tr("Please set naming rules"));
    else
        accept();
}

void ImportPersonsDlg::downloadTemplate()
{
    const QString filePath = XFileDialog::getSaveFileName(this, tr("Download Person import template"),
                                                          desktopDirectory(), QStringLiteral("CSV(*.csv)"));
    if (filePath.isEmpty())
        return;
    PersonFileWriter writer(filePath);
    bool written = writer.open();
    if (written) {
        for (const QStringList& row : importTemplateRows())
            writer.writeRow(row);
        written = writer.finish();
    }
    if (written)
        alertSuccess(tr("Download import person template finished"));
    else
        alertError(tr("Download person import template failed"));
}

} // namespace qarn_personMgr
