#pragma once

#include <qarn_base/Export.h>

#include <QUuid>
#include <QWidget>
#include <memory>

namespace qarn_base
{

/// Overlay that covers its parent while long work runs: labels "caption" and "description". Takes all
/// input of its parent and follows its size. DisabledWaitingWtManager removes it.
class QARN_BASE_EXPORT DisabledWaitingWt : public QWidget
{
    Q_OBJECT
public:
    /// With `transparent` the parent shines through fully and only the texts are painted.
    DisabledWaitingWt(QWidget* parent, const QString& caption, const QString& description, bool transparent);
    ~DisabledWaitingWt() override;

    QUuid getUuid() const;
    void updateDescription(const QString& description);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void build(const QString& caption, const QString& description);

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace qarn_base
