#include "DialogParts.h"
#include "TransferFiles.h"

#include "transfer/ImportPersonsDlg.h"

#include <qarn_base/SelDirLineEt.h>

#include <QCheckBox>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QToolTip>

using namespace dialogParts;
using qarn_personMgr::ImportPersonsDlg;

class tst_ImportPersonsDlg : public QObject
{
    Q_OBJECT
private slots:
    void startsWithAPersonFile();
    void holdsItsTexts();
    void keepsBothPathsApart();
    void asksForTheRightThing();
    void emptiesThePathOnCancel_data();
    void emptiesThePathOnCancel();
    void survivesItsEndWhileAPathIsChosen();
    void choosesAPathByKeyboard();
    void switchesTheModeByKeyboard();
    void ordersTheRuleByTheBoxes();
    void refusesWithoutPath_data();
    void refusesWithoutPath();
    void refusesWithoutRule();
    void acceptsAndRejects();

private:
    QTemporaryDir m_directory;
};

void tst_ImportPersonsDlg::startsWithAPersonFile()
{
    const ImportPersonsDlg dialog(nullptr);
    QCOMPARE(dialog.objectName(), QString("qarn_personMgr__ImportPersonsDlg"));
    QVERIFY(!dialog.isFaceMode());
    QCOMPARE(part<QStackedWidget>(dialog, "stackedWidget")->currentIndex(), 0);
    QVERIFY(part<QRadioButton>(dialog, "personInfoChecked")->isChecked());
    QVERIFY(dialog.getPath().isEmpty());
    QVERIFY(part<QLineEdit>(dialog, "filePath")->isReadOnly());
    QVERIFY(part<QLineEdit>(dialog, "namingRules")->isReadOnly());
    QCOMPARE(dialog.getNamingRule(), (QList<int>{0, 1, 2}));
    for (const char* box : {"serialNumChecked", "personNameChecked", "sexChecked"})
        QVERIFY(part<QCheckBox>(dialog, box)->isChecked());
    QVERIFY(part<QPushButton>(dialog, "importBt")->property("common_bt_style1").toBool());
    QVERIFY(part<QPushButton>(dialog, "cancelBt")->property("common_bt_style2").toBool());
}

void tst_ImportPersonsDlg::holdsItsTexts()
{
    const ImportPersonsDlg dialog(nullptr);
    QCOMPARE(part<QLabel>(dialog, "title")->text(), QString("Import persons"));
    QCOMPARE(part<QLabel>(dialog, "label")->text(), QString("Import"));
    QCOMPARE(part<QLabel>(dialog, "label_2")->text(), QString("Import File"));
    QCOMPARE(part<QLabel>(dialog, "label_3")->text(), QString("Naming Rules"));
    QCOMPARE(part<QLabel>(dialog, "label_5")->text(),
             QString("1.Single picture less than 200K\n2.Format only supports jpg\n3.sex:Male,Female"));
    QCOMPARE(part<QLabel>(dialog, "downloadTemplate")->text(), QString("Download personnel import template"));
    QCOMPARE(text(dialog, "namingRules"), QString("Serial Num_Person Name_Sex"));
    const QList<QPair<const char*, const char*>> buttons{{"personInfoChecked", "Person Info"},
                                                         {"personFaceChecked", "Person Face"},
                                                         {"serialNumChecked", "SerialNum"},
                                                         {"personNameChecked", "PersonName"},
                                                         {"sexChecked", "Sex"},
                                                         {"importBt", "Import"},
                                                         {"cancelBt", "Cancel"}};
    for (const auto& button : buttons)
        QCOMPARE(part<QAbstractButton>(dialog, button.first)->text(), QString(button.second));
}

void tst_ImportPersonsDlg::keepsBothPathsApart()
{
    const QString file = transferFiles::write(m_directory.filePath("persons.csv"), "x");
    ImportPersonsDlg dialog(nullptr);
    dialog.show();
    ModalDriver driver;
    driver.expect(answer(file));
    click(dialog, "filePath");
    QCOMPARE(dialog.getPath(), file);
    click(dialog, "personFaceChecked");
    QVERIFY(dialog.isFaceMode());
    QCOMPARE(part<QStackedWidget>(dialog, "stackedWidget")->currentIndex(), 1);
    QVERIFY(dialog.getPath().isEmpty());
    driver.expect(answer(m_directory.path()));
    click(dialog, "filePath");
    QCOMPARE(dialog.getPath(), m_directory.path());
    click(dialog, "personInfoChecked");
    QCOMPARE(part<QStackedWidget>(dialog, "stackedWidget")->currentIndex(), 0);
    QCOMPARE(dialog.getPath(), file);
    click(dialog, "personFaceChecked");
    QCOMPARE(dialog.getPath(), m_directory.path());
    QCOMPARE(driver.pending(), 0);
}

void tst_ImportPersonsDlg::asksForTheRightThing()
{
    ImportPersonsDlg dialog(nullptr);
    dialog.show();
    ModalDriver driver;
    QString caption;
    driver.expect(answer(QString(), &caption));
    click(dialog, "filePath");
    QCOMPARE(caption, QString("Select Person info file"));
    click(dialog, "personFaceChecked");
    driver.expect(answer(QString(), &caption));
    click(dialog, "filePath");
    QCOMPARE(caption, QString("Select Person faces dir"));
}

void tst_ImportPersonsDlg::emptiesThePathOnCancel_data()
{
    QTest::addColumn<bool>("faceMode");
    QTest::newRow("person file") << false;
    QTest::newRow("face directory") << true;
}

void tst_ImportPersonsDlg::emptiesThePathOnCancel()
{
    QFETCH(bool, faceMode);
    const QString file = transferFiles::write(m_directory.filePath("persons.csv"), "x");
    ImportPersonsDlg dialog(nullptr);
    dialog.show();
    ModalDriver driver;
    click(dialog, faceMode ? "personFaceChecked" : "personInfoChecked");
    driver.expect(answer(faceMode ? m_directory.path() : file));
    click(dialog, "filePath");
    QVERIFY(!dialog.getPath().isEmpty());
    driver.expect(answer(QString()));
    click(dialog, "filePath");
    QVERIFY(dialog.getPath().isEmpty());
    click(dialog, faceMode ? "personInfoChecked" : "personFaceChecked");
    click(dialog, faceMode ? "personFaceChecked" : "personInfoChecked");
    QVERIFY2(dialog.getPath().isEmpty(), "the remembered path is gone too");
}

/// The client may quit while the chooser is open.
void tst_ImportPersonsDlg::survivesItsEndWhileAPathIsChosen()
{
    const QPointer<ImportPersonsDlg> dialog = new ImportPersonsDlg(nullptr);
    ModalDriver driver;
    driver.expect([dialog](QWidget*) { delete dialog.data(); });
    QMetaObject::invokeMethod(part<qarn_base::SelDirLineEt>(*dialog, "filePath"), "signalClicked",
                              Qt::QueuedConnection);
    QTRY_VERIFY(dialog.isNull());
    QCOMPARE(driver.pending(), 0);
}

void tst_ImportPersonsDlg::choosesAPathByKeyboard()
{
    const QString file = transferFiles::write(m_directory.filePath("persons.csv"), "x");
    ImportPersonsDlg dialog(nullptr);
    dialog.show();
    ModalDriver driver;
    driver.expect(answer(file));
    QTest::keyClick(part<QWidget>(dialog, "filePath"), Qt::Key_Space);
    QCOMPARE(dialog.getPath(), file);
}

void tst_ImportPersonsDlg::switchesTheModeByKeyboard()
{
    ImportPersonsDlg dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowActive(&dialog));
    auto* info = part<QRadioButton>(dialog, "personInfoChecked");
    info->setFocus();
    QTest::keyClick(info, Qt::Key_Right);
    QVERIFY(dialog.isFaceMode());
    QCOMPARE(part<QStackedWidget>(dialog, "stackedWidget")->currentIndex(), 1);
}

void tst_ImportPersonsDlg::ordersTheRuleByTheBoxes()
{
    const ImportPersonsDlg dialog(nullptr);
    click(dialog, "personNameChecked");
    QCOMPARE(text(dialog, "namingRules"), QString("Serial Num_Sex"));
    QCOMPARE(dialog.getNamingRule(), (QList<int>{0, 2}));
    click(dialog, "serialNumChecked");
    click(dialog, "sexChecked");
    QCOMPARE(text(dialog, "namingRules"), QString());
    QCOMPARE(dialog.getNamingRule(), QList<int>());
    click(dialog, "sexChecked");
    click(dialog, "serialNumChecked");
    QCOMPARE(text(dialog, "namingRules"), QString("Sex_Serial Num"));
    QCOMPARE(dialog.getNamingRule(), (QList<int>{2, 0}));
}

void tst_ImportPersonsDlg::refusesWithoutPath_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<QString>("toolTip");
    QTest::newRow("person file") << "personInfoChecked"
                                 << "Please select person info file";
    QTest::newRow("face directory") << "personFaceChecked"
                                    << "Please select person faces dir";
}

void tst_ImportPersonsDlg::refusesWithoutPath()
{
    QFETCH(QString, mode);
    ImportPersonsDlg dialog(nullptr);
    dialog.show();
    click(dialog, qPrintable(mode));
    click(dialog, "importBt");
    QTEST(QToolTip::text(), "toolTip");
    QVERIFY(dialog.isVisible());
    QToolTip::hideText();
}

void tst_ImportPersonsDlg::refusesWithoutRule()
{
    ImportPersonsDlg dialog(nullptr);
    dialog.show();
    ModalDriver driver;
    click(dialog, "personFaceChecked");
    driver.expect(answer(m_directory.path()));
    click(dialog, "filePath");
    for (const char* box : {"serialNumChecked", "personNameChecked", "sexChecked"})
        click(dialog, box);
    click(dialog, "importBt");
    QCOMPARE(QToolTip::text(), QString("Please set naming rules"));
    QVERIFY(dialog.isVisible());
    click(dialog, "sexChecked");
    click(dialog, "importBt");
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

void tst_ImportPersonsDlg::acceptsAndRejects()
{
    const QString file = transferFiles::write(m_directory.filePath("persons.csv"), "x");
    ImportPersonsDlg dialog(nullptr);
    ModalDriver driver;
    driver.expect([](QWidget* window) { click(*window, "cancelBt"); });
    QCOMPARE(dialog.exec(), int(QDialog::Rejected));
    driver.expect([&](QWidget* window) {
        driver.expect(answer(file));
        click(*window, "filePath");
        click(*window, "importBt");
    });
    ImportPersonsDlg second(nullptr);
    QCOMPARE(second.exec(), int(QDialog::Accepted));
    QCOMPARE(second.getPath(), file);
    QCOMPARE(driver.pending(), 0);
}

QTEST_MAIN(tst_ImportPersonsDlg)
#include "tst_ImportPersonsDlg.moc"
