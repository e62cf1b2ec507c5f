#include "demo/Portrait.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

#include <cstdio>

// Draws one portrait for each row of a table in the import format, named the way the directory import reads
// it: serial number, name, sex. Usage: qarn-make-samples <persons.csv> <directory>

namespace
{

constexpr QSize portraitSize(300, 400);
constexpr int portraitQuality = 82;
constexpr int titleLines = 6;

enum Field { SerialNum, Name, Organization, Sex, FieldCount };

bool draw(const QStringList& fields, quint32 seed, const QDir& directory)
{
    const bool male = fields[Sex] == QLatin1String("1");
    const QString name =
        QStringLiteral("%1_%2_%3.jpg").arg(fields[SerialNum], fields[Name], male ? "Male" : "Female");
    return drawPortrait(seed, portraitSize, male ? PortraitKind::Male : PortraitKind::Female)
        .save(directory.filePath(name), "jpg", portraitQuality);
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::fprintf(stderr, "Usage: %s <persons.csv> <directory>\n", argv[0]);
        return 2;
    }
    QFile table(QFile::decodeName(argv[1]));
    const QDir directory(QFile::decodeName(argv[2]));
    if (!table.open(QIODevice::ReadOnly | QIODevice::Text) || !directory.exists()) {
        std::fprintf(stderr, "%s or %s cannot be opened\n", argv[1], argv[2]);
        return 1;
    }
    QTextStream stream(&table);
    stream.setCodec("UTF-8");
    quint32 line = 0;
    for (QString text; stream.readLineInto(&text); ++line) {
        const QStringList fields = text.split(QLatin1Char(','));
        if (line < titleLines || fields.count() < FieldCount)
            continue;
        if (!draw(fields, line, directory)) {
            std::fprintf(stderr, "The portrait of %s cannot be written\n", qPrintable(fields[SerialNum]));
            return 1;
        }
    }
    return 0;
}
