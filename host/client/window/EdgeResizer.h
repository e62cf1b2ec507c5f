#pragma once

#include <QObject>

class QWidget;

/// Lets the operator resize a frameless window by its edges and corners. Lives with the window.
class EdgeResizer : public QObject
{
    Q_OBJECT
public:
    explicit EdgeResizer(QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Qt::Edges edgesAt(const QPoint& position) const;

    QWidget* m_window;
};
