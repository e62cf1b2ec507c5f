#pragma once

#include <QString>

/// Opens the store of this run. A store that cannot be opened is told with its reason; the operator
/// chooses another file, tries again, or quits. A file is never replaced.
class StoreOpener
{
public:
    /// The path of the opened store; empty when the operator quit. Without `ask` a failure is printed to
    /// standard error and ends the attempt. Begins with the question when the store at `path` has failed
    /// already, for `reason`.
    static QString open(const QString& path, bool ask, QString reason = QString());

    /// Where the store lies when nobody says otherwise.
    static QString defaultPath();
};
