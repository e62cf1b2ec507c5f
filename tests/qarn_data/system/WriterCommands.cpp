#include "WriterCommands.h"

#include "ProcessLimits.h"
#include "Storm.h"
#include "Workload.h"
#include "WriterPersons.h"

#include <qarn_data/DataService.h>
#include <qarn_data/DataSignals.h>
#include <qarn_data/PersonData.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QJsonArray>
#include <QJsonDocument>

#include <sqlite3.h>
#include <unistd.h>

using qarn_data::DataService;
using qarn_data::DataSignals;
using qarn_data::OrganizationInfo;
using qarn_data::PersonData;

namespace
{

// Straight to the pipe: what was printed stays printed when the process is killed.
void print(QByteArray line)
{
    line += '\n';
    for (int written = 0; written < line.size();) {
        const ssize_t count =
            ::write(STDOUT_FILENO, line.constData() + written, size_t(line.size() - written));
        if (count <= 0)
            ::_exit(3);
        written += int(count);
    }
}

void print(const QJsonObject& object)
{
    print(QJsonDocument(object).toJson(QJsonDocument::Compact));
}

void printEvent(const char* name, const QStringList& ids, bool success, const QString& text = {})
{
    print(QJsonObject{{"event", QString::fromLatin1(name)},
                      {"ids", QJsonArray::fromStringList(ids)},
                      {"success", success},
                      {"text", text}});
}

OrganizationInfo organizationOf(const QJsonObject& command)
{
    return {command["id"].toString(), command["parentId"].toString(), command["name"].toString()};
}

// Never returns. The root is read from the store, so that who checks can repeat the run.
void runWorkload(quint32 seed, int done)
{
    Workload workload(seed, PersonData::instance().getRootOrganizationId());
    while (workload.count() < done)
        workload.next();
    for (;;) {
        if (!applyToStore(workload.next()))
            ::_exit(4);
        print("ack " + QByteArray::number(workload.count()));
        QCoreApplication::processEvents();
    }
}

QJsonObject json(const QMap<QString, QString>& texts)
{
    QJsonObject object;
    for (auto text = texts.begin(); text != texts.end(); ++text)
        object.insert(text.key(), text.value());
    return object;
}

QJsonObject runStorm(const QString& writer, int seconds)
{
    Storm storm(writer);
    bool ok = true;
    for (const QDeadlineTimer end(seconds * 1000); ok && !end.hasExpired();) {
        ok = storm.step();
        QCoreApplication::processEvents();
    }
    const Storm::Acknowledged& done = storm.acknowledged();
    return {{"ok", ok},
            {"added", QJsonArray::fromStringList(done.added)},
            {"updates", QJsonArray::fromStringList(done.updates)},
            {"lastOwn", json(done.lastOwn)},
            {"lastShared", json(done.lastShared)}};
}

} // namespace

WriterCommands::WriterCommands() : m_lock(nullptr, &sqlite3_close)
{
    addStoreCommands();
    addPersonCommands();
    addOrganizationCommands();
    addFaultCommands();
    reportNotifications();
}

WriterCommands::~WriterCommands()
{
    DataService::instance().close();
}

void WriterCommands::run(const QJsonObject& command)
{
    const Command action = m_commands.value(command["do"].toString());
    QString error;
    const QJsonValue answer = action ? action(command, error) : QJsonValue();
    print(QJsonObject{{"answer", answer}, {"error", action ? error : QStringLiteral("unknown command")}});
}

void WriterCommands::addStoreCommands()
{
    m_commands["open"] = [](const QJsonObject& command, QString& error) {
        return DataService::instance().open(command["path"].toString(), &error);
    };
    m_commands["close"] = [](const QJsonObject&, QString&) {
        DataService::instance().close();
        return true;
    };
    m_commands["workload"] = [](const QJsonObject& command, QString&) {
        runWorkload(quint32(command["seed"].toInt()), command["done"].toInt());
        return false;
    };
    m_commands["storm"] = [](const QJsonObject& command, QString&) {
        return runStorm(command["writer"].toString(), command["seconds"].toInt());
    };
}

void WriterCommands::addPersonCommands()
{
    m_commands["count"] = [](const QJsonObject&, QString&) {
        return PersonData::instance().getAllPersons(true).count();
    };
    m_commands["addPersons"] = [](const QJsonObject& command, QString&) {
        return PersonData::instance().addPersons(personsToAdd(command));
    };
    m_commands["updatePersons"] = [](const QJsonObject& command, QString&) {
        const qarn_data::PersonList persons = personsWithIds(idsOf(command));
        return std::all_of(persons.begin(), persons.end(), [&](qarn_data::PersonInfo person) {
            person.name = command["name"].toString();
            return PersonData::instance().updatePerson(person);
        });
    };
    m_commands["movePersons"] = [](const QJsonObject& command, QString&) {
        return PersonData::instance().changePersonsOrganization(
            personsWithIds(idsOf(command)), command["organizationId"].toString(), command["retain"].toBool());
    };
    m_commands["deletePersons"] = [](const QJsonObject& command, QString&) {
        return PersonData::instance().deletePersons(idsOf(command));
    };
}

void WriterCommands::addOrganizationCommands()
{
    m_commands["addOrganization"] = [](const QJsonObject& command, QString&) {
        return PersonData::instance().addOrganization(organizationOf(command));
    };
    m_commands["updateOrganization"] = [](const QJsonObject& command, QString&) {
        return PersonData::instance().updateOrganization(organizationOf(command));
    };
    m_commands["deleteOrganizations"] = [](const QJsonObject& command, QString&) {
        return PersonData::instance().deleteOrganizations(idsOf(command));
    };
    m_commands["resetCustomFields"] = [](const QJsonObject& command, QString&) {
        PersonData::instance().resetCustomFields(idsOf(command));
        return true;
    };
}

void WriterCommands::addFaultCommands()
{
    m_commands["dropPrivileges"] = [](const QJsonObject&, QString&) { return dropPrivileges(); };
    m_commands["limitFileSize"] = [](const QJsonObject& command, QString&) {
        return limitFileSize(qint64(command["bytes"].toDouble(-1)));
    };
    m_commands["smallDisk"] = [](const QJsonObject& command, QString&) {
        return useSmallDisk(command["path"].toString(), qint64(command["bytes"].toDouble()));
    };
    m_commands["lock"] = [this](const QJsonObject& command, QString& error) {
        sqlite3* connection = nullptr;
        bool ok = sqlite3_open(command["path"].toString().toUtf8().constData(), &connection) == SQLITE_OK;
        m_lock.reset(connection);
        const QByteArray sql = command["sql"].toString(QStringLiteral("BEGIN IMMEDIATE")).toUtf8();
        ok = ok && sqlite3_exec(connection, sql.constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
        error = QString::fromUtf8(sqlite3_errmsg(connection));
        return ok;
    };
    m_commands["unlock"] = [this](const QJsonObject&, QString&) {
        m_lock.reset();
        return true;
    };
}

void WriterCommands::reportNotifications()
{
    const DataSignals* source = &DataSignals::instance();
    connect(&DataService::instance(), &DataService::signalFailed, this,
            [](const QString& text) { printEvent("failed", {}, false, text); });
    connect(
        source, &DataSignals::signalAddPersonsToLocalDB, this,
        [](const qarn_data::PersonList& persons, bool ok) { printEvent("addPersons", idsOf(persons), ok); });
    connect(source, &DataSignals::signalUpdatePersonInLocalDB, this,
            [](const qarn_data::PersonInfo& person, const QStringList& ids, bool ok) {
                printEvent("updatePerson", ids, ok, person.name);
            });
    connect(source, &DataSignals::signalDeletePersonsFromLocalDB, this,
            [](const QStringList& ids, bool ok) { printEvent("deletePersons", ids, ok); });
    connect(source, &DataSignals::signalAddOrganizationToLocalDB, this,
            [](const OrganizationInfo& info, bool ok) {
                printEvent("addOrganization", {info.id}, ok, info.name);
            });
    connect(source, &DataSignals::signalUpdateOrganizationInLocalDB, this,
            [](const OrganizationInfo& info, bool ok) {
                printEvent("updateOrganization", {info.id}, ok, info.name);
            });
    connect(source, &DataSignals::signalDeleteOrganizationsFromLocalDB, this,
            [](const QStringList& ids, bool ok) { printEvent("deleteOrganizations", ids, ok); });
    connect(source, &DataSignals::signalResetCustomFields, this,
            [](const QStringList& names) { printEvent("resetCustomFields", names, true); });
}
