#include <qarn_base/SearchBox.h>

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest>

using qarn_base::SearchBox;

class tst_SearchBox : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_dialog.reset(); }

    void reportsWhatIsTyped();
    void tellsItsFocus();
    void returnAndArrowsSearchOn();
    void returnDoesNotReachTheDialog();
    void escapeClearsFirst();
    void cleanupTestCase();

private:
    std::unique_ptr<QDialog> m_dialog;
    SearchBox* m_box = nullptr;
    QLineEdit* m_edit = nullptr;
    QPushButton* m_okBt = nullptr;
};

void tst_SearchBox::init()
{
    m_dialog = std::make_unique<QDialog>();
    m_box = new SearchBox(m_dialog.get());
    m_okBt = new QPushButton(m_dialog.get());
    m_okBt->setDefault(true);
    auto* layout = new QVBoxLayout(m_dialog.get());
    layout->addWidget(m_box);
    layout->addWidget(m_okBt);
    m_edit = m_box->findChild<QLineEdit*>(QStringLiteral("searchLineEt"));
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    m_edit->setFocus();
}

void tst_SearchBox::reportsWhatIsTyped()
{
    QSignalSpy typed(m_box, &SearchBox::signalTextChanged);
    QTest::keyClicks(m_edit, QStringLiteral("ab"));
    QCOMPARE(typed.count(), 2);
    QCOMPARE(typed.at(1).at(0).toString(), QStringLiteral("ab"));
    QCOMPARE(m_box->text(), QStringLiteral("ab"));
}

void tst_SearchBox::tellsItsFocus()
{
    QVERIFY(m_box->searchLineEtHasFocus());
    m_okBt->setFocus();
    QVERIFY(!m_box->searchLineEtHasFocus());
    m_box->setFocus();
    QVERIFY(m_box->searchLineEtHasFocus());
}

void tst_SearchBox::returnAndArrowsSearchOn()
{
    QSignalSpy next(m_box, &SearchBox::signalSearchNext);
    QSignalSpy previous(m_box, &SearchBox::signalSearchPrevious);
    QTest::keyClick(m_edit, Qt::Key_Return);
    QTest::keyClick(m_edit, Qt::Key_Enter);
    QTest::keyClick(m_edit, Qt::Key_Down);
    QCOMPARE(next.count(), 3);
    QTest::keyClick(m_edit, Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClick(m_edit, Qt::Key_Up);
    QCOMPARE(previous.count(), 2);
}

void tst_SearchBox::returnDoesNotReachTheDialog()
{
    QSignalSpy pressed(m_okBt, &QPushButton::clicked);
    QTest::keyClick(m_edit, Qt::Key_Return);
    QCOMPARE(pressed.count(), 0);
}

void tst_SearchBox::escapeClearsFirst()
{
    QTest::keyClicks(m_edit, QStringLiteral("ab"));
    QTest::keyClick(m_edit, Qt::Key_Escape);
    QVERIFY(m_edit->text().isEmpty());
    QVERIFY(m_dialog->isVisible());
    QTest::keyClick(m_edit, Qt::Key_Escape);
    QVERIFY(!m_dialog->isVisible());
}

/// Qt fades the clear button of an edit and ends that only a moment after the edit has gone.
void tst_SearchBox::cleanupTestCase()
{
    QTest::qWait(250);
}

QTEST_MAIN(tst_SearchBox)
#include "tst_SearchBox.moc"
