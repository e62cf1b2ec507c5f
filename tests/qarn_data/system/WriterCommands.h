#pragma once

#include <QHash>
#include <QJsonObject>
#include <QObject>

#include <functional>
#include <memory>

struct sqlite3;

/// What store_writer can be told to do.
class WriterCommands : public QObject
{
    Q_OBJECT
public:
    WriterCommands();
    ~WriterCommands() override;

    /// Runs {"do": name, ...} and prints {"answer": ..., "error": ...}.
    void run(const QJsonObject& command);

private:
    using Command = std::function<QJsonValue(const QJsonObject& command, QString& error)>;

    void addStoreCommands();
    void addPersonCommands();
    void addOrganizationCommands();
    void addFaultCommands();
    void reportNotifications();

    QHash<QString, Command> m_commands;
    std::unique_ptr<sqlite3, int (*)(sqlite3*)> m_lock; ///< holds the write lock of a store
};
