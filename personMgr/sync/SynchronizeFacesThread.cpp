#include "sync/SynchronizeFacesThread.h"

#include "sync/ChannelRequests.h"
#include "sync/FaceConversion.h"

#include <dvx_client_sdk/ClientSignals.h>
#include <qarn_base/BaseTools.h>
#include <qarn_contact/SystemMsg.h>
#include <qarn_data/PersonData.h>

#include <QTimer>
#include <QUuid>

using dvx_sdk::ClientSignals;
using dvx_sdk::FaceInfo;
using qarn_data::PersonData;
using qarn_data::PersonInfo;

namespace qarn_personMgr
{

namespace
{

constexpr int WatchdogIntervalMs = 60000;

QMap<QString, PersonInfo> bySerialNum(const QList<PersonInfo>& persons)
{
    QMap<QString, PersonInfo> map;
    for (const PersonInfo& person : persons)
        map.insert(person.serialNum, person);
    return map;
}

} // namespace

SynchronizeFacesThread::SynchronizeFacesThread(const QList<PersonInfo>& chosen,
                                               const QList<Channel>& channels_, bool deleteRemoved_,
                                               QObject* parent)
    : SynchronizeFacesThread(bySerialNum(chosen), {}, channels_, deleteRemoved_, 0, ToDevices, parent)
{
}

SynchronizeFacesThread::SynchronizeFacesThread(const QStringList& organizationIds_,
                                               const QList<Channel>& channels_, bool deleteRemoved_,
                                               QObject* parent)
    : SynchronizeFacesThread(bySerialNum(PersonData::instance().getPersons(organizationIds_, false)),
                             organizationIds_, channels_, deleteRemoved_, 1, ToDevices, parent)
{
}

SynchronizeFacesThread::SynchronizeFacesThread(const QStringList& organizationIds_,
                                               const QList<Channel>& channels_, QObject* parent)
    : SynchronizeFacesThread({}, organizationIds_, channels_, false, 0, FromDevices, parent)
{
}

SynchronizeFacesThread::SynchronizeFacesThread(const QMap<QString, PersonInfo>& persons_,
                                               const QStringList& organizationIds_,
                                               const QList<Channel>& channels_, bool deleteRemoved_,
                                               int byOrganizations_, int mode_, QObject* parent)
    : XThread(parent),
      persons(persons_),
      organizationIds(organizationIds_),
      channels(channels_),
      deleteRemoved(deleteRemoved_),
      byOrganizations(byOrganizations_),
      mode(mode_),
      syncId(QUuid::createUuid().toString()),
      watchdog(new QTimer(this)),
      watchdogInterval(WatchdogIntervalMs)
{
    watchdog->setSingleShot(true);
    watchdog->start(watchdogInterval);
    connectAll();
}

SynchronizeFacesThread::~SynchronizeFacesThread()
{
    cancel();
    emit signalQuitSync();
    wait();
}

void SynchronizeFacesThread::connectAll()
{
    const ClientSignals* answers = &ClientSignals::instance();
    connect(answers, &ClientSignals::signalGetFacesRes, this, &SynchronizeFacesThread::slotGetFacesRes);
    connect(answers, &ClientSignals::signalDelFaceRes, this, &SynchronizeFacesThread::slotDelFaceRes);
    connect(answers, &ClientSignals::signalAddFaceRes, this, &SynchronizeFacesThread::slotAddFaceRes);
    connect(watchdog, &QTimer::timeout, this, &SynchronizeFacesThread::slotWatchdogTimeout);
    connect(&qarn_contact::SystemMsg::instance(), &qarn_contact::SystemMsg::signalPrepareQuitSystem, this,
            &SynchronizeFacesThread::slotPrepareQuitSystem);
}

void SynchronizeFacesThread::setWatchdogInterval(int ms)
{
    watchdogInterval = ms;
    if (watchdog->isActive())
        watchdog->start(watchdogInterval);
}

void SynchronizeFacesThread::requestFaces()
{
    ChannelRequests(syncId, channels.constFirst()).askFaces(devFaces.count(), mode == FromDevices);
}

void SynchronizeFacesThread::slotGetFacesRes(dvx_sdk::Response response, dvx_sdk::FaceInfoList faces,
                                             uint totalCnt)
{
    if (!accept(response))
        return;
    if (response.code != 0) {
        emit signalGetAllFacesFromDevFinished(false);
        return;
    }
    devFaces += faces;
    if (static_cast<uint>(devFaces.count()) < totalCnt)
        requestFaces();
    else
        emit signalGetAllFacesFromDevFinished(true);
}

void SynchronizeFacesThread::slotReadEnded(bool success)
{
    if (success)
        return;
    emit signalSyncMsg(tr("get %1 faces failed").arg(channelName()), false);
    if (mode == FromDevices)
        watchdog->stop();
}

void SynchronizeFacesThread::requestDelete()
{
    ChannelRequests(syncId, channels.constFirst()).deleteFace(pendingDeletes.constFirst());
}

void SynchronizeFacesThread::slotDelFaceRes(dvx_sdk::Response response)
{
    if (!accept(response) || pendingDeletes.isEmpty())
        return;
    const FaceInfo face = pendingDeletes.takeFirst();
    if (response.code != 0)
        emit signalSyncMsg(tr("del %1 face from %2 failed").arg(face.name, channelName()), false);
    if (pendingDeletes.isEmpty())
        emit signalDelFacesFromDevFinished();
    else
        requestDelete();
}

void SynchronizeFacesThread::requestAdd()
{
    ChannelRequests(syncId, channels.constFirst()).addFaceOf(*addPosition);
}

void SynchronizeFacesThread::slotAddFaceRes(dvx_sdk::Response response)
{
    if (!accept(response) || persons.isEmpty())
        return;
    if (response.code != 0)
        emit signalSyncMsg(tr("add %1 face to %2 failed").arg(displayName(*addPosition), channelName()),
                           false);
    ++addPosition;
    if (++addIndex < persons.count())
        return requestAdd();
    addIndex = 0;
    emit signalAddFacesToDevFinished();
}

bool SynchronizeFacesThread::accept(const dvx_sdk::Response& response)
{
    if (response.requestId != syncId || cancelled)
        return false;
    watchdog->start(watchdogInterval);
    return true;
}

bool SynchronizeFacesThread::cancel()
{
    cancelled = true;
    return !ended.exchange(true);
}

void SynchronizeFacesThread::slotWatchdogTimeout()
{
    const bool first = cancel();
    emit signalQuitSync();
    if (first)
        emit signalSyncTimeout();
}

void SynchronizeFacesThread::slotPrepareQuitSystem()
{
    cancel();
    emit signalQuitSync();
    quit();
}

QString SynchronizeFacesThread::channelName() const
{
    return qarn_base::BaseTools::instance().getChannelName(channels.constFirst());
}

} // namespace qarn_personMgr
