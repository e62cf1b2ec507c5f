#pragma once

#include <qarn_worker/Export.h>

#include <QObject>
#include <QString>

namespace qarn_worker
{

/// Tells the operator something without stopping the work. Any thread may call; the call never blocks.
class QARN_WORKER_EXPORT SystemAssistant : public QObject
{
    Q_OBJECT
public:
    static SystemAssistant& instance();

    /// `title` is one of the titles of DictDef.
    void messageAlert(const QString& title, const QString& text);

signals:
    /// Emitted in the GUI thread for every alert, in the order of the calls of one thread.
    void signalMessageAlert(const QString& title, const QString& text);

private:
    SystemAssistant();
};

} // namespace qarn_worker
