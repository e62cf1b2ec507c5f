#include "startup/Session.h"

#include "settings/ClientSettings.h"
#include "window/MainWindow.h"

#include "ModalDriver.h"
#include "StoreFolder.h"

#include <qarn_base/PageEditWt.h>
#include <qarn_data/DataService.h>
#include <qarn_data/PersonData.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

using qarn_data::DataService;

namespace
{

constexpr int Count = 5000;

MainWindow* mainWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* window = qobject_cast<MainWindow*>(widget))
            return window;
    }
    return nullptr;
}

CommandLine lineFor(const StoreFolder& folder)
{
    CommandLine line;
    line.storePath = folder.storePath();
    return line;
}

void press(const QWidget* dialog, const char* button)
{
    auto* found = dialog->findChild<QPushButton*>(button);
    QVERIFY2(found != nullptr, button);
    QTest::mouseClick(found, Qt::LeftButton);
}

} // namespace

/// The client's way from the store to the window and back.
class tst_Session : public QObject
{
    Q_OBJECT
private slots:
    void showsTheWindowAndLeaves();
    void asksAboutDamageThatIsFoundLater();
    void goesOnWithAnotherStore();
};

void tst_Session::showsTheWindowAndLeaves()
{
    StoreFolder folder;
    folder.makeStore(Count);
    const CommandLine line = lineFor(folder);
    ClientSettings settings;
    Session session(line, settings);
    QVERIFY(session.start());
    QTimer::singleShot(0, qApp, [] {
        QCOMPARE(mainWindow()->findChild<QLabel*>("totalCnt")->text().contains(QString::number(Count)), true);
        QCoreApplication::exit(7);
    });
    QCOMPARE(session.run(), 7);
}

void tst_Session::asksAboutDamageThatIsFoundLater()
{
    StoreFolder folder;
    folder.makeStore(Count);
    folder.spoilLastPersons();
    const CommandLine line = lineFor(folder);
    ClientSettings settings;
    Session session(line, settings);
    QVERIFY(session.start());
    ModalDriver driver;
    driver.expect([&folder](QWidget* dialog) {
        QVERIFY(mainWindow() == nullptr);
        const QString reason = dialog->findChild<QLabel*>("reason")->text();
        QVERIFY2(reason.contains(folder.storePath()), qPrintable(reason));
        press(dialog, "quitBt");
    });
    QCOMPARE(session.run(), int(Session::noStore));
    QCOMPARE(driver.pending(), 0);
}

void tst_Session::goesOnWithAnotherStore()
{
    StoreFolder folder;
    folder.makeStore(Count);
    folder.spoilLastPersons();
    const StoreFolder other;
    const CommandLine line = lineFor(folder);
    ClientSettings settings;
    Session session(line, settings);
    QVERIFY(session.start());
    ModalDriver driver;
    driver.expect([](QWidget* dialog) { press(dialog, "otherFileBt"); });
    driver.expect([&other](QWidget* dialog) {
        auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
        name->setText(other.storePath());
        QTest::keyClick(name, Qt::Key_Return);
    });
    QTimer watch;
    connect(&watch, &QTimer::timeout, this, [&other] {
        if (mainWindow() != nullptr && mainWindow()->isVisible() && QFile::exists(other.storePath()))
            QCoreApplication::exit(0);
    });
    watch.start(20);
    QCOMPARE(session.run(), 0);
    QCOMPARE(driver.pending(), 0);
    QVERIFY(DataService::instance().isOpen());
    QVERIFY(qarn_data::PersonData::instance().getAllPersons(false).isEmpty());
}

QTEST_MAIN(tst_Session)
#include "tst_Session.moc"
