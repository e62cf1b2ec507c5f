#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QtTest>

/// Small file helpers of the transfer tests. They end the test program when the disk does not play along.
namespace transferFiles
{

/// AddressSanitizer keeps freed memory and makes large blocks slow; sizes and limits follow.
#ifdef __SANITIZE_ADDRESS__
constexpr bool sanitized = true;
#else
constexpr bool sanitized = false;
#endif

inline QString write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

inline QByteArray read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

/// The title line of an import file.
inline QByteArray header()
{
    return "*Serial Num,*Person Name,*Organization,*Sex,Phone Num,Email,Valid Time,Invalid Time,\n";
}

/// A file of the sample data; empty when it is not there.
inline QString sample(const QString& name)
{
    const QString folder = qEnvironmentVariable("QARN_SAMPLE_DATA", QARN_SOURCE_DIR "/../shared/data");
    const QString path = folder + QLatin1Char('/') + name;
    return QFile::exists(path) ? path : QString();
}

} // namespace transferFiles
