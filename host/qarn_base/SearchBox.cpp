#include <qarn_base/SearchBox.h>

#include <XCOMMON/XLineEdit.h>

#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>

namespace qarn_base
{

SearchBox::SearchBox(QWidget* parent) : QWidget(parent), m_searchLineEt(new XCOMMON::XLineEdit(this))
{
    m_searchLineEt->setObjectName(QStringLiteral("searchLineEt"));
    m_searchLineEt->setPlaceholderText(tr("Search"));
    m_searchLineEt->setAccessibleName(tr("Search"));
    m_searchLineEt->setClearButtonEnabled(true);
    m_searchLineEt->addAction(QIcon(QStringLiteral(":/images/images/search.png")),
                              QLineEdit::LeadingPosition);
    m_searchLineEt->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_searchLineEt->installEventFilter(this);
    setFocusProxy(m_searchLineEt);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_searchLineEt);
    connect(m_searchLineEt, &QLineEdit::textChanged, this, &SearchBox::signalTextChanged);
}

bool SearchBox::searchLineEtHasFocus() const
{
    return m_searchLineEt->hasFocus();
}

QString SearchBox::text() const
{
    return m_searchLineEt->text();
}

bool SearchBox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* keyEvent = static_cast<QKeyEvent*>(event);
    switch (keyEvent->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // Not passed on: a dialog around the box would take it for its default button.
        if (keyEvent->modifiers().testFlag(Qt::ShiftModifier))
            emit signalSearchPrevious();
        else
            emit signalSearchNext();
        return true;
    case Qt::Key_Down:
        emit signalSearchNext();
        return true;
    case Qt::Key_Up:
        emit signalSearchPrevious();
        return true;
    case Qt::Key_Escape:
        if (m_searchLineEt->text().isEmpty())
            break;
        m_searchLineEt->clear();
        return true;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace qarn_base
