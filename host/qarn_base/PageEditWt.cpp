#include <qarn_base/PageEditWt.h>

#include "PageCount.h"
#include "PageSpinBox.h"

#include <qarn_base/ComboBox.h>

#include <XCOMMON/XPushButton.h>

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>

namespace qarn_base
{

namespace
{
constexpr int PageSizes[] = {20, 50, 100, 200};
constexpr int FirstPageSize = 50;
constexpr int ControlHeight = 28; ///< pixels
constexpr int ArrowWidth = 32;
constexpr int IconSide = 16;
} // namespace

struct PageEditWt::Private {
    XCOMMON::XPushButton* firstBt;
    XCOMMON::XPushButton* prevBt;
    PageSpinBox* curPage;
    QLabel* pageCount;
    XCOMMON::XPushButton* nextBt;
    XCOMMON::XPushButton* lastBt;
    ComboBox* pageSize;
    QLabel* totalCnt;
    int page = 0;
    int pages = 0;

    void build(PageEditWt* q);
    void layOut(PageEditWt* q) const;
    void update() const;
};

namespace
{

XCOMMON::XPushButton* makeArrow(const QString& name, const QString& image, const QString& tip,
                                QWidget* parent)
{
    auto* button = new XCOMMON::XPushButton(parent);
    button->setObjectName(name);
    QIcon icon(QStringLiteral(":/images/images/%1_n.png").arg(image));
    icon.addFile(QStringLiteral(":/images/images/%1_d.png").arg(image), QSize(), QIcon::Disabled);
    button->setIcon(icon);
    button->setIconSize(QSize(IconSide, IconSide));
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setFixedSize(ArrowWidth, ControlHeight);
    button->setProperty("common_bt_style2", true);
    return button;
}

QLabel* makeLabel(const QString& name, const QString& accessibleName, QWidget* parent)
{
    auto* label = new QLabel(QStringLiteral("0"), parent);
    label->setObjectName(name);
    label->setAccessibleName(accessibleName);
    return label;
}

} // namespace

PageEditWt::PageEditWt(QWidget* parent) : QWidget(parent), d(std::make_unique<Private>())
{
    d->build(this);
    d->layOut(this);
    d->update();

    const auto gotoPage = [this](int page) { emit signalGotoPage(page, getPageSize()); };
    connect(d->firstBt, &QPushButton::clicked, this, [gotoPage] { gotoPage(1); });
    connect(d->prevBt, &QPushButton::clicked, this, [this, gotoPage] { gotoPage(d->page - 1); });
    connect(d->nextBt, &QPushButton::clicked, this, [this, gotoPage] { gotoPage(d->page + 1); });
    connect(d->lastBt, &QPushButton::clicked, this, [this, gotoPage] { gotoPage(d->pages); });
    connect(d->curPage, &PageSpinBox::signalConfirmed, this, gotoPage);
    connect(d->pageSize, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            [this] { emit signalPageSizeChanged(getPageSize()); });
}

PageEditWt::~PageEditWt() = default;

void PageEditWt::Private::build(PageEditWt* q)
{
    firstBt = makeArrow(QStringLiteral("firstBt"), QStringLiteral("first_page"), tr("first page"), q);
    prevBt = makeArrow(QStringLiteral("prevBt"), QStringLiteral("prev_page"), tr("previous page"), q);
    curPage = new PageSpinBox(q);
    curPage->setObjectName(QStringLiteral("curPage"));
    curPage->setAccessibleName(tr("page"));
    curPage->setFixedSize(64, ControlHeight);
    pageCount = makeLabel(QStringLiteral("pageCount"), tr("number of pages"), q);
    nextBt = makeArrow(QStringLiteral("nextBt"), QStringLiteral("next_page"), tr("next page"), q);
    lastBt = makeArrow(QStringLiteral("lastBt"), QStringLiteral("last_page"), tr("last page"), q);
    pageSize = new ComboBox(q);
    pageSize->setObjectName(QStringLiteral("pageSize"));
    pageSize->setAccessibleName(tr("rows a page"));
    pageSize->setFixedSize(72, ControlHeight);
    for (const int size : PageSizes)
        pageSize->addItem(QString::number(size), size);
    pageSize->setCurrentIndex(pageSize->findData(FirstPageSize));
    totalCnt = makeLabel(QStringLiteral("totalCnt"), tr("number of persons"), q);
}

void PageEditWt::Private::layOut(PageEditWt* q) const
{
    auto* layout = new QHBoxLayout(q);
    layout->setContentsMargins(10, 0, 10, 0);
    layout->setSpacing(8);
    layout->addWidget(new QLabel(tr("Total"), q));
    layout->addWidget(totalCnt);
    layout->addStretch();
    layout->addWidget(firstBt);
    layout->addWidget(prevBt);
    layout->addWidget(curPage);
    layout->addWidget(new QLabel(QStringLiteral("/"), q));
    layout->addWidget(pageCount);
    layout->addWidget(nextBt);
    layout->addWidget(lastBt);
    layout->addSpacing(12);
    layout->addWidget(pageSize);
    layout->addWidget(new QLabel(tr("per page"), q));
}

void PageEditWt::Private::update() const
{
    curPage->setPages(page, pages);
    pageCount->setText(QString::number(pages));
    firstBt->setEnabled(page > 1);
    prevBt->setEnabled(page > 1);
    nextBt->setEnabled(page < pages);
    lastBt->setEnabled(page < pages);
}

int PageEditWt::getPageSize() const
{
    return d->pageSize->currentData().toInt();
}

int PageEditWt::getCurPageNum() const
{
    return d->page;
}

void PageEditWt::updateTotalCnt(int totalCnt, int curPage)
{
    d->page = curPage;
    d->pages = pageCountOf(totalCnt, getPageSize());
    d->totalCnt->setText(QString::number(qMax(totalCnt, 0)));
    d->update();
}

} // namespace qarn_base
