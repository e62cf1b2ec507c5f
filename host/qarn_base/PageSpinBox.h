#pragma once

#include <QSpinBox>

namespace qarn_base
{

/// Page number to type over: only Return confirms it; without, it falls back when the focus leaves.
class PageSpinBox : public QSpinBox
{
    Q_OBJECT
public:
    explicit PageSpinBox(QWidget* parent);

    void setPages(int current, int count);

signals:
    void signalConfirmed(int page);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    int m_current = 0;
};

} // namespace qarn_base
