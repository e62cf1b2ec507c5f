#include "DialogParts.h"
#include "TransferFiles.h"

#include "transfer/ImportPersonsDlg.h"

#include <qarn_worker/SystemAssistant.h>

#include <QLabel>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QToolTip>

using namespace dialogParts;
using qarn_personMgr::ImportPersonsDlg;
using qarn_worker::SystemAssistant;

/// The link of the import dialog that writes an empty person file.
class tst_ImportTemplate : public QObject
{
    Q_OBJECT
private slots:
    void writesTheTemplate();
    void tellsATemplateThatCannotBeWritten();
    void writesNothingOnCancel();
    void downloadsByKeyboard_data();
    void downloadsByKeyboard();

private:
    QTemporaryDir m_directory;
};

void tst_ImportTemplate::writesTheTemplate()
{
    const QString file = transferFiles::write(m_directory.filePath("template.csv"), QByteArray(5000, 'x'));
    ImportPersonsDlg dialog(nullptr);
    dialog.show();
    QSignalSpy alerts(&SystemAssistant::instance(), &SystemAssistant::signalMessageAlert);
    ModalDriver driver;
    QString caption;
    driver.expect(answer(file, &caption));
    driver.expect([](QWidget* question) { // the file is there already
        auto* box = qobject_cast<QMessageBox*>(question);
        QVERIFY(box != nullptr);
        box->button(QMessageBox::Yes)->click();
    });
    click(dialog, "downloadTemplate");
    QCOMPARE(caption, QString("Download Person import template"));
    QCOMPARE(transferFiles::read(file), transferFiles::read(TRANSFER_TEST_DATA "/template.csv"));
    QTRY_COMPARE(alerts.count(), 1);
    QCOMPARE(alerts[0], (QVariantList{"Success", "Download import person template finished"}));
    QVERIFY2(dialog.isVisible() && dialog.getPath().isEmpty(), "the dialog stays as it was");
}

void tst_ImportTemplate::tellsATemplateThatCannotBeWritten()
{
    ImportPersonsDlg dialog(nullptr);
    dialog.show();
    QSignalSpy alerts(&SystemAssistant::instance(), &SystemAssistant::signalMessageAlert);
    ModalDriver driver;
    driver.expect(answer("/proc/template.csv"));
    click(dialog, "downloadTemplate");
    QTRY_COMPARE(alerts.count(), 1);
    QCOMPARE(alerts[0], (QVariantList{"Error", "Download person import template failed"}));
}

void tst_ImportTemplate::writesNothingOnCancel()
{
    ImportPersonsDlg dialog(nullptr);
    dialog.show();
    QSignalSpy alerts(&SystemAssistant::instance(), &SystemAssistant::signalMessageAlert);
    ModalDriver driver;
    driver.expect(answer(QString()));
    click(dialog, "downloadTemplate");
    QCOMPARE(driver.pending(), 0);
    QCoreApplication::processEvents();
    QCOMPARE(alerts.count(), 0);
}

void tst_ImportTemplate::downloadsByKeyboard_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Space") << int(Qt::Key_Space);
}

void tst_ImportTemplate::downloadsByKeyboard()
{
    QFETCH(int, key);
    const QString file = m_directory.filePath("by_keyboard.csv");
    QFile::remove(file);
    ImportPersonsDlg dialog(nullptr);
    dialog.show();
    ModalDriver driver;
    driver.expect(answer(file));
    auto* link = part<QLabel>(dialog, "downloadTemplate");
    QVERIFY(link->focusPolicy() & Qt::TabFocus);
    QTest::keyClick(link, Qt::Key(key));
    QVERIFY(QFile::exists(file));
    QVERIFY2(!QToolTip::isVisible(), "the key does not press the import button too");
}

QTEST_MAIN(tst_ImportTemplate)
#include "tst_ImportTemplate.moc"
