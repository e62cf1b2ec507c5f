#include "form/PersonMgrForm.h"
#include "ui_PersonMgrForm.h"

#include "query/PersonMgrWorker.h"
#include "query/PersonQueryCondition.h"
#include "shared/Colors.h"
#include "table/PersonsTableWt.h"

#include <qarn_base/SearchTreeTools.h>
#include <qarn_base/TreeItem.h>
#include <qarn_data/DataSignals.h>

#include <QEvent>
#include <QRegularExpressionValidator>
#include <QScrollBar>
#include <QStyle>

using qarn_base::IconButton;
using qarn_base::PageEditWt;
using qarn_data::DataSignals;
using qarn_data::PersonInfo;
using qarn_data::PersonList;

namespace qarn_personMgr
{
namespace
{

constexpr int personMgrFormType = 15;
constexpr int lastPage = -1;
constexpr int scrollBarWidth = 16; // pixels

/// The host's style sheet keys on these properties. A widget that was measured before, such as the scroll
/// bar of a scroll area, has to be polished again to take it in.
void setStyleProperty(QWidget* widget, const char* property)
{
    widget->setProperty(property, true);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

} // namespace

PersonMgrForm::PersonMgrForm(QWidget* parent) : BaseForm(parent), m_ui(std::make_unique<Ui::PersonMgrForm>())
{
    m_ui->setupUi(this);
    setStyles();
    setToolBarIcons();
    m_ui->serialNum->setValidator(new QRegularExpressionValidator(
        QRegularExpression(QStringLiteral("[0-9 a-z A-Z - { }]+$")), m_ui->serialNum));
    m_searchTreeTools = new qarn_base::SearchTreeTools(m_ui->searchWt, m_ui->treeWidget, this);
    createTable();
    connectCommands();
    connectData();
    connectFilters();
    searchPersons(1);
}

PersonMgrForm::~PersonMgrForm()
{
    // The tree takes its items away when it goes, and reports that as a change of the selection.
    m_ui->treeWidget->disconnect(this);
}

void PersonMgrForm::setStyles()
{
    setBackgroundColor(Colors::Page);
    setStyleProperty(m_ui->searchBt, "common_bt_style1");
    setStyleProperty(m_ui->resetBt, "common_bt_style2");
    const QList<IconButton*> toolBar = m_ui->widget_4->findChildren<IconButton*>();
    for (IconButton* button : toolBar)
        setStyleProperty(button, "common_bt_style2");
    setStyleProperty(m_ui->scrollArea->verticalScrollBar(), "common_scrollBar_style3");
    setStyleProperty(m_ui->selAll, "conmmon_checkbox_style1");
}

void PersonMgrForm::setToolBarIcons()
{
    const QList<QPair<IconButton*, QString>> icons{
        {m_ui->addPersonBt, QStringLiteral(":/images/images/add_iconBt_n.png")},
        {m_ui->deletePersonsBt, QStringLiteral(":/images/images/delete_iconBt_n.png")},
        {m_ui->movePersonsBt, QStringLiteral(":/images/images/organization_iconBt.png")},
        {m_ui->importPersonsBt, QStringLiteral(":/images/images/import_iconBt_n.png")},
        {m_ui->exportPersonsBt, QStringLiteral(":/images/images/export_iconBt_n.png")},
        {m_ui->synchronizeToDevBt, QStringLiteral(":/personMgr_images/images/send_to_dev_iconBt_n.png")},
        {m_ui->synchronizeFromDevBt, QStringLiteral(":/personMgr_images/images/sync_from_dev_iconBt_n.png")},
        {m_ui->setCustomFieldsBt, QStringLiteral(":/images/images/config_iconBt_n.png")}};
    for (const auto& icon : icons)
        icon.first->setIcons(icon.second, icon.second);
    // The buttons' own least width would let a longer text be cut when the page is narrow.
    m_ui->widget_4->setMinimumWidth(m_ui->horizontalLayout_4->sizeHint().width());
}

void PersonMgrForm::createTable()
{
    m_personsTable = new PersonsTableWt(m_ui->scrollArea);
    m_ui->scrollArea->setWidget(m_personsTable);
    m_ui->scrollArea->verticalScrollBar()->installEventFilter(this);
}

void PersonMgrForm::connectCommands()
{
    const auto onClick = [](QAbstractButton* button, auto* receiver, auto slot) {
        connect(button, &QAbstractButton::clicked, receiver, slot);
    };
    onClick(m_ui->addOrganizationBt, m_ui->treeWidget, &PersonMgrTree::slotAddNewOrganization);
    onClick(m_ui->deleteOrganizationBt, m_ui->treeWidget, &PersonMgrTree::slotDeleteCurSelOrganization);
    onClick(m_ui->addPersonBt, this, &PersonMgrForm::slotAddPersonBtClicked);
    onClick(m_ui->deletePersonsBt, this, &PersonMgrForm::slotDeletePersonsBtClicked);
    onClick(m_ui->movePersonsBt, this, &PersonMgrForm::slotMovePersonsBtClicked);
    onClick(m_ui->exportPersonsBt, this, &PersonMgrForm::slotExportPersonsBtClicked);
    onClick(m_ui->importPersonsBt, this, &PersonMgrForm::slotImportPersonsBtClicked);
    onClick(m_ui->synchronizeToDevBt, this, &PersonMgrForm::slotSynchronizeToDevBtClicked);
    onClick(m_ui->synchronizeFromDevBt, this, &PersonMgrForm::slotSynchronizeFromDevBtClicked);
}

void PersonMgrForm::connectData()
{
    connect(&PersonMgrWorker::instance(), &PersonMgrWorker::signalCurPagePersons, this,
            &PersonMgrForm::slotCurPagePersons);
    const DataSignals& data = DataSignals::instance();
    connect(&data, &DataSignals::signalAddPersonsToLocalDB, this, &PersonMgrForm::slotAddPersonsToLocalDB);
    connect(&data, &DataSignals::signalDeletePersonsFromLocalDB, this,
            &PersonMgrForm::slotDeletePersonsFromLocalDB);
    connect(&data, &DataSignals::signalUpdatePersonInLocalDB, this,
            &PersonMgrForm::slotUpdatePersonInLocalDB);
}

void PersonMgrForm::connectFilters()
{
    connect(m_ui->setCustomFieldsBt, &QAbstractButton::clicked, this, &PersonMgrForm::modifyCustomFields);
    connect(m_personsTable, &PersonsTableWt::signalCheckState, m_ui->selAll, &QCheckBox::setCheckState);
    connect(m_ui->selAll, &QCheckBox::clicked, this, [this](bool checked) {
        m_ui->selAll->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
        m_personsTable->setAllChecked(checked);
    });
    connect(m_ui->treeWidget, &PersonMgrTree::signalCurSelItemChanged, this, [this] { searchPersons(1); });
    connect(m_ui->searchBt, &QAbstractButton::clicked, this, [this] {
        m_ui->treeWidget->setCurSelItem(nullptr);
        searchPersons(1);
    });
    connect(m_ui->resetBt, &QAbstractButton::clicked, this, &PersonMgrForm::clearFilters);
    connect(m_ui->displayChildren, &QAbstractButton::clicked, this, [this] { searchPersons(1); });
    connect(m_ui->pageIndexWt, &PageEditWt::signalGotoPage, &PersonMgrWorker::instance(),
            &PersonMgrWorker::gotoPage);
    connect(m_ui->pageIndexWt, &PageEditWt::signalPageSizeChanged, &PersonMgrWorker::instance(),
            &PersonMgrWorker::showFirstPage);
    for (QLineEdit* edit : {m_ui->name, m_ui->serialNum})
        connect(edit, &QLineEdit::returnPressed, m_ui->searchBt, &QAbstractButton::click);
}

void PersonMgrForm::searchPersons(int page)
{
    PersonQueryCondition condition;
    if (m_ui->treeWidget->getCurSelTreeItem() != nullptr)
        condition.organizationIds = collectOrganizationIds(m_ui->displayChildren->isChecked());
    condition.pageSize = m_ui->pageIndexWt->getPageSize();
    condition.curPage = page;
    condition.name = m_ui->name->text().trimmed();
    condition.serialNum = m_ui->serialNum->text().trimmed();
    condition.validType = m_ui->validType->currentIndex();
    PersonMgrWorker::instance().queryPersons(condition);
}

QStringList PersonMgrForm::collectOrganizationIds(bool withChildren) const
{
    qarn_base::TreeItem* item = m_ui->treeWidget->getCurSelTreeItem();
    if (item == nullptr)
        return {};
    return withChildren ? m_ui->treeWidget->getChildItemIdsRecursively(item, true, false)
                        : QStringList{item->getId()};
}

int PersonMgrForm::formType() const
{
    return personMgrFormType;
}

void PersonMgrForm::slotCurPagePersons(const QList<PersonInfo>& persons, int curPage, int totalCnt)
{
    m_ui->pageIndexWt->updateTotalCnt(totalCnt, curPage);
    m_personsTable->setPersons(persons, m_ui->pageIndexWt->getPageSize() * (curPage - 1) + 1);
    m_ui->selAll->setCheckState(m_personsTable->checkState());
}

void PersonMgrForm::clearFilters()
{
    m_ui->name->clear();
    m_ui->serialNum->clear();
    m_ui->validType->setCurrentIndex(ValidAndInvalidPersons);
}

void PersonMgrForm::slotAddPersonsToLocalDB(const PersonList& /*persons*/, bool success)
{
    if (!success || m_bulkOperationRunning)
        return;
    const QString organizationId = m_ui->treeWidget->getCurSelOrganizationId();
    if (organizationId.isEmpty())
        return;
    clearFilters();
    PersonQueryCondition condition;
    condition.organizationIds = collectOrganizationIds(m_ui->displayChildren->isChecked());
    if (condition.organizationIds.isEmpty())
        condition.organizationIds.append(organizationId);
    condition.pageSize = m_ui->pageIndexWt->getPageSize();
    condition.curPage = lastPage;
    PersonMgrWorker::instance().queryPersons(condition);
}

void PersonMgrForm::slotDeletePersonsFromLocalDB(const QStringList& ids, bool success)
{
    if (!success || m_bulkOperationRunning)
        return;
    PersonMgrWorker::instance().removeCachedPersons(ids);
    PersonMgrWorker::instance().gotoPage(m_ui->pageIndexWt->getCurPageNum(),
                                         m_ui->pageIndexWt->getPageSize());
    m_ui->selAll->setCheckState(m_personsTable->checkState());
}

void PersonMgrForm::slotUpdatePersonInLocalDB(const PersonInfo& info, const QStringList& personIds,
                                              bool success)
{
    if (!success || m_bulkOperationRunning)
        return;
    PersonMgrWorker::instance().updateCachedPersons(info, personIds);
    m_personsTable->updatePersons(info, personIds);
}

bool PersonMgrForm::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ui->scrollArea->verticalScrollBar()) {
        if (event->type() == QEvent::Show)
            setHeaderRightMargin(scrollBarWidth);
        else if (event->type() == QEvent::Hide)
            setHeaderRightMargin(0);
    }
    return BaseForm::eventFilter(watched, event);
}

void PersonMgrForm::setHeaderRightMargin(int margin)
{
    m_ui->horizontalLayout_12->setContentsMargins(0, 1, margin, 1);
}

} // namespace qarn_personMgr
