// What SynchronizeFacesThread does in the worker thread: phase after phase, each started here and waited for
// while the answers are handled elsewhere.

#include "sync/ChannelGate.h"
#include "sync/FaceImport.h"
#include "sync/SynchronizeFacesThread.h"

#include <qarn_data/PersonData.h>

#include <QEventLoop>
#include <QSet>

#include <algorithm>
#include <iterator>
#include <memory>

using dvx_sdk::FaceInfo;
using qarn_data::PersonData;

namespace qarn_personMgr
{

namespace
{

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
            importFaces(devFaces, organizationIds.value(0));
        if (!cancelled)
            channels.removeFirst();
    }
    finish();
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

} // namespace qarn_personMgr
