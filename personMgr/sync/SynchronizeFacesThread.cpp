#include "sync/SynchronizeFacesThread.h"

#include "sync/ChannelGate.h"
#include "sync/FaceConversion.h"

#include <dvx_client_sdk/ClientSignals.h>
#include <dvx_client_sdk/FaceRequests.h>
#include <qarn_base/BaseTools.h>
#include <qarn_contact/SystemMsg.h>
#include <qarn_data/PersonData.h>

#include <QEventLoop>
#include <QTimer>
#include <QUuid>

#include <algorithm>
#include <memory>

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

template <typename Predicate>
QList<FaceInfo> facesWhere(const QList<FaceInfo>& faces, Predicate predicate)
{
    QList<FaceInfo> chosen;
    std::copy_if(faces.cbegin(), faces.cend(), std::back_inserter(chosen), predicate);
    return chosen;
}

} // namespace

struct SynchronizeFacesThread::Work {
    QEventLoop loop;
    std::shared_ptr<ChannelGate> gate = std::make_shared<ChannelGate>(); ///< outlives the loop
};

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

void SynchronizeFacesThread::run()
{
    if (mode == ToDevices)
        synchronizeToDevices();
    else
        synchronizeFromDevices();
}

void SynchronizeFacesThread::synchronizeToDevices()
{
    while (!channels.isEmpty() && !cancelled) {
        Work work;
        readFaces(work);
        if (!cancelled && deleteRemoved) {
            const QSet<QString> known = PersonData::instance().getAllPersonsSerialNum();
            deleteFaces(work, facesWhere(devFaces, [&known](const FaceInfo& face) {
                            return !known.contains(face.serialNum);
                        }));
        }
        if (!cancelled)
            deleteFaces(work, facesWhere(devFaces, [this](const FaceInfo& face) {
                            return persons.contains(face.serialNum);
                        }));
        if (!cancelled)
            addFaces(work);
        if (!cancelled)
            channels.removeFirst();
    }
    finish();
}

void SynchronizeFacesThread::synchronizeFromDevices()
{
    while (!channels.isEmpty() && !cancelled) {
        Work work;
        readFaces(work);
        if (!cancelled)
            importFaces();
        if (!cancelled)
            channels.removeFirst();
    }
    finish();
}

void SynchronizeFacesThread::importFaces()
{
    PersonData& data = PersonData::instance();
    QSet<QString> known = data.getAllPersonsSerialNum();
    PersonInfo person; // one for all faces: what a face does not supply stays from the face before it
    for (const FaceInfo& face : qAsConst(devFaces)) {
        if (known.contains(face.serialNum)) {
            person = data.getPersonBySerialNum(face.serialNum, false);
            updatePersonFromFace(person, face);
            data.updatePerson(person);
        } else {
            fillPersonFromFace(person, face, organizationIds.value(0));
            if (data.addPerson(person))
                known.insert(person.serialNum);
        }
    }
}

void SynchronizeFacesThread::finish()
{
    if (!cancelled && !ended.exchange(true))
        emit signalSyncFinished();
}

void SynchronizeFacesThread::readFaces(Work& work)
{
    emit signalSyncMsg(tr("getting %1 faces....").arg(channelName()), true);
    devFaces.clear();
    const auto gate = work.gate;
    const int phase = gate->startPhase();
    connect(this, &SynchronizeFacesThread::signalQuitSync, this, [gate] { gate->openForGood(); });
    connect(this, &SynchronizeFacesThread::signalGetAllFacesFromDevFinished, this,
            [this, gate, phase](bool success) {
                slotReadEnded(success);
                gate->open(phase);
            });
    if (!cancelled)
        requestFaces();
    await(work);
}

void SynchronizeFacesThread::slotReadEnded(bool success)
{
    if (success)
        return;
    emit signalSyncMsg(tr("get %1 faces failed").arg(channelName()), false);
    if (mode == FromDevices)
        watchdog->stop();
}

void SynchronizeFacesThread::deleteFaces(Work& work, const QList<FaceInfo>& faces)
{
    pendingDeletes = faces;
    if (pendingDeletes.isEmpty())
        return;
    emit signalSyncMsg(tr("deleting %1 faces....").arg(channelName()), true);
    const auto gate = work.gate;
    const int phase = gate->startPhase();
    connect(this, &SynchronizeFacesThread::signalDelFacesFromDevFinished, this,
            [gate, phase] { gate->open(phase); });
    if (!cancelled)
        requestDelete();
    await(work);
}

void SynchronizeFacesThread::addFaces(Work& work)
{
    if (persons.isEmpty())
        return;
    emit signalSyncMsg(tr("adding %1 faces...").arg(channelName()), true);
    addPosition = persons.constBegin();
    const auto gate = work.gate;
    const int phase = gate->startPhase();
    connect(this, &SynchronizeFacesThread::signalAddFacesToDevFinished, this,
            [gate, phase] { gate->open(phase); });
    if (!cancelled)
        requestAdd();
    await(work);
}

void SynchronizeFacesThread::await(Work& work)
{
    // A cancel before the gate was connected has opened nothing, but then the flag is set.
    if (!cancelled && !work.gate->wait(work.loop))
        cancel();
}

void SynchronizeFacesThread::requestFaces()
{
    constexpr int ListPageSize = 32;
    constexpr int ImagePageSize = 1; // an answer with photographs stays small
    dvx_sdk::GetFacesCondition condition;
    condition.requestId = syncId;
    condition.deviceId = channels.constFirst().first;
    condition.channelNo = channels.constFirst().second;
    condition.includeImages = mode == FromDevices;
    condition.pageSize = condition.includeImages ? ImagePageSize : ListPageSize;
    condition.pageNo = devFaces.count() / condition.pageSize + 1;
    dvx_sdk::get_faces_req(condition);
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

void SynchronizeFacesThread::requestDelete()
{
    dvx_sdk::DelFaceCondition condition;
    condition.requestId = syncId;
    condition.deviceId = channels.constFirst().first;
    condition.channelNo = channels.constFirst().second;
    condition.faceId = pendingDeletes.constFirst().faceId;
    dvx_sdk::del_face_req(condition);
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
    const PersonInfo& person = *addPosition;
    dvx_sdk::ModifyFaceCondition face =
        faceOfPerson(person, PersonData::instance().getHierarchicalOrganizationNames(person.organizationId));
    face.requestId = syncId;
    face.deviceId = channels.constFirst().first;
    face.channelNo = channels.constFirst().second;
    dvx_sdk::add_face_req(face);
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
