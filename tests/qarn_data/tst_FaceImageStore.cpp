#include "FaceImageStore.h"
#include "SqlStore.h"
#include "SqliteDialect.h"

#include <QtTest>

using namespace qarn_data;

class tst_FaceImageStore : public QObject
{
    Q_OBJECT
private slots:
    void keepsEqualImagesOnce();
    void handsOutSharedBytes();
    void readsAllAtOnce();
    void unusedImagesGo();
};

namespace
{

struct Store {
    Store()
    {
        QString reason;
        if (!sql.open(":memory:", &reason))
            qFatal("%s", qPrintable(reason));
    }
    int count(const char* query)
    {
        int count = -1;
        sql.forEachRow(query, {}, [&count](const Row& row) { count = int(row.number(0)); });
        return count;
    }
    SqlStore sql{std::make_unique<SqliteDialect>()};
    FaceImageStore faces{sql};
};

} // namespace

void tst_FaceImageStore::keepsEqualImagesOnce()
{
    Store store;
    const QByteArray image(100000, '\xff');
    const QByteArray key = store.faces.put(image);
    QVERIFY(!key.isEmpty());
    QCOMPARE(store.faces.put(QByteArray(image.constData(), image.size())), key);
    QVERIFY(store.faces.put(image + "x") != key);
    QCOMPARE(store.count("SELECT count(*) FROM face_images"), 2);
    QCOMPARE(store.faces.image(key), image);
}

void tst_FaceImageStore::handsOutSharedBytes()
{
    Store store;
    const QByteArray key = store.faces.put("jpeg");
    QVERIFY(store.faces.image(key).isSharedWith(store.faces.image(key)));
    QVERIFY(store.faces.image("no such key").isEmpty());
    QVERIFY(store.faces.image(QByteArray()).isEmpty());
    QVERIFY(!store.faces.hasFailed());
    store.sql.run("DROP TABLE face_images");
    FaceImageStore broken(store.sql);
    QVERIFY(broken.image(key).isEmpty());
    QVERIFY(broken.hasFailed());
    QVERIFY(broken.put("jpeg").isEmpty());
}

void tst_FaceImageStore::readsAllAtOnce()
{
    Store store;
    const QByteArray first = store.faces.put("first");
    const QByteArray second = store.faces.put("second");
    FaceImageStore faces(store.sql);
    faces.readAll();
    store.sql.run("DROP TABLE face_images"); // it has no need of it any more
    QCOMPARE(faces.image(first), QByteArray("first"));
    QCOMPARE(faces.image(second), QByteArray("second"));
    QVERIFY(!faces.hasFailed());
    faces.readAll();
    QVERIFY(faces.hasFailed());
}

void tst_FaceImageStore::unusedImagesGo()
{
    Store store;
    const QByteArray key = store.faces.put("jpeg");
    for (int person : {1, 2}) {
        QVERIFY(store.sql.run("INSERT INTO persons (number, serial_num, name, sex, email, phone_num, remarks,"
                              " identity_type, identity_id, job, address)"
                              " VALUES (?, '', '', 1, '', '', '', 0, '', '', '')",
                              person));
        QVERIFY(store.sql.run("INSERT INTO person_faces (person, slot, hash) VALUES (?, 1, ?)", person, key));
    }
    QVERIFY(!store.sql.run("DELETE FROM face_images")); // in use
    QVERIFY(store.sql.run("DELETE FROM persons WHERE number = 1"));
    QCOMPARE(store.count("SELECT count(*) FROM face_images"), 1);
    QVERIFY(store.sql.run("DELETE FROM persons WHERE number = 2"));
    QCOMPARE(store.count("SELECT count(*) FROM face_images"), 0);
}

QTEST_GUILESS_MAIN(tst_FaceImageStore)
#include "tst_FaceImageStore.moc"
