#include "TestStore.h"

#include <qarn_base/BaseForm.h>
#include <qarn_data/DataSignals.h>

#include <QFile>
#include <QImage>
#include <QLibrary>
#include <QMetaMethod>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>
#include <memory>

using qarn_data::DataSignals;

namespace
{

const QString imageFolder = QStringLiteral(":/personMgr_images/images/");

struct SignalPeek : QObject {
    static bool isConnected(const QObject& sender, const QMetaMethod& signal)
    {
        return (sender.*&SignalPeek::isSignalConnected)(signal);
    }
};

int connectedDataSignals()
{
    const QMetaObject& meta = DataSignals::staticMetaObject;
    int connected = 0;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        connected += SignalPeek::isConnected(DataSignals::instance(), meta.method(i)) ? 1 : 0;
    return connected;
}

} // namespace

class tst_ModuleLibrary : public QObject
{
    Q_OBJECT
private slots:
    void exportsItsEntryOnly();
    void createsNothingWhenLoaded();
    void bringsItsResource();
    void takesEverythingAlongWhenUnloaded();
};

void tst_ModuleLibrary::exportsItsEntryOnly()
{
    const QString nm = QStandardPaths::findExecutable(QStringLiteral("nm"));
    if (nm.isEmpty())
        QSKIP("nm is not installed (Debian package binutils)");
    QProcess process;
    process.start(nm, {"-DC", "--defined-only", MODULE_LIBRARY});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    QStringList symbols;
    const QString output = QString::fromLocal8Bit(process.readAllStandardOutput());
    for (const QString& line : output.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        symbols.append(line.section(QLatin1Char(' '), 2));

    const QString name = QStringLiteral("qarn_personMgr::PersonMgrInit");
    for (const QString& symbol : qAsConst(symbols))
        QVERIFY2(symbol.contains(name), qPrintable(symbol));
    for (const char* member :
         {"instance()", "createPersonMgrForm()", "recoveryToInitialState()", "PersonMgrInit(QObject*)",
          "~PersonMgrInit()", "staticMetaObject", "metaObject() const", "qt_metacast(char const*)",
          "qt_metacall(QMetaObject::Call, int, void**)"})
        QVERIFY2(symbols.contains(name + QLatin1String("::") + QLatin1String(member)), member);
}

void tst_ModuleLibrary::createsNothingWhenLoaded()
{
    QCOMPARE(connectedDataSignals(), 0);
    QLibrary library(MODULE_LIBRARY);
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    QVERIFY(QApplication::allWidgets().isEmpty());
    QCOMPARE(connectedDataSignals(), 0);
    QVERIFY(library.unload());
}

void tst_ModuleLibrary::bringsItsResource()
{
    QVERIFY(!QFile::exists(imageFolder));
    QLibrary library(MODULE_LIBRARY);
    QVERIFY(library.load());
    for (const char* icon :
         {"change_organization_iconBt_n.png", "send_to_dev_iconBt_n.png", "sync_from_dev_iconBt_n.png"})
        QCOMPARE(QImage(imageFolder + QLatin1String(icon)).size(), QSize(12, 12));
    QCOMPARE(QImage(imageFolder + QLatin1String("default_face_image.png")).size(), QSize(166, 218));
    QVERIFY(library.unload());
    QVERIFY(!QFile::exists(imageFolder));
}

/// A host may use the module and then let it go.
void tst_ModuleLibrary::takesEverythingAlongWhenUnloaded()
{
    TestStore store;
    QLibrary library(MODULE_LIBRARY);
    QVERIFY(library.load());
    using Instance = void* (*)();
    using CreateForm = qarn_base::BaseForm* (*)(void*);
    const auto instance =
        reinterpret_cast<Instance>(library.resolve("_ZN14qarn_personMgr13PersonMgrInit8instanceEv"));
    const auto createForm = reinterpret_cast<CreateForm>(
        library.resolve("_ZN14qarn_personMgr13PersonMgrInit19createPersonMgrFormEv"));
    QVERIFY(instance != nullptr && createForm != nullptr);
    std::unique_ptr<qarn_base::BaseForm> form(createForm(instance()));
    form->show();
    QVERIFY(QTest::qWaitForWindowExposed(form.get()));
    QVERIFY(connectedDataSignals() > 0);
    form.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(library.unload());
    QVERIFY(!QFile::exists(imageFolder));
    QCOMPARE(connectedDataSignals(), 0);
}

QTEST_MAIN(tst_ModuleLibrary)
#include "tst_ModuleLibrary.moc"
