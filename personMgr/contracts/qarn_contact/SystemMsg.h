#pragma once

#include <qarn_contact/Export.h>

#include <QObject>

namespace qarn_contact
{

/// Announcements of the host to every part of the client. GUI thread.
class QARN_CONTACT_EXPORT SystemMsg : public QObject
{
    Q_OBJECT
public:
    static SystemMsg& instance();

signals:
    /// The client is about to quit: long work ends as soon as it can.
    void signalPrepareQuitSystem();

private:
    SystemMsg();
};

} // namespace qarn_contact
