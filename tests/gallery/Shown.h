#pragma once

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStylePainter>

/// Button that is painted in a state which otherwise needs a mouse or the focus.
template <typename Button>
class Shown : public Button
{
public:
    Shown(const QString& text, QStyle::State state) : Button(text), m_state(state) {}

protected:
    void paintEvent(QPaintEvent*) override
    {
        QStylePainter painter(this);
        QStyleOptionButton option;
        this->initStyleOption(&option);
        option.state |= m_state;
        if (m_state & QStyle::State_Sunken)
            option.state &= ~QStyle::State_Raised;
        painter.drawControl(element(static_cast<Button*>(this)), option);
    }

private:
    static QStyle::ControlElement element(QPushButton*) { return QStyle::CE_PushButton; }
    static QStyle::ControlElement element(QCheckBox*) { return QStyle::CE_CheckBox; }
    static QStyle::ControlElement element(QRadioButton*) { return QStyle::CE_RadioButton; }

    QStyle::State m_state;
};
