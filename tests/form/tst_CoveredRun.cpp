#include "form/CoveredRun.h"

#include <qarn_base/DisabledWaitingWt.h>

#include <QLabel>
#include <QThread>
#include <QtTest>
#include <memory>

using qarn_base::DisabledWaitingWt;
using qarn_personMgr::CoveredRun;

class tst_CoveredRun : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_form.reset(); }

    void coversFromTheStart();
    void describesTheWork();
    void endsOnce();
    void tellsALostThread();
    void tellsNothingAfterItsEnd();
    void outlivesTheForm();

private:
    DisabledWaitingWt* overlay() const { return m_form->findChild<DisabledWaitingWt*>(); }
    QThread* makeThread()
    {
        QThread* thread = QThread::create([] {});
        thread->setParent(m_form.get());
        return thread;
    }

    std::unique_ptr<QWidget> m_form;
};

void tst_CoveredRun::init()
{
    m_form = std::make_unique<QWidget>();
    m_form->resize(400, 300);
    m_form->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_form.get()));
}

void tst_CoveredRun::coversFromTheStart()
{
    const CoveredRun run(m_form.get(), makeThread(), QStringLiteral("Working..."));
    QVERIFY(overlay() != nullptr);
    QVERIFY(overlay()->isVisible());
    QCOMPARE(overlay()->findChild<QLabel*>("caption")->text(), QStringLiteral("Working..."));
    QCOMPARE(overlay()->findChild<QLabel*>("description")->text(), QString());
}

void tst_CoveredRun::describesTheWork()
{
    const CoveredRun run(m_form.get(), makeThread(), QStringLiteral("Working..."));
    run.updateDescription(QStringLiteral("half of it"));
    QCOMPARE(overlay()->findChild<QLabel*>("description")->text(), QStringLiteral("half of it"));
    run.end();
    QTRY_VERIFY(overlay() == nullptr);
    run.updateDescription(QStringLiteral("late"));
}

void tst_CoveredRun::endsOnce()
{
    const QPointer<QThread> thread = makeThread();
    const CoveredRun run(m_form.get(), thread, QStringLiteral("Working..."));
    const CoveredRun other(m_form.get(), makeThread(), QStringLiteral("Other..."));
    const CoveredRun copy = run;
    QVERIFY(copy.end());
    QVERIFY(!run.end());
    QTRY_VERIFY(thread.isNull());
    QTRY_COMPARE(m_form->findChildren<DisabledWaitingWt*>().count(), 1);
    QCOMPARE(overlay()->findChild<QLabel*>("caption")->text(), QStringLiteral("Other..."));
}

void tst_CoveredRun::tellsALostThread()
{
    const QPointer<QThread> thread = makeThread();
    const CoveredRun run(m_form.get(), thread, QStringLiteral("Working..."));
    int lost = 0;
    run.start(m_form.get(), [&lost] { ++lost; });
    QTRY_COMPARE(lost, 1);
    QTRY_VERIFY(overlay() == nullptr);
    QTRY_VERIFY(thread.isNull());
    QVERIFY(!run.end());
}

void tst_CoveredRun::tellsNothingAfterItsEnd()
{
    const QPointer<QThread> thread = makeThread();
    const CoveredRun run(m_form.get(), thread, QStringLiteral("Working..."));
    int lost = 0;
    run.start(m_form.get(), [&lost] { ++lost; });
    QVERIFY(thread->wait());
    QVERIFY(run.end());
    QTRY_VERIFY(thread.isNull());
    QCOMPARE(lost, 0);
}

void tst_CoveredRun::outlivesTheForm()
{
    const CoveredRun run(m_form.get(), makeThread(), QStringLiteral("Working..."));
    m_form.reset();
    run.updateDescription(QStringLiteral("late"));
    QVERIFY(run.end());
}

QTEST_MAIN(tst_CoveredRun)
#include "tst_CoveredRun.moc"
