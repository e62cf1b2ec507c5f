#include <XCOMMON/HostImages.h>

#include <QDirIterator>
#include <QIcon>
#include <QtTest>

class tst_HostImages : public QObject
{
    Q_OBJECT
private slots:
    void answersToThePathsInUse_data();
    void answersToThePathsInUse();
    void hasEveryImageInBothScales();
};

void tst_HostImages::answersToThePathsInUse_data()
{
    QTest::addColumn<int>("edge");
    for (const char* name : {"add_iconBt_n", "delete_iconBt_n", "organization_iconBt", "import_iconBt_n",
                             "export_iconBt_n", "config_iconBt_n"})
        QTest::newRow(name) << 12;
    for (const char* name : {"edit_n", "edit_h", "delete_n", "delete_h"})
        QTest::newRow(name) << 18;
    for (const char* name :
         {"search",         "folder",      "calendar",        "organization", "device",
          "device_offline", "channel",     "channel_offline", "first_page_n", "first_page_d",
          "prev_page_n",    "prev_page_d", "next_page_n",     "next_page_d",  "last_page_n",
          "last_page_d",    "close_n",     "maximize_n",      "minimize_n",   "bell"})
        QTest::newRow(name) << 16;
}

void tst_HostImages::answersToThePathsInUse()
{
    QFETCH(int, edge);
    const QString path = XCOMMON::imagePath(QLatin1String(QTest::currentDataTag()));
    QCOMPARE(path, QStringLiteral(":/images/images/%1.png").arg(QLatin1String(QTest::currentDataTag())));
    QCOMPARE(QImage(path).size(), QSize(edge, edge));
}

void tst_HostImages::hasEveryImageInBothScales()
{
    int images = 0;
    QDirIterator files(QStringLiteral(":/images/images"));
    while (files.hasNext()) {
        const QString path = files.next();
        if (path.contains(QLatin1String("@2x")))
            continue;
        ++images;
        const QImage image(path);
        QVERIFY2(image.size().isValid() && image.hasAlphaChannel(), qPrintable(path));
        const QString doubled = QString(path).replace(QLatin1String(".png"), QLatin1String("@2x.png"));
        QCOMPARE(QImage(doubled).size(), image.size() * 2);
    }
    QVERIFY(images > 50);
}

QTEST_MAIN(tst_HostImages)
#include "tst_HostImages.moc"
