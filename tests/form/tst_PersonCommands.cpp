#include "PageFixture.h"

#include <qarn_base/TreeItem.h>

#include <QMenu>

using namespace qarn_personMgr;
using qarn_data::PersonInfo;

/// The commands of the tool bar that add, delete and move persons and define their fields.
class tst_PersonCommands : public QObject
{
    Q_OBJECT
private slots:
    void init() { m_page = std::make_unique<PageFixture>(); }
    void cleanup()
    {
        const int pending = m_page->driver.pending();
        m_page.reset();
        QCOMPARE(pending, 0);
    }

    void asksForAnOrganizationToAddTo();
    void addsAPerson();
    void opensTheDeleteMenu();
    void asksForPersonsToDelete();
    void deletesCheckedPersons();
    void deletesNothingWithoutConfirmation_data();
    void deletesNothingWithoutConfirmation();
    void deletesTheCheckedOnThisPageOnly();
    void deletesAllThatWereFound();
    void findsNobodyToDelete();
    void asksForPersonsToMove();
    void movesPersons_data();
    void movesPersons();
    void movesNobodyWhenCancelled();
    void definesCustomFields();
    void survivesItsEndInACommand();

private:
    /// Opens the delete menu and chooses an entry with the keyboard.
    void chooseDelete(int entry);
    void answer(const char* button);
    static QAbstractButton* button(QWidget* window, const char* name)
    {
        return window->findChild<QAbstractButton*>(QLatin1String(name));
    }
    QStringList storedIds() const
    {
        QStringList ids;
        for (const PersonInfo& person : m_page->data().getAllPersons(false))
            ids.append(person.id);
        return ids;
    }

    std::unique_ptr<PageFixture> m_page;
    QString m_question;
};

void tst_PersonCommands::chooseDelete(int entry)
{
    m_page->driver.expect([entry](QWidget* menu) {
        QVERIFY(qobject_cast<QMenu*>(menu) != nullptr);
        for (int i = 0; i <= entry; ++i)
            QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    });
}

void tst_PersonCommands::answer(const char* name)
{
    m_page->driver.expect([this, name](QWidget* window) {
        m_question = window->findChild<QLabel*>("text")->text();
        QTest::mouseClick(button(window, name), Qt::LeftButton);
    });
}

void tst_PersonCommands::asksForAnOrganizationToAddTo()
{
    m_page->open();
    m_page->selectOrganization("east");
    m_page->click("searchBt");
    m_page->click("addPersonBt");
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Please select which organization to add person first"));
    QVERIFY(m_page->form->findChildren<QDialog*>().isEmpty());
}

void tst_PersonCommands::addsAPerson()
{
    m_page->addPersons(50, "east");
    m_page->open();
    m_page->selectOrganization("east");
    m_page->type("name", "P1");
    m_page->driver.expect([this](QWidget* window) {
        QCOMPARE(window->parentWidget(), m_page->form.data());
        QCOMPARE(window->findChild<QLabel*>("title")->text(), QStringLiteral("Add Person"));
        QTest::keyClicks(window->findChild<QLineEdit*>("name"), "Grace");
        QTest::keyClicks(window->findChild<QLineEdit*>("serailNum"), "abc 7");
        QTest::mouseClick(button(window, "addBt"), Qt::LeftButton);
    });
    m_page->click("addPersonBt");
    QCOMPARE(m_page->rows().count(), 1);
    QCOMPARE(m_page->orderNum(0), QStringLiteral("51"));
    QCOMPARE(m_page->label(0, "name"), QStringLiteral("Grace"));
    QCOMPARE(m_page->label(0, "serialNum"), QStringLiteral("ABC 7"));
    QCOMPARE(m_page->label(0, "organization"), QStringLiteral("East"));
    QCOMPARE(m_page->child<QLineEdit>("name")->text(), QString());
    QVERIFY(m_page->form->findChildren<QDialog*>().isEmpty());
}

void tst_PersonCommands::opensTheDeleteMenu()
{
    m_page->open();
    auto* bt = m_page->child<QAbstractButton>("deletePersonsBt");
    const int firstWidth = bt->width();
    QPointer<QMenu> menu;
    m_page->driver.expect([&](QWidget* window) {
        menu = qobject_cast<QMenu*>(window);
        QVERIFY(menu != nullptr);
        QCOMPARE(menu->parentWidget(), m_page->form.data());
        QCOMPARE(menu->pos(), bt->mapToGlobal(QPoint(0, bt->height())));
        QCOMPARE(menu->actions().count(), 2);
        QCOMPARE(menu->actions().at(0)->text(), QStringLiteral("Delete Checked Persons"));
        QCOMPARE(menu->actions().at(1)->text(), QStringLiteral("Delete All Persons"));
        QCOMPARE(menu->minimumWidth(), firstWidth);
        QTest::keyClick(menu, Qt::Key_Escape);
    });
    m_page->click("deletePersonsBt");
    QVERIFY(menu != nullptr);

    bt->setMinimumWidth(300);
    QTRY_VERIFY(bt->width() >= 300);
    bool openedAgain = false;
    QTimer::singleShot(0, menu, [&] {
        openedAgain = menu->isVisible();
        QCOMPARE(menu->minimumWidth(), firstWidth);
        menu->close();
    });
    m_page->click("deletePersonsBt");
    QVERIFY(openedAgain);
}

void tst_PersonCommands::asksForPersonsToDelete()
{
    m_page->addPersons(3, "east");
    m_page->open();
    chooseDelete(0);
    m_page->click("deletePersonsBt");
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Please select persons to delete"));
    QCOMPARE(storedIds().count(), 3);
}

void tst_PersonCommands::deletesCheckedPersons()
{
    m_page->addPersons(4, "east");
    m_page->open();
    m_page->checkRow(1);
    m_page->checkRow(3);
    chooseDelete(0);
    answer("okBt");
    m_page->click("deletePersonsBt");
    QCOMPARE(m_question, QStringLiteral("Do you want to delete selected persons?"));
    QCOMPARE(storedIds(), QStringList({"P1", "P3"}));
    QCOMPARE(m_page->ids(), QStringList({"P1", "P3"}));
    QCOMPARE(m_page->child<QCheckBox>("selAll")->checkState(), Qt::Unchecked);
}

void tst_PersonCommands::deletesNothingWithoutConfirmation_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QString>("button");
    QTest::newRow("checked, cancel") << 0 << "cancelBt";
    QTest::newRow("checked, close") << 0 << "closeBt";
    QTest::newRow("all, cancel") << 1 << "cancelBt";
    QTest::newRow("all, close") << 1 << "closeBt";
}

void tst_PersonCommands::deletesNothingWithoutConfirmation()
{
    QFETCH(int, entry);
    QFETCH(QString, button);
    const QByteArray name = button.toLatin1();
    m_page->addPersons(3, "east");
    m_page->open();
    m_page->check("selAll");
    chooseDelete(entry);
    answer(name.constData());
    m_page->click("deletePersonsBt");
    QCOMPARE(storedIds().count(), 3);
    QCOMPARE(m_page->table()->getCheckedPersonIds().count(), 3);
}

void tst_PersonCommands::deletesTheCheckedOnThisPageOnly()
{
    m_page->addPersons(60, "east");
    m_page->open();
    m_page->check("selAll");
    m_page->click("nextBt");
    chooseDelete(0);
    m_page->click("deletePersonsBt");
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Please select persons to delete"));
    QCOMPARE(storedIds().count(), 60);
}

void tst_PersonCommands::deletesAllThatWereFound()
{
    m_page->addPersons(60, "east", "E");
    m_page->addPersons(60, "west", "W");
    m_page->open();
    m_page->type("name", "W");
    m_page->click("searchBt");
    QCOMPARE(m_page->rows().count(), 50);
    chooseDelete(1);
    answer("okBt");
    m_page->click("deletePersonsBt");
    QCOMPARE(m_question, QStringLiteral("Do you want to delete all the persons in the table?"));
    QCOMPARE(storedIds().count(), 60);
    QVERIFY(storedIds().filter("W").isEmpty());
    QCOMPARE(m_page->rows().count(), 0);
}

void tst_PersonCommands::findsNobodyToDelete()
{
    m_page->open();
    chooseDelete(1);
    m_page->click("deletePersonsBt");
    QTRY_COMPARE(m_page->alertTexts(), QStringList("There is no person to delete in the table"));
}

void tst_PersonCommands::asksForPersonsToMove()
{
    m_page->addPersons(3, "east");
    m_page->open();
    m_page->click("movePersonsBt");
    QTRY_COMPARE(m_page->alertTexts(), QStringList("Please select persons to move"));
    QVERIFY(m_page->form->findChildren<QDialog*>().isEmpty());
}

void tst_PersonCommands::movesPersons_data()
{
    QTest::addColumn<bool>("removeFromOld");
    QTest::newRow("leave the old organization") << true;
    QTest::newRow("stay in the old organization") << false;
}

void tst_PersonCommands::movesPersons()
{
    QFETCH(bool, removeFromOld);
    m_page->addPersons(3, "east");
    m_page->open();
    m_page->selectOrganization("west");
    QCOMPARE(m_page->rows().count(), 0);
    m_page->click("searchBt");
    m_page->checkRow(0);
    m_page->checkRow(2);
    m_page->driver.expect([removeFromOld](QWidget* window) {
        auto* tree = window->findChild<qarn_base::PersonTree*>("treeWidget");
        tree->setCurSelItem(tree->getOrganizationItem("west"));
        if (!removeFromOld)
            window->findChild<QCheckBox*>("retainOld")->click();
        QTest::mouseClick(button(window, "okBt"), Qt::LeftButton);
    });
    m_page->click("movePersonsBt");
    QCOMPARE(m_page->data().getPersons({"west"}, false).count(), 2);
    QCOMPARE(m_page->data().getPersons({"east"}, false).count(), removeFromOld ? 1 : 3);
}

void tst_PersonCommands::movesNobodyWhenCancelled()
{
    m_page->addPersons(3, "east");
    m_page->open();
    m_page->check("selAll");
    m_page->driver.expect([](QWidget* window) {
        auto* tree = window->findChild<qarn_base::PersonTree*>("treeWidget");
        tree->setCurSelItem(tree->getOrganizationItem("west"));
        QTest::mouseClick(button(window, "cancelBt"), Qt::LeftButton);
    });
    m_page->click("movePersonsBt");
    QCOMPARE(m_page->data().getPersons({"east"}, false).count(), 3);
    QVERIFY(m_page->form->findChildren<QDialog*>().isEmpty());
}

void tst_PersonCommands::definesCustomFields()
{
    m_page->open();
    QString className;
    m_page->driver.expect([&](QWidget* window) {
        className = QString::fromLatin1(window->metaObject()->className());
        QCOMPARE(window->parentWidget(), m_page->form.data());
        QTest::keyClick(window, Qt::Key_Escape);
    });
    m_page->click("setCustomFieldsBt");
    QCOMPARE(className, QStringLiteral("qarn_personMgr::CustomFieldsModifyDlg"));
}

/// The client may quit while a dialog of the page is open.
void tst_PersonCommands::survivesItsEndInACommand()
{
    for (const char* command : {"addOrganizationBt", "addPersonBt", "movePersonsBt", "setCustomFieldsBt"}) {
        PageFixture::data().deletePersons({"P1"});
        m_page->addPersons(1, "east");
        m_page->open();
        m_page->selectOrganization("east");
        m_page->check("selAll");
        m_page->driver.expect([this](QWidget*) { delete m_page->form.data(); });
        // Not by a mouse event: the button would be gone under it.
        QMetaObject::invokeMethod(m_page->child<QAbstractButton>(command), "clicked", Qt::QueuedConnection);
        QTRY_VERIFY(m_page->form.isNull());
        QCOMPARE(m_page->driver.pending(), 0);
    }
}

QTEST_MAIN(tst_PersonCommands)
#include "tst_PersonCommands.moc"
