#include "alerts/Toast.h"
#include "alerts/ToastStack.h"

#include <qarn_worker/DictDef.h>
#include <qarn_worker/SystemAssistant.h>

#include <QLabel>
#include <QtTest>

#include <thread>

using qarn_worker::DictDef;
using qarn_worker::SystemAssistant;

class tst_ToastStack : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();
    void showsTheAlertOfAnyThread();
    void keepsTheNewestFew();
    void aClickDismisses();
    void followsTheRightEdge();

private:
    QStringList texts() const;

    QWidget* m_window = nullptr;
};

void tst_ToastStack::init()
{
    m_window = new QWidget;
    m_window->resize(900, 600);
    new ToastStack(m_window);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window));
}

void tst_ToastStack::cleanup()
{
    delete m_window;
}

QStringList tst_ToastStack::texts() const
{
    QStringList texts;
    for (const Toast* toast : m_window->findChildren<Toast*>()) {
        if (toast->isVisible())
            texts.append(toast->findChild<QLabel*>("alertText")->text());
    }
    return texts;
}

void tst_ToastStack::showsTheAlertOfAnyThread()
{
    std::thread([] {
        SystemAssistant::instance().messageAlert(DictDef::instance().errorAlertTitle, "from <b>afar</b>");
    }).join();
    QTRY_COMPARE(texts(), QStringList{"from <b>afar</b>"});
    const auto* toast = m_window->findChild<Toast*>();
    QCOMPARE(toast->property("alertKind").toString(), QString("error"));
    QCOMPARE(toast->findChild<QLabel*>("alertTitle")->text(), DictDef::instance().errorAlertTitle);
}

void tst_ToastStack::keepsTheNewestFew()
{
    for (int number = 1; number <= 7; ++number)
        SystemAssistant::instance().messageAlert(DictDef::instance().warningAlertTitle,
                                                 QString::number(number));
    QTRY_COMPARE(texts(), (QStringList{"4", "5", "6", "7"}));
}

void tst_ToastStack::aClickDismisses()
{
    SystemAssistant::instance().messageAlert(DictDef::instance().successAlertTitle, "done");
    QTRY_COMPARE(texts().count(), 1);
    QTest::mouseClick(m_window->findChild<Toast*>(), Qt::LeftButton);
    QTRY_COMPARE(texts().count(), 0);
}

void tst_ToastStack::followsTheRightEdge()
{
    SystemAssistant::instance().messageAlert(DictDef::instance().successAlertTitle, "done");
    QTRY_COMPARE(texts().count(), 1);
    const auto* stack = m_window->findChild<ToastStack*>();
    const int margin = m_window->width() - stack->geometry().right();
    m_window->resize(1200, 600);
    QTRY_COMPARE(m_window->width() - stack->geometry().right(), margin);
}

QTEST_MAIN(tst_ToastStack)
#include "tst_ToastStack.moc"
