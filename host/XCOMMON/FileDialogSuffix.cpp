#include "FileDialogSuffix.h"

#include <QRegularExpression>
#include <QStringList>

namespace XCOMMON
{

namespace
{

/// The plain suffixes of a filter, each with its dot; empty when it takes every file.
QStringList suffixesOf(const QString& nameFilter)
{
    const QString patterns = nameFilter.contains(QLatin1Char('('))
                                 ? nameFilter.section(QLatin1Char('('), -1).section(QLatin1Char(')'), 0, 0)
                                 : nameFilter;
    static const QRegularExpression blanks(QStringLiteral("[\\s,;]+"));
    static const QRegularExpression plain(QStringLiteral("^\\*(\\.[^*?\\[\\]]+)$"));
    QStringList suffixes;
    for (const QString& pattern : patterns.split(blanks, Qt::SkipEmptyParts)) {
        const QRegularExpressionMatch match = plain.match(pattern);
        if (!match.hasMatch())
            return QStringList();
        suffixes.append(match.captured(1));
    }
    return suffixes;
}

} // namespace

QString withFilterSuffix(const QString& fileName, const QString& nameFilter)
{
    const QStringList suffixes = suffixesOf(nameFilter);
    if (fileName.isEmpty() || suffixes.isEmpty())
        return fileName;
    for (const QString& suffix : suffixes) {
        if (fileName.endsWith(suffix, Qt::CaseInsensitive))
            return fileName;
    }
    return fileName + suffixes.constFirst();
}

} // namespace XCOMMON
