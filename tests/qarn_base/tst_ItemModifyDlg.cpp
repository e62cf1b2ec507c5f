#include <qarn_base/ItemModifyDlg.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolTip>
#include <QtTest>

using qarn_base::ItemModifyDlg;

class tst_ItemModifyDlg : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup();

    void addsTheTrimmedName();
    void addsByReturn();
    void addsContinuously();
    void editsUnderItsId();
    void refuses_data();
    void refuses();
    void typingTakesTheReasonAway();
    void cancelAndEscapeReject();
    void limitsTheLength();
    void keepsALongerNameWhole();
    void namesAreSelected();

private:
    QLineEdit* name() const { return m_dialog->findChild<QLineEdit*>(QStringLiteral("name")); }
    QPushButton* button(const char* name) const
    {
        return m_dialog->findChild<QPushButton*>(QString::fromLatin1(name));
    }
    QString reason() const { return m_dialog->findChild<QLabel*>(QStringLiteral("reason"))->text(); }
    void open(ItemModifyDlg::ModifyType type, const QString& text, const QString& id);
    void type(const QString& text) const;

    std::unique_ptr<ItemModifyDlg> m_dialog;
    QStringList m_askedIds;
};

void tst_ItemModifyDlg::init()
{
    m_askedIds.clear();
    m_dialog = std::make_unique<ItemModifyDlg>([this](const QString& name, const QString& id) {
        m_askedIds.append(id);
        return name == QStringLiteral("Taken");
    });
}

void tst_ItemModifyDlg::cleanup()
{
    QToolTip::hideText();
    m_dialog.reset();
}

void tst_ItemModifyDlg::open(ItemModifyDlg::ModifyType type, const QString& text, const QString& id)
{
    m_dialog->setNameMaxLength(20);
    m_dialog->setModifyType(type, QStringLiteral("The Title"), text, id);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void tst_ItemModifyDlg::type(const QString& text) const
{
    name()->selectAll();
    QTest::keyClick(name(), Qt::Key_Delete);
    QTest::keyClicks(name(), text);
}

void tst_ItemModifyDlg::addsTheTrimmedName()
{
    open(ItemModifyDlg::AddItem, QStringLiteral("New Organization"), QString());
    QCOMPARE(m_dialog->findChild<QLabel*>(QStringLiteral("title"))->text(), QStringLiteral("The Title"));
    QSignalSpy added(m_dialog.get(), &ItemModifyDlg::signalAddItem);
    QSignalSpy edited(m_dialog.get(), &ItemModifyDlg::signalEditItem);
    type(QStringLiteral("  Lab 1  "));
    QTest::mouseClick(button("okBt"), Qt::LeftButton);
    QCOMPARE(added.count(), 1);
    QCOMPARE(added.at(0).at(0).toString(), QStringLiteral("Lab 1"));
    QCOMPARE(added.at(0).at(1).toBool(), false);
    QCOMPARE(edited.count(), 0);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    QVERIFY(!m_dialog->isVisible());
}

void tst_ItemModifyDlg::addsByReturn()
{
    open(ItemModifyDlg::AddItem, QStringLiteral("New Organization"), QString());
    QSignalSpy added(m_dialog.get(), &ItemModifyDlg::signalAddItem);
    QTest::keyClick(name(), Qt::Key_Return);
    QCOMPARE(added.count(), 1);
    QCOMPARE(added.at(0).at(1).toBool(), false);
}

void tst_ItemModifyDlg::addsContinuously()
{
    open(ItemModifyDlg::AddItem, QStringLiteral("One"), QString());
    connect(m_dialog.get(), &ItemModifyDlg::signalAddItem, m_dialog.get(),
            [this] { m_dialog->setItemName(QStringLiteral("Two")); });
    QSignalSpy added(m_dialog.get(), &ItemModifyDlg::signalAddItem);
    QTest::mouseClick(button("addContinuouslyBt"), Qt::LeftButton);
    QCOMPARE(added.at(0).at(0).toString(), QStringLiteral("One"));
    QCOMPARE(added.at(0).at(1).toBool(), true);
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(name()->text(), QStringLiteral("Two"));
    QCOMPARE(m_dialog->focusWidget(), name());
    QTest::mouseClick(button("addContinuouslyBt"), Qt::LeftButton);
    QCOMPARE(added.at(1).at(0).toString(), QStringLiteral("Two"));
}

void tst_ItemModifyDlg::editsUnderItsId()
{
    open(ItemModifyDlg::EditItem, QStringLiteral("Old"), QStringLiteral("{id}"));
    QVERIFY(!button("addContinuouslyBt")->isVisible());
    QSignalSpy added(m_dialog.get(), &ItemModifyDlg::signalAddItem);
    QSignalSpy edited(m_dialog.get(), &ItemModifyDlg::signalEditItem);
    type(QStringLiteral("New"));
    QTest::mouseClick(button("okBt"), Qt::LeftButton);
    QCOMPARE(edited.count(), 1);
    QCOMPARE(edited.at(0).at(0).toString(), QStringLiteral("{id}"));
    QCOMPARE(edited.at(0).at(1).toString(), QStringLiteral("New"));
    QCOMPARE(added.count(), 0);
    QCOMPARE(m_askedIds, QStringList{QStringLiteral("{id}")});
}

void tst_ItemModifyDlg::refuses_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("part");
    QTest::newRow("empty") << ""
                           << "okBt"
                           << "blank";
    QTest::newRow("blanks") << "   "
                            << "okBt"
                            << "blank";
    QTest::newRow("taken") << "Taken"
                           << "okBt"
                           << "Taken";
    QTest::newRow("taken but for blanks") << " Taken "
                                          << "okBt"
                                          << "Taken";
    QTest::newRow("blanks, continuously") << "   "
                                          << "addContinuouslyBt"
                                          << "blank";
    QTest::newRow("taken, continuously") << "Taken"
                                         << "addContinuouslyBt"
                                         << "Taken";
}

void tst_ItemModifyDlg::refuses()
{
    QFETCH(QString, typed);
    QFETCH(QString, button);
    QFETCH(QString, part);
    open(ItemModifyDlg::AddItem, QStringLiteral("x"), QString());
    QSignalSpy added(m_dialog.get(), &ItemModifyDlg::signalAddItem);
    type(typed);
    QTest::mouseClick(this->button(button.toLatin1().constData()), Qt::LeftButton);
    QCOMPARE(added.count(), 0);
    QVERIFY(m_dialog->isVisible());
    QVERIFY2(reason().contains(part), qPrintable(reason()));
    QVERIFY2(QToolTip::text().contains(part), qPrintable(QToolTip::text()));
    QCOMPARE(m_dialog->focusWidget(), name());
}

void tst_ItemModifyDlg::typingTakesTheReasonAway()
{
    open(ItemModifyDlg::AddItem, QStringLiteral("Taken"), QString());
    QTest::keyClick(name(), Qt::Key_Return);
    QVERIFY(!reason().isEmpty());
    QTest::keyClicks(name(), QStringLiteral("T"));
    QVERIFY(reason().isEmpty());
}

void tst_ItemModifyDlg::cancelAndEscapeReject()
{
    open(ItemModifyDlg::AddItem, QStringLiteral("x"), QString());
    QSignalSpy added(m_dialog.get(), &ItemModifyDlg::signalAddItem);
    QSignalSpy rejected(m_dialog.get(), &QDialog::rejected);
    QTest::mouseClick(button("cancelBt"), Qt::LeftButton);
    QCOMPARE(rejected.count(), 1);
    m_dialog->show();
    QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    QCOMPARE(rejected.count(), 2);
    QCOMPARE(added.count(), 0);
}

void tst_ItemModifyDlg::limitsTheLength()
{
    open(ItemModifyDlg::AddItem, QString(), QString());
    type(QString(25, QLatin1Char('a')));
    QCOMPARE(name()->text().length(), 20);
}

void tst_ItemModifyDlg::keepsALongerNameWhole()
{
    const QString longName(32, QLatin1Char('b'));
    open(ItemModifyDlg::EditItem, longName, QStringLiteral("{id}"));
    QSignalSpy edited(m_dialog.get(), &ItemModifyDlg::signalEditItem);
    QTest::keyClick(name(), Qt::Key_Return);
    QCOMPARE(edited.at(0).at(1).toString(), longName);
}

void tst_ItemModifyDlg::namesAreSelected()
{
    open(ItemModifyDlg::AddItem, QStringLiteral("New Organization"), QString());
    QCOMPARE(m_dialog->focusWidget(), name());
    QTest::keyClicks(name(), QStringLiteral("A"));
    QCOMPARE(name()->text(), QStringLiteral("A"));
}

QTEST_MAIN(tst_ItemModifyDlg)
#include "tst_ItemModifyDlg.moc"
