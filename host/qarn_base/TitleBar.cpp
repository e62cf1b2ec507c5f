#include "TitleBar.h"

#include "PlainToolTip.h"

#include <qarn_base/HostColors.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

namespace qarn_base
{

namespace
{
constexpr int ButtonSide = 24; ///< pixels
constexpr qreal SignSide = 10;
} // namespace

TitleBarBt::TitleBarBt(Sign sign, QWidget* parent) : QPushButton(parent), m_sign(sign)
{
    setFixedSize(ButtonSide, ButtonSide);
    setAutoDefault(false);
    setAttribute(Qt::WA_Hover);
}

void TitleBarBt::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (underMouse() || isDown()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_sign == Sign::Close ? colors::Error : colors::Selected);
        painter.drawRoundedRect(rect(), 3, 3);
    }
    if (hasFocus()) {
        painter.setPen(colors::Accent);
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    }
    painter.setPen(QPen(underMouse() ? QColor(Qt::white) : colors::Text, 1.3));
    QRectF sign(0, 0, SignSide, SignSide);
    sign.moveCenter(QRectF(rect()).center());
    switch (m_sign) {
    case Sign::Close:
        painter.drawLine(sign.topLeft(), sign.bottomRight());
        painter.drawLine(sign.bottomLeft(), sign.topRight());
        break;
    case Sign::Maximize:
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(sign);
        break;
    case Sign::Minimize:
        painter.drawLine(QPointF(sign.left(), sign.center().y()), QPointF(sign.right(), sign.center().y()));
        break;
    }
}

TitleBar::TitleBar(bool showMinMax, QWidget* parent)
    : QWidget(parent),
      m_title(new QLabel(this)),
      m_minimizeBt(new TitleBarBt(TitleBarBt::Sign::Minimize, this)),
      m_maximizeBt(new TitleBarBt(TitleBarBt::Sign::Maximize, this)),
      m_closeBt(new TitleBarBt(TitleBarBt::Sign::Close, this))
{
    const auto name = [](TitleBarBt* button, const QString& objectName, const QString& text) {
        button->setObjectName(objectName);
        button->setToolTip(text);
        button->setAccessibleName(text);
    };
    m_title->setObjectName(QStringLiteral("title"));
    m_title->setTextFormat(Qt::PlainText);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    name(m_minimizeBt, QStringLiteral("minimizeBt"), tr("minimize"));
    name(m_maximizeBt, QStringLiteral("maximizeBt"), tr("maximize"));
    name(m_closeBt, QStringLiteral("closeBt"), tr("close"));
    m_minimizeBt->setVisible(showMinMax);
    m_maximizeBt->setVisible(showMinMax);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 0, 6, 0);
    layout->setSpacing(4);
    layout->addWidget(m_title);
    for (TitleBarBt* button : {m_minimizeBt, m_maximizeBt, m_closeBt})
        layout->addWidget(button);

    connect(m_minimizeBt, &QPushButton::clicked, this, &TitleBar::signalMinimize);
    connect(m_maximizeBt, &QPushButton::clicked, this, &TitleBar::signalMaximize);
    connect(m_closeBt, &QPushButton::clicked, this, &TitleBar::signalClose);
}

void TitleBar::setTitle(const QString& title)
{
    m_title->setText(title);
    m_title->setToolTip(plainToolTip(title));
}

void TitleBar::goLastInTabOrder()
{
    // QWidget::setTabOrder() does not move a widget behind the last one; a new child goes there.
    QWidget* dialog = parentWidget();
    if (dialog->previousInFocusChain() == m_closeBt)
        return;
    setParent(nullptr);
    setParent(dialog);
    raise();
}

void TitleBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), colors::TitleBar);
    painter.fillRect(QRect(0, height() - 1, width(), 1), colors::Line);
}

} // namespace qarn_base
