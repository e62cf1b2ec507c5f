#pragma once

#include <qarn_data/Export.h>

#include <QObject>
#include <QString>

namespace qarn_data
{

/// Opens and closes the store behind PersonData. Host only. Belongs to the GUI thread, in which it also
/// announces what other processes changed.
class QARN_DATA_EXPORT DataService : public QObject
{
    Q_OBJECT
public:
    static DataService& instance();

    /// Opens the store at a file path, or ":memory:"; makes a new one where there is no file yet. On
    /// failure returns false, tells file and cause in `error`, and leaves the file as it was.
    bool open(const QString& location, QString* error = nullptr);
    /// The same, but comes back as soon as the first page of persons can be shown; the rest is read
    /// meanwhile. Whoever asks for persons before that is done waits for it (PersonData::getFirstPersons()
    /// does not).
    bool openAhead(const QString& location, QString* error = nullptr);
    void close(); ///< waits for the end of what openAhead() began
    bool isOpen() const;
    /// Writes a consistent copy to `filePath` while the store stays in use.
    bool backup(const QString& filePath, QString* error = nullptr);
    /// Compares what is in memory with what is stored, and lets the database check itself. False, with the
    /// first finding in `problem`, when they differ. Takes as long as opening the store does.
    bool checkConsistency(QString* problem = nullptr);

signals:
    /// A refused write, in words for the operator. Emitted once a refusal, in the writing thread.
    void signalFailed(const QString& text);
    /// The store that openAhead() opened cannot be read to its end, and is closed again. `reason` tells file
    /// and cause. Emitted in another thread.
    void signalLoadingFailed(const QString& reason);

private:
    DataService();
    ~DataService() override;
    void watchForeignChanges(bool on);
};

} // namespace qarn_data
