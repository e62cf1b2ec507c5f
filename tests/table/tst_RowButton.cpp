#include "table/RowButton.h"

#include <QLineEdit>
#include <QtTest>
#include <memory>

using qarn_personMgr::RowButton;

namespace
{

const QRgb focusFrame = 0xff2c7dce;

void writeImage(const char* color, const QString& path)
{
    QImage image(18, 18, QImage::Format_RGB32);
    image.fill(QColor(color));
    QVERIFY(image.save(path));
}

} // namespace

class tst_RowButton : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { m_window.reset(); }
    void showsOneImageOrTheOther();
    void framesItselfWithTheFocus();

private:
    QRgb shown(int x, int y) { return m_button->grab().toImage().pixel(x, y); }

    QTemporaryDir m_directory;
    std::unique_ptr<QWidget> m_window;
    RowButton* m_button = nullptr;
    QLineEdit* m_other = nullptr;
};

void tst_RowButton::init()
{
    writeImage("red", m_directory.filePath("normal.png"));
    writeImage("lime", m_directory.filePath("hover.png"));
    m_window = std::make_unique<QWidget>();
    m_window->resize(200, 100);
    m_other = new QLineEdit(m_window.get());
    m_other->move(60, 60);
    m_button = new RowButton(m_window.get());
    m_button->setImages(m_directory.filePath("normal.png"), m_directory.filePath("hover.png"));
    m_button->setGeometry(10, 10, 18, 18);
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_other->setFocus();
    QTest::mouseMove(m_window.get(), QPoint(150, 20));
    QTRY_VERIFY(!m_button->underMouse());
}

void tst_RowButton::showsOneImageOrTheOther()
{
    QCOMPARE(QColor(shown(9, 9)), QColor("red"));
    QTest::mouseMove(m_button);
    QTRY_COMPARE(QColor(shown(9, 9)), QColor("lime"));
    QTest::mouseMove(m_window.get(), QPoint(150, 20));
    QTRY_COMPARE(QColor(shown(9, 9)), QColor("red"));
}

void tst_RowButton::framesItselfWithTheFocus()
{
    QCOMPARE(QColor(shown(9, 0)), QColor("red"));
    m_button->setFocus();
    QTRY_COMPARE(QColor(shown(9, 0)), QColor(focusFrame));
    QCOMPARE(QColor(shown(9, 9)), QColor("red"));
    m_other->setFocus();
    QTRY_COMPARE(QColor(shown(9, 0)), QColor("red"));
}

QTEST_MAIN(tst_RowButton)
#include "tst_RowButton.moc"
