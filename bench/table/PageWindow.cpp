#include "table/PageWindow.h"

#include "form/PersonMgrForm.h"
#include "style/DarkStyle.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>

namespace qarn_bench
{

PageWindow::PageWindow()
{
    applyDarkStyle(*qApp);
    m_form = std::make_unique<qarn_personMgr::PersonMgrForm>();
    m_form->show();
    resize(1280, 760);
}

PageWindow::~PageWindow() = default;

void PageWindow::paint()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

void PageWindow::setPageSize(int size)
{
    m_form->findChild<QComboBox*>(QStringLiteral("pageSize"))->setCurrentText(QString::number(size));
    paint();
}

void PageWindow::click(const char* button)
{
    auto* found = m_form->findChild<QAbstractButton*>(QLatin1String(button));
    if (found == nullptr || !found->isEnabled())
        qFatal("the page has no %s to click", button);
    found->click();
    paint();
}

void PageWindow::resize(int width, int height)
{
    m_form->resize(width, height);
    paint();
}

} // namespace qarn_bench
