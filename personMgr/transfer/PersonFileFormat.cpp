#include "transfer/PersonFileFormat.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QUuid>

namespace qarn_personMgr
{

namespace
{

constexpr int RandomSerialNumLength = 10;

/// The blank-to-blank range is meant: a hyphen is not allowed in a serial number.
const QRegularExpression& serialNumPattern()
{
    static const QRegularExpression pattern(
        QRegularExpression::anchoredPattern(QStringLiteral("[0-9 a-z A-Z - { }]+$")));
    return pattern;
}

/// The dialog that writes the template also names its texts for the translators.
QString templateText(const char* text)
{
    return QCoreApplication::translate("qarn_personMgr::ImportPersonsDlg", text);
}

/// Over the zeros that end at this position.
void writeDigits(QString& text, int last, int number)
{
    for (; number > 0; number /= 10)
        text[last--] = QChar('0' + number % 10);
}

} // namespace

void appendPersonFileLine(QString& text, const QStringList& fields)
{
    for (int i = 0; i < fields.count(); ++i) {
        if (i > 0)
            text += PersonFileSeparator;
        text += fields[i];
    }
    text += QLatin1String(",\n");
}

QList<QStringList> importTemplateRows()
{
    static const char* const rules[] = {
        QT_TRANSLATE_NOOP("qarn_personMgr::ImportPersonsDlg", "Rules:"),
        QT_TRANSLATE_NOOP("qarn_personMgr::ImportPersonsDlg", "1. Star is required"),
        QT_TRANSLATE_NOOP("qarn_personMgr::ImportPersonsDlg", "2. 1:Male 2:Female"),
        QT_TRANSLATE_NOOP("qarn_personMgr::ImportPersonsDlg", "3. Date Format:YYYY-MM-DD"),
        QT_TRANSLATE_NOOP("qarn_personMgr::ImportPersonsDlg",
                          "4. Hierarchical use / segmentation of the organization"),
    };
    static const char* const furtherTitles[ImportFieldCount - 1] = {
        QT_TRANSLATE_NOOP("qarn_personMgr::ImportPersonsDlg", "*Person Name"),
        QT_TRANSLATE_NOOP("qarn_personMgr::ImportPersonsDlg", "*Organization"),
        QT_TRANSLATE_NOOP("qarn_personMgr::ImportPersonsDlg", "*Sex"),
        QT_TRANSLATE_NOOP("qarn_personMgr::ImportPersonsDlg", "Phone Num"),
        QT_TRANSLATE_NOOP("qarn_personMgr::ImportPersonsDlg", "Email"),
        QT_TRANSLATE_NOOP("qarn_personMgr::ImportPersonsDlg", "Valid Time"),
        QT_TRANSLATE_NOOP("qarn_personMgr::ImportPersonsDlg", "Invalid Time"),
    };
    QList<QStringList> rows;
    for (const char* rule : rules)
        rows.append({templateText(rule)});
    QStringList header{serialNumTitle()};
    for (const char* title : furtherTitles)
        header.append(templateText(title));
    rows.append(header);
    return rows;
}

QString serialNumTitle()
{
    return templateText(QT_TRANSLATE_NOOP("qarn_personMgr::ImportPersonsDlg", "*Serial Num"));
}

QStringList importFields(const QString& line)
{
    QStringList fields;
    fields.reserve(ImportFieldCount);
    int start = 0;
    while (fields.count() < ImportFieldCount) {
        const int end = line.indexOf(PersonFileSeparator, start);
        fields.append(line.mid(start, end < 0 ? -1 : end - start));
        if (end < 0)
            break;
        start = end + 1;
    }
    return fields;
}

QString importedSerialNum(const QString& text)
{
    const QString serialNum = text.toUpper().trimmed();
    if (serialNum.isEmpty() || serialNumPattern().match(serialNum).hasMatch())
        return serialNum;
    return randomSerialNum();
}

QString randomSerialNum()
{
    return QUuid::createUuid().toString().left(RandomSerialNumLength);
}

QDateTime importedDateTime(const QString& date, const QTime& time)
{
    const QChar separator = date.contains(QLatin1Char('-')) ? QLatin1Char('-') : QLatin1Char('/');
    const QVector<QStringRef> parts = date.splitRef(separator);
    if (parts.count() != 3)
        return QDateTime();
    return QDateTime(QDate(parts[0].toInt(), parts[1].toInt(), parts[2].toInt()), time);
}

QString exportedDate(const QDateTime& dateTime)
{
    const QDate date = dateTime.date();
    if (date.year() < 1 || date.year() > 9999)
        return date.toString(QStringLiteral("yyyy/MM/dd"));
    // By hand, since every exported person has two dates.
    QString text(QStringLiteral("0000/00/00"));
    writeDigits(text, 3, date.year());
    writeDigits(text, 6, date.month());
    writeDigits(text, 9, date.day());
    return text;
}

QStringList organizationLevels(const QString& path)
{
    return path.trimmed().split(QLatin1Char('/'));
}

} // namespace qarn_personMgr
