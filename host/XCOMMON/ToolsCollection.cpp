#include <XCOMMON/OperatorNotice.h>
#include <XCOMMON/ToolsCollection.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace XCOMMON
{

namespace
{

constexpr qint64 MaxImageMiB = 64;
constexpr qint64 MaxImageBytes = MaxImageMiB * 1024 * 1024;

bool isForbidden(QChar character)
{
    static const QString forbidden = QStringLiteral("\\/:*?\"<>|");
    return forbidden.contains(character) || character.category() == QChar::Other_Control;
}

bool isForbiddenAtEnd(QChar character)
{
    return character == QLatin1Char('.') || character.isSpace();
}

QByteArray refuse(const QString& text)
{
    OperatorNotice::instance().refuse(text);
    return QByteArray();
}

} // namespace

ToolsCollection::ToolsCollection(QObject* parent) : QObject(parent) {}

QString ToolsCollection::formatLegalFileName(QString& name, const QString& replacement)
{
    QString legal;
    for (const QChar character : name)
        legal += isForbidden(character) ? replacement : QString(character);
    int length = legal.size();
    while (length > 0 && isForbiddenAtEnd(legal.at(length - 1)))
        --length;
    const int dropped = legal.size() - length;
    legal.truncate(length);
    if (!replacement.isEmpty() && !isForbiddenAtEnd(replacement.back()))
        legal += replacement.repeated(dropped);
    name = legal;
    return name;
}

QByteArray ToolsCollection::loadImage(const QString& path)
{
    const QString shown = QDir::toNativeSeparators(path);
    if (!QFileInfo(path).isFile()) // a pipe or a device would block or never end
        return refuse(
            tr("The image \"%1\" cannot be read: there is no such file. Choose another one.").arg(shown));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return refuse(tr("The image \"%1\" cannot be read: %2. Check its permissions or choose another one.")
                          .arg(shown, file.errorString()));
    // One byte more than there should be tells a file that grows or is too large.
    const QByteArray bytes = file.read(qMin(file.size(), MaxImageBytes) + 1);
    if (bytes.size() > MaxImageBytes)
        return refuse(
            tr("The image \"%1\" is larger than %2 MiB. Choose a smaller one.").arg(shown).arg(MaxImageMiB));
    if (file.error() != QFile::NoError)
        return refuse(tr("The image \"%1\" cannot be read: %2. Try again or choose another one.")
                          .arg(shown, file.errorString()));
    return bytes;
}

} // namespace XCOMMON
