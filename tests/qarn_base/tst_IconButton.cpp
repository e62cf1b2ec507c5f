#include <qarn_base/IconButton.h>

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using qarn_base::IconButton;

class tst_IconButton : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void showsTextAndIcon();
    void iconFollowsTheMouse();
    void isPressedByKeys();

private:
    QString picture(const QString& name, Qt::GlobalColor color) const;
    static QColor colorOf(const IconButton& button);

    QTemporaryDir m_directory;
    QString m_red;
    QString m_blue;
};

void tst_IconButton::initTestCase()
{
    QVERIFY(m_directory.isValid());
    m_red = picture(QStringLiteral("red.png"), Qt::red);
    m_blue = picture(QStringLiteral("blue.png"), Qt::blue);
}

QString tst_IconButton::picture(const QString& name, Qt::GlobalColor color) const
{
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(color);
    image.save(m_directory.filePath(name));
    return m_directory.filePath(name);
}

QColor tst_IconButton::colorOf(const IconButton& button)
{
    return button.icon().pixmap(16).toImage().pixelColor(8, 8);
}

void tst_IconButton::showsTextAndIcon()
{
    IconButton button;
    button.setText(QStringLiteral("Add Person"));
    button.setIcons(m_red, m_red);
    QCOMPARE(button.text(), QStringLiteral("Add Person"));
    QCOMPARE(button.accessibleName(), QStringLiteral("Add Person"));
    QCOMPARE(colorOf(button), QColor(Qt::red));
}

void tst_IconButton::iconFollowsTheMouse()
{
    IconButton button;
    button.setIcons(m_red, m_blue);
    QEvent enter(QEvent::Enter);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&button, &enter);
    QCOMPARE(colorOf(button), QColor(Qt::blue));
    QApplication::sendEvent(&button, &leave);
    QCOMPARE(colorOf(button), QColor(Qt::red));
}

void tst_IconButton::isPressedByKeys()
{
    IconButton button;
    QSignalSpy pressed(&button, &QPushButton::clicked);
    button.show();
    QTest::keyClick(&button, Qt::Key_Space);
    QTest::keyClick(&button, Qt::Key_Return);
    QCOMPARE(pressed.count(), 2);
}

QTEST_MAIN(tst_IconButton)
#include "tst_IconButton.moc"
