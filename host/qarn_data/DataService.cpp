#include <qarn_data/DataService.h>

#include "Register.h"

#include <qarn_data/DataSignals.h>
#include <qarn_data/DeviceRegistry.h>

#include <QCoreApplication>
#include <QTimer>

namespace qarn_data
{

namespace
{

/// Several looks a second, so that a change of another process is seen within one.
constexpr int lookIntervalMs = 250;

void announceForeignChanges()
{
    const Announcements announcements = Register::instance().takeForeignChanges();
    for (const Announcement& announce : announcements)
        announce();
}

// The database driver is a plug-in and must not outlive the application.
void closeAtExit()
{
    DataService::instance().close();
}

} // namespace

DataService::DataService()
{
    auto* timer = new QTimer(this);
    timer->setObjectName(QStringLiteral("foreignChanges"));
    timer->setInterval(lookIntervalMs);
    connect(timer, &QTimer::timeout, this, &announceForeignChanges);
    qAddPostRoutine(&closeAtExit);
    if (QCoreApplication::instance() != nullptr)
        moveToThread(QCoreApplication::instance()->thread());
    // What the service emits to, or works on, outlives it.
    Register::instance();
    DataSignals::instance();
    DeviceRegistry::instance();
}

DataService::~DataService() = default;

DataService& DataService::instance()
{
    static DataService service;
    return service;
}

bool DataService::open(const QString& location, QString* error)
{
    const bool ok = Register::instance().open(location, error);
    watchForeignChanges(ok);
    return ok;
}

bool DataService::openAhead(const QString& location, QString* error)
{
    const bool ok = Register::instance().openAhead(location, error);
    watchForeignChanges(ok);
    return ok;
}

void DataService::watchForeignChanges(bool on)
{
    QMetaObject::invokeMethod(findChild<QTimer*>(), on ? "start" : "stop");
}

void DataService::close()
{
    watchForeignChanges(false);
    Register::instance().close();
}

bool DataService::isOpen() const
{
    return Register::instance().isOpen();
}

bool DataService::backup(const QString& filePath, QString* error)
{
    return Register::instance().backup(filePath, error);
}

bool DataService::checkConsistency(QString* problem)
{
    return Register::instance().checkConsistency(problem);
}

} // namespace qarn_data
