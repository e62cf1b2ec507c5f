#pragma once

#include <qarn_base/Export.h>

#include <QWidget>

class QLineEdit;

namespace qarn_base
{

/// Search field above a tree; its edit is "searchLineEt".
class QARN_BASE_EXPORT SearchBox : public QWidget
{
    Q_OBJECT
public:
    explicit SearchBox(QWidget* parent = nullptr);

    bool searchLineEtHasFocus() const;
    QString text() const;

signals:
    void signalTextChanged(const QString& text);
    void signalSearchNext();     ///< Return or Down asks for the next match
    void signalSearchPrevious(); ///< Shift+Return or Up asks for the one before

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLineEdit* m_searchLineEt;
};

} // namespace qarn_base
