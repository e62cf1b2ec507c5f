#pragma once

#include <QLabel>

namespace qarn_personMgr
{

/// Label of one column of a row. Unlike a plain label it also breaks a long word, asks for no width of its
/// own, so that all rows keep the same columns, and ends a text that is still too long with an ellipsis;
/// the tool tip then shows all of it. The text is always plain.
class TextCell : public QLabel
{
    Q_OBJECT
public:
    explicit TextCell(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return false; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    /// The lines that fit; `cut` tells whether that is less than the text.
    QStringList visibleLines(bool* cut = nullptr) const;
};

} // namespace qarn_personMgr
