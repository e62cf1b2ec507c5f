#include "FileDialogSuffix.h"

#include <FileChooser.h>
#include <ModalDriver.h>
#include <XCOMMON/XFileDialog.h>

#include <QAbstractItemView>
#include <QDialogButtonBox>
#include <QFile>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTemporaryDir>

using XCOMMON::XFileDialog;

namespace
{

const QString csvFilter = QStringLiteral("CSV(*.csv)");

void press(QWidget* dialog, QDialogButtonBox::StandardButton which)
{
    QPushButton* button = dialog->findChild<QDialogButtonBox*>()->button(which);
    QVERIFY(button != nullptr);
    QTest::mouseClick(button, Qt::LeftButton);
}

void answer(QWidget* window, QMessageBox::StandardButton which)
{
    auto* question = qobject_cast<QMessageBox*>(window);
    QVERIFY(question != nullptr);
    QTest::mouseClick(question->button(which), Qt::LeftButton);
}

void touch(const QString& path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

} // namespace

class tst_XFileDialog : public QObject
{
    Q_OBJECT
private slots:
    void addsTheSuffixOfTheFilter_data();
    void addsTheSuffixOfTheFilter();
    void savesUnderATypedName();
    void asksBeforeItReplaces();
    void doesNotTakeTheSelectedFileForTheTypedOne();
    void replacesAFileOfAnotherDirectoryWhereItLies();
    void opensAFile();
    void picksADirectory();
    void givesNothingWhenCancelled_data();
    void givesNothingWhenCancelled();
    void startsWithAFileName();
    void startsAtHomeWhereTheDirectoryIsMissing();
    void givesTheChosenFilter();
    void givesNothingWhenItsParentGoes();

private:
    QString path(const QString& name) const { return m_directory.filePath(name); }

    QTemporaryDir m_directory;
};

void tst_XFileDialog::addsTheSuffixOfTheFilter_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("expected");
    QTest::newRow("missing") << "persons"
                             << "CSV(*.csv)"
                             << "persons.csv";
    QTest::newRow("there") << "persons.csv"
                           << "CSV(*.csv)"
                           << "persons.csv";
    QTest::newRow("in capitals") << "PERSONS.CSV"
                                 << "CSV(*.csv)"
                                 << "PERSONS.CSV";
    QTest::newRow("another one") << "persons.txt"
                                 << "CSV(*.csv)"
                                 << "persons.txt.csv";
    QTest::newRow("a dot in the name") << "persons 2024.11"
                                       << "CSV (*.csv)"
                                       << "persons 2024.11.csv";
    QTest::newRow("first of several") << "face"
                                      << "Images (*.jpg *.jpeg)"
                                      << "face.jpg";
    QTest::newRow("second of several") << "face.jpeg"
                                       << "Images (*.jpg *.jpeg)"
                                       << "face.jpeg";
    QTest::newRow("separated by semicolons") << "face"
                                             << "Images(*.jpg;*.png)"
                                             << "face.jpg";
    QTest::newRow("all files") << "face"
                               << "All files (*)"
                               << "face";
    QTest::newRow("all files beside others") << "face"
                                             << "Files (*.csv *)"
                                             << "face";
    QTest::newRow("pattern without words") << "face"
                                           << "*.jpg"
                                           << "face.jpg";
    QTest::newRow("a bracket in the words") << "a"
                                            << "Table (new) (*.csv)"
                                            << "a.csv";
    QTest::newRow("suffix of two parts") << "a"
                                         << "Archive (*.tar.gz)"
                                         << "a.tar.gz";
    QTest::newRow("no suffix in the pattern") << "a"
                                              << "Data (data*)"
                                              << "a";
    QTest::newRow("no filter") << "a"
                               << ""
                               << "a";
    QTest::newRow("no name") << ""
                             << "CSV(*.csv)"
                             << "";
}

void tst_XFileDialog::addsTheSuffixOfTheFilter()
{
    QFETCH(QString, name);
    QFETCH(QString, filter);
    QTEST(XCOMMON::withFilterSuffix(name, filter), "expected");
}

void tst_XFileDialog::savesUnderATypedName()
{
    ModalDriver driver;
    driver.expect([](QWidget* dialog) {
        QCOMPARE(dialog->windowTitle(), QStringLiteral("Export Persons"));
        typePath(dialog, QStringLiteral("all persons.v2"));
        press(dialog, QDialogButtonBox::Save);
    });
    const QString chosen = XFileDialog::getSaveFileName(nullptr, QStringLiteral("Export Persons"),
                                                        m_directory.path(), csvFilter);
    QCOMPARE(chosen, path(QStringLiteral("all persons.v2.csv")));
    QCOMPARE(driver.pending(), 0);
}

void tst_XFileDialog::asksBeforeItReplaces()
{
    touch(path(QStringLiteral("taken.csv")));
    ModalDriver driver;
    driver.expect([](QWidget* dialog) {
        typePath(dialog, QStringLiteral("taken"));
        press(dialog, QDialogButtonBox::Save);
    });
    driver.expect([](QWidget* question) { answer(question, QMessageBox::Yes); });
    QCOMPARE(XFileDialog::getSaveFileName(nullptr, QString(), m_directory.path(), csvFilter),
             path(QStringLiteral("taken.csv")));
    QCOMPARE(driver.pending(), 0);

    driver.expect([&driver](QWidget* dialog) {
        driver.expect([](QWidget* question) { answer(question, QMessageBox::No); });
        typePath(dialog, QStringLiteral("taken"));
        press(dialog, QDialogButtonBox::Save);
        QVERIFY(dialog->isVisible()); // another name may be typed
        typePath(dialog, QStringLiteral("free"));
        press(dialog, QDialogButtonBox::Save);
    });
    QCOMPARE(XFileDialog::getSaveFileName(nullptr, QString(), m_directory.path(), csvFilter),
             path(QStringLiteral("free.csv")));
    QCOMPARE(driver.pending(), 0);
}

void tst_XFileDialog::doesNotTakeTheSelectedFileForTheTypedOne()
{
    touch(path(QStringLiteral("old.tar.csv")));
    ModalDriver driver;
    driver.expect([this](QWidget* dialog) {
        qobject_cast<QFileDialog*>(dialog)->selectFile(path(QStringLiteral("old.tar.csv")));
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QStringLiteral("old.tar"));
        press(dialog, QDialogButtonBox::Save);
    });
    QCOMPARE(XFileDialog::getSaveFileName(nullptr, QString(), m_directory.path(),
                                          QStringLiteral("Zip (*.zip);;CSV (*.csv)")),
             path(QStringLiteral("old.tar.zip")));
    QCOMPARE(driver.pending(), 0);
}

void tst_XFileDialog::replacesAFileOfAnotherDirectoryWhereItLies()
{
    QTemporaryDir elsewhere;
    const QString existing = elsewhere.filePath(QStringLiteral("persons.csv"));
    QFile file(existing);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    ModalDriver driver;
    driver.expect([&existing](QWidget* dialog) {
        typePath(dialog, existing);
        press(dialog, QDialogButtonBox::Save);
    });
    driver.expect([](QWidget* question) {
        QTest::mouseClick(qobject_cast<QMessageBox*>(question)->button(QMessageBox::Yes), Qt::LeftButton);
    });
    QCOMPARE(XFileDialog::getSaveFileName(nullptr, QString(), m_directory.path(), csvFilter), existing);
    QCOMPARE(driver.pending(), 0);
}

void tst_XFileDialog::opensAFile()
{
    touch(path(QStringLiteral("face.jpg")));
    ModalDriver driver;
    driver.expect([](QWidget* dialog) {
        typePath(dialog, QStringLiteral("face.jpg"));
        QTest::keyClick(dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")), Qt::Key_Return);
    });
    QCOMPARE(XFileDialog::getOpenFileName(nullptr, QString(), m_directory.path(),
                                          QStringLiteral("Images (*.jpg)")),
             path(QStringLiteral("face.jpg")));
    QCOMPARE(driver.pending(), 0);
}

void tst_XFileDialog::picksADirectory()
{
    QVERIFY(QDir(m_directory.path()).mkdir(QStringLiteral("faces")));
    ModalDriver driver;
    driver.expect([](QWidget* dialog) {
        typePath(dialog, QStringLiteral("faces"));
        press(dialog, QDialogButtonBox::Open);
    });
    const QString chosen = XFileDialog::getExistingDirectory(
        nullptr, QString(), m_directory.path(), QFileDialog::ShowDirsOnly | QFileDialog::DontResolveSymlinks);
    QCOMPARE(chosen, path(QStringLiteral("faces")));
    QCOMPARE(driver.pending(), 0);
}

void tst_XFileDialog::givesNothingWhenCancelled_data()
{
    QTest::addColumn<int>("which");
    QTest::newRow("save") << 0;
    QTest::newRow("open") << 1;
    QTest::newRow("directory") << 2;
}

void tst_XFileDialog::givesNothingWhenCancelled()
{
    QFETCH(int, which);
    ModalDriver driver;
    driver.expect([](QWidget* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
    const QString start = m_directory.path();
    const QString chosen = which == 0   ? XFileDialog::getSaveFileName(nullptr, QString(), start, csvFilter)
                           : which == 1 ? XFileDialog::getOpenFileName(nullptr, QString(), start, csvFilter)
                                        : XFileDialog::getExistingDirectory(nullptr, QString(), start);
    QVERIFY(chosen.isEmpty());
    QCOMPARE(driver.pending(), 0);
}

void tst_XFileDialog::startsWithAFileName()
{
    ModalDriver driver;
    driver.expect([](QWidget* dialog) { press(dialog, QDialogButtonBox::Save); });
    QCOMPARE(
        XFileDialog::getSaveFileName(nullptr, QString(), path(QStringLiteral("template.csv")), csvFilter),
        path(QStringLiteral("template.csv")));
    QCOMPARE(driver.pending(), 0);
}

void tst_XFileDialog::startsAtHomeWhereTheDirectoryIsMissing()
{
    ModalDriver driver;
    driver.expect([](QWidget* dialog) {
        QCOMPARE(qobject_cast<QFileDialog*>(dialog)->directory(), QDir::home());
        QVERIFY(dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text().isEmpty());
        press(dialog, QDialogButtonBox::Cancel);
    });
    XFileDialog::getOpenFileName(nullptr, QString(), path(QStringLiteral("Desktop")), csvFilter);
    QCOMPARE(driver.pending(), 0);
}

void tst_XFileDialog::givesTheChosenFilter()
{
    ModalDriver driver;
    driver.expect([](QWidget* dialog) {
        typePath(dialog, QStringLiteral("list"));
        press(dialog, QDialogButtonBox::Save);
    });
    QString filter = QStringLiteral("Text (*.txt)");
    QCOMPARE(XFileDialog::getSaveFileName(nullptr, QString(), m_directory.path(),
                                          QStringLiteral("CSV(*.csv);;Text (*.txt)"), &filter),
             path(QStringLiteral("list.txt")));
    QCOMPARE(filter, QStringLiteral("Text (*.txt)"));
}

/// The client may quit while the dialog is open.
void tst_XFileDialog::givesNothingWhenItsParentGoes()
{
    ModalDriver modal;
    const QPointer<QWidget> parent = new QWidget;
    modal.expect([parent](QWidget*) { delete parent.data(); });
    QCOMPARE(XFileDialog::getOpenFileName(parent, "Open", m_directory.path(), csvFilter), QString());
    QVERIFY(parent.isNull());
}

QTEST_MAIN(tst_XFileDialog)
#include "tst_XFileDialog.moc"
