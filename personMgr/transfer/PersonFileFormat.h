#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

namespace qarn_personMgr
{

/// What a person file of the export can hold; added together they make a column mask. The file always has
/// its columns in this order. The elements of an exported face file's name use the same numbers.
enum PersonColumn {
    SerialNumColumn = 1,
    NameColumn = 2,
    OrganizationColumn = 4,
    SexColumn = 8,
    EmailColumn = 16,
    PhoneNumColumn = 32,
    IdentityIdColumn = 64,
    ValidTimeColumn = 128,
    InvalidTimeColumn = 256
};

/// Positions in a row of an import file. What stands behind the last one is ignored.
enum ImportField {
    SerialNumField,
    NameField,
    OrganizationField,
    SexField,
    PhoneNumField,
    EmailField,
    ValidTimeField,
    InvalidTimeField,
    ImportFieldCount
};

/// The separator of person files. Values are written as they are: there is no quoting.
constexpr QChar PersonFileSeparator(',');

/// Appends a line as both writers put it out: the last field too is followed by the separator.
void appendPersonFileLine(QString& text, const QStringList& fields);

/// The lines of the empty import template, without their separators and line ends: the rules, one field
/// each, then the titles of the columns.
QList<QStringList> importTemplateRows();

/// The first title of the template, by which an import finds the line above the persons: one text for both,
/// so that a template is understood in every language.
QString serialNumTitle();

/// The first ImportFieldCount fields of a line; fewer when the line has fewer.
QStringList importFields(const QString& line);

/// Upper-cased and trimmed; a serial number with a character that is not allowed becomes a random one.
/// Empty stays empty.
QString importedSerialNum(const QString& text);

/// The ten characters that stand for a missing or refused serial number.
QString randomSerialNum();

/// The moment of a day written with "-" or "/"; invalid when the text is no such day.
QDateTime importedDateTime(const QString& date, const QTime& time);

/// A day as the export writes it.
QString exportedDate(const QDateTime& dateTime);

/// The levels of an organization path, outermost first, empty ones included.
QStringList organizationLevels(const QString& path);

} // namespace qarn_personMgr
