#pragma once

#include <XCOMMON/XThread.h>
#include <dvx_client_sdk/FaceRecords.h>
#include <qarn_data/PersonInfo.h>

#include <QList>
#include <QMap>
#include <QPair>
#include <QStringList>

#include <atomic>

class QTimer;

namespace qarn_personMgr
{

/// Compares and transfers faces between the register and device channels, one request at a time. run()
/// starts each phase and waits in the worker thread; the answers are handled, and the next requests sent,
/// in the thread that owns the object. Made by the main form, once a command.
class SynchronizeFacesThread : public XCOMMON::XThread
{
    Q_OBJECT
public:
    using Channel = QPair<QString, int>; ///< device id and channel number

    /// To devices: these persons.
    SynchronizeFacesThread(const QList<qarn_data::PersonInfo>& persons, const QList<Channel>& channels,
                           bool deleteRemoved, QObject* parent);
    /// To devices: the persons of these organizations, as they are now.
    SynchronizeFacesThread(const QStringList& organizationIds, const QList<Channel>& channels,
                           bool deleteRemoved, QObject* parent);
    /// From devices, into the first of these organizations.
    SynchronizeFacesThread(const QStringList& organizationIds, const QList<Channel>& channels,
                           QObject* parent);
    ~SynchronizeFacesThread() override; ///< cancels, and waits for run() to return

    /// How long devices may be silent before the run is given up; restarts the running watchdog.
    void setWatchdogInterval(int ms);

signals:
    void signalSyncMsg(QString msg, bool isNormal); ///< progress, or a failure when not normal
    void signalSyncFinished();
    void signalSyncTimeout();
    void signalGetAllFacesFromDevFinished(bool success);
    void signalDelFacesFromDevFinished();
    void signalAddFacesToDevFinished();
    void signalQuitSync();

public slots:
    void slotGetFacesRes(dvx_sdk::Response response, dvx_sdk::FaceInfoList faces, uint totalCnt);
    void slotDelFaceRes(dvx_sdk::Response response);
    void slotAddFaceRes(dvx_sdk::Response response);

protected:
    void run() override;

private:
    enum Mode { ToDevices = 0, FromDevices = 1 };

    SynchronizeFacesThread(const QMap<QString, qarn_data::PersonInfo>& persons,
                           const QStringList& organizationIds, const QList<Channel>& channels,
                           bool deleteRemoved, int byOrganizations, int mode, QObject* parent);
    void connectAll();

    /// One channel being worked on, as run() sees it.
    struct Work;

    void synchronizeToDevices();
    void synchronizeFromDevices();
    void finish();

    void readFaces(Work& work);
    void deleteFaces(Work& work, const QList<dvx_sdk::FaceInfo>& faces);
    void addFaces(Work& work);
    void await(Work& work);
    void slotReadEnded(bool success);

    void requestFaces();
    void requestDelete();
    void requestAdd();

    bool accept(const dvx_sdk::Response& response); ///< own, and not cancelled; restarts the watchdog
    bool cancel();                                  ///< false when the end was told already
    void slotWatchdogTimeout();
    void slotPrepareQuitSystem();
    QString channelName() const;

    QMap<QString, qarn_data::PersonInfo> persons; ///< by serial number
    QStringList organizationIds;
    QList<Channel> channels; ///< still to do; the first is being done
    bool deleteRemoved;
    int byOrganizations;
    int mode;
    QList<dvx_sdk::FaceInfo> devFaces; ///< read so far from the current channel
    const QString syncId;
    QList<dvx_sdk::FaceInfo> pendingDeletes; ///< the first is in flight
    std::atomic<bool> cancelled{false};
    QTimer* watchdog;
    int watchdogInterval;
    int addIndex = 0;
    QMap<QString, qarn_data::PersonInfo>::const_iterator addPosition; ///< the person at addIndex
    std::atomic<bool> ended{false}; ///< the first end is told; one that comes at the same time is not
};

} // namespace qarn_personMgr
