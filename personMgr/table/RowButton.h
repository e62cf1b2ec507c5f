#pragma once

#include <QPushButton>

namespace qarn_personMgr
{

/// Small button of a person's row: an image, another one under the mouse, and a frame when it has the focus.
/// It paints itself, since a page has two of them in each of up to 200 rows and a style sheet with images
/// would be read anew for every one.
class RowButton : public QPushButton
{
    Q_OBJECT
public:
    explicit RowButton(QWidget* parent = nullptr);

    void setImages(const QString& normal, const QString& hover); ///< paths

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    QString m_normal;
    QString m_hover;
};

} // namespace qarn_personMgr
