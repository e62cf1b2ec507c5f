#include "LinkListener.h"
#include "SimulatedDevice.h"
#include "TestStore.h"

#include <dvx_client_sdk/ResponseCodes.h>

#include <QtTest>

using namespace dvx_sdk;

class tst_FaceRequests : public QObject
{
    Q_OBJECT
private slots:
    void addsListsAndDeletes();

private:
    TestStore m_store;
};

void tst_FaceRequests::addsListsAndDeletes()
{
    SimulatedDevice sim({"--channels", "2", "--token", "secret"});
    sim.addToRegistry();
    LinkListener link;
    const QByteArray photo = testPhoto(60000);
    QCOMPARE(link.add(sim.id(), 1, "A1", photo), int(Success));
    QCOMPARE(link.add(sim.id(), 1, "A1", photo), 409);

    LinkListener::Page page = link.list(sim.id(), 1, 1, 1, true);
    QCOMPARE(page.code, int(Success));
    QCOMPARE(page.total, 1u);
    QCOMPARE(page.faces.count(), 1);
    const FaceInfo face = page.faces.first();
    QCOMPARE(face.serialNum, QString("A1"));
    QCOMPARE(face.name, QString("Name of A1"));
    QCOMPARE(face.sex, 2);
    QCOMPARE(face.validStartTime, QDateTime(QDate(2024, 7, 1), QTime(8, 0, 0, 123)));
    QCOMPARE(face.validEndTime, QDateTime(QDate(2034, 1, 1), QTime(23, 59, 59)));
    QCOMPARE(face.faceImages, QList<QByteArray>{photo.toBase64()});

    page = link.list(sim.id(), 1);
    QCOMPARE(page.faces.first().faceId, face.faceId);
    QVERIFY(page.faces.first().faceImages.isEmpty());
    QCOMPARE(link.list(sim.id(), 2).total, 0u);

    QCOMPARE(link.del(sim.id(), 2, face.faceId), int(UnknownFace));
    QCOMPARE(link.del(sim.id(), 1, face.faceId), int(Success));
    QCOMPARE(link.list(sim.id(), 1).total, 0u);
    QCOMPARE(link.del(sim.id(), 1, face.faceId), int(UnknownFace));
}

QTEST_GUILESS_MAIN(tst_FaceRequests)
#include "tst_FaceRequests.moc"
