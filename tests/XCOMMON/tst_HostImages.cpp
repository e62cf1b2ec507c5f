#include <XCOMMON/HostImages.h>

#include <QDirIterator>
#include <QIcon>
#include <QtTest>

class tst_HostImages : public QObject
{
    Q_OBJECT
private slots:
    void answersToThePathsOfTheModule_data();
    void answersToThePathsOfTheModule();
    void hasEveryImageInBothScales();
};

void tst_HostImages::answersToThePathsOfTheModule_data()
{
    QTest::addColumn<int>("edge");
    for (const char* name : {"add_iconBt_n", "delete_iconBt_n", "organization_iconBt", "import_iconBt_n",
                             "export_iconBt_n", "config_iconBt_n"})
        QTest::newRow(name) << 12;
    for (const char* name : {"edit_n", "edit_h", "delete_n", "delete_h"})
        QTest::newRow(name) << 18;
}

void tst_HostImages::answersToThePathsOfTheModule()
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
