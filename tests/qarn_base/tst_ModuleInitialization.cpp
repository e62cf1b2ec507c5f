#include <qarn_base/ModuleInitialization.h>

#include <QtTest>

using qarn_base::ModuleInitialization;

class CountingModule : public ModuleInitialization
{
public:
    explicit CountingModule(QObject* parent = nullptr) : ModuleInitialization(parent) {}
    int inits = 0;

protected:
    void init() override { ++inits; }
};

class PlainModule : public ModuleInitialization
{
public:
    PlainModule() : ModuleInitialization(nullptr) {}
};

class tst_ModuleInitialization : public QObject
{
    Q_OBJECT
private slots:
    void initialisesWhenTheHostAsks();
    void baseDoesNothing();
};

void tst_ModuleInitialization::initialisesWhenTheHostAsks()
{
    QObject parent;
    auto* module = new CountingModule(&parent);
    QCOMPARE(module->parent(), &parent);
    QCOMPARE(module->inits, 0);
    ModuleInitialization& base = *module;
    base.moduleInit();
    QCOMPARE(module->inits, 1);
    base.recoveryToInitialState();
    QCOMPARE(module->inits, 1);
}

void tst_ModuleInitialization::baseDoesNothing()
{
    PlainModule module;
    module.moduleInit();
    module.recoveryToInitialState();
    QVERIFY(module.parent() == nullptr);
}

QTEST_GUILESS_MAIN(tst_ModuleInitialization)
#include "tst_ModuleInitialization.moc"
