#include "Register.h"

#include "Announcing.h"
#include "Backup.h"
#include "ChangeFeed.h"
#include "Checkpointer.h"
#include "Consistency.h"
#include "PersonTable.h"
#include "SqlStore.h"
#include "SqliteDialect.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace qarn_data
{

namespace
{

const QString memoryLocation = QStringLiteral(":memory:");
constexpr int largestPage = 200; // persons

QString tr(const char* text)
{
    return QCoreApplication::translate("qarn_data::Register", text);
}

std::unique_ptr<SqlStore> makeStore()
{
    return std::make_unique<SqlStore>(std::make_unique<SqliteDialect>());
}

void set(QString* target, const QString& text)
{
    if (target != nullptr)
        *target = text;
}

} // namespace

Register::Register() = default;

Register::~Register()
{
    if (m_loader.joinable())
        m_loader.join();
}

Register& Register::instance()
{
    static Register theRegister;
    return theRegister;
}

bool Register::isOpen() const
{
    const QReadLocker locker(&m_lock);
    return !m_location.isEmpty();
}

bool Register::open(const QString& location, QString* error)
{
    close();
    return load(location, {}, error);
}

bool Register::openAhead(const QString& location, QString* error)
{
    close();
    std::promise<QString> promise;
    std::future<QString> refusal = promise.get_future();
    m_loader = std::thread(&Register::loadInBackground, this, location, std::move(promise));
    const QString reason = refusal.get();
    set(error, reason);
    return reason.isEmpty();
}

void Register::loadInBackground(const QString& location, std::promise<QString> refusal)
{
    bool isAhead = false;
    QString error;
    const auto ahead = [&] {
        isAhead = true;
        refusal.set_value(QString());
    };
    const bool ok = load(location, ahead, &error);
    if (!isAhead)
        refusal.set_value(error);
    else if (!ok)
        tellLoadingFailure(error);
    if (ok)
        readPersons([](const PersonIndex& persons) { persons.prepare(); });
}

bool Register::load(const QString& location, const std::function<void()>& ahead, QString* error)
{
    const QMutexLocker writing(&m_writing);
    m_store = makeStore();
    QString reason;
    bool ok = m_store->open(location, &reason);
    if (ok) {
        ok = m_store->beginRead() && loadAll(location, ahead);
        if (!ok)
            reason = m_store->cause();
        m_store->rollback();
    }
    if (!ok) {
        m_store.reset();
        RegisterState none;
        enter(none, QString(), 0);
        set(error, tr("The store %1 cannot be opened. %2").arg(QDir::toNativeSeparators(location), reason));
        return false;
    }
    m_isBehind = false;
    m_foreignFailure.clear();
    m_store->handOver();
    if (location != memoryLocation)
        m_checkpointer = std::make_unique<Checkpointer>(location);
    return true;
}

bool Register::loadAll(const QString& location, const std::function<void()>& ahead)
{
    RegisterState state;
    if (!state.loadAllButPersons(*m_store))
        return false;
    // A failure to show the first persons says nothing yet: reading all will meet it again.
    if (ahead && enterFirst(state, location))
        ahead();
    if (!state.loadPersons(*m_store))
        return false;
    enter(state, location, 0);
    return true;
}

bool Register::enterFirst(const RegisterState& others, const QString& location)
{
    RegisterState first = others.withoutPersons();
    int persons = 0;
    if (!first.loadFirstPersons(*m_store, largestPage) ||
        !PersonTable(*m_store, first.organizations).count(&persons))
        return false;
    enter(first, location, persons - first.persons.count());
    return true;
}

void Register::enter(RegisterState& state, const QString& location, int missingPersons)
{
    const QWriteLocker locker(&m_lock);
    std::swap(m_state, state);
    m_location = location;
    m_missingPersons = missingPersons;
    if (missingPersons == 0)
        m_loaded.wakeAll();
}

bool Register::readFirstPersons(int count, PersonList* persons, int* total) const
{
    const QReadLocker locker(&m_lock);
    if (m_missingPersons == 0 || count < 0 || count > m_state.persons.count())
        return false;
    *persons = m_state.persons.all().mid(0, count);
    *total = m_state.persons.count() + m_missingPersons;
    return true;
}

void Register::close()
{
    if (m_loader.joinable())
        m_loader.join();
    const QMutexLocker writing(&m_writing);
    if (m_store == nullptr)
        return;
    m_checkpointer.reset();
    m_store->takeOver();
    m_store.reset();
    RegisterState closed;
    enter(closed, QString(), 0);
}

bool Register::catchUp(Announcements& announcements)
{
    if (m_store->hasForeignChanges())
        m_isBehind = true;
    if (m_isBehind)
        m_isBehind = !ChangeFeed(*m_store, m_state, m_lock).takeIn(announcements);
    return !m_isBehind;
}

Announcements Register::takeForeignChanges()
{
    Announcements announcements;
    if (!m_writing.tryLock())
        return announcements;
    QString failure;
    if (m_store != nullptr) {
        m_store->takeOver();
        if (m_store->hasForeignChanges())
            m_isBehind = true;
        if (m_isBehind) {
            if (!m_store->beginRead() || !catchUp(announcements))
                failure = m_store->cause();
            m_store->rollback();
        }
        m_store->handOver();
    }
    const bool isNew = failure != m_foreignFailure;
    m_foreignFailure = failure;
    m_writing.unlock();
    if (isNew && !failure.isEmpty())
        announcements.append([failure] {
            tellFailure(tr("What others change in the register cannot be shown. %1").arg(failure));
        });
    return announcements;
}

// A file is copied through a connection of its own, so that the store stays in use meanwhile; a store in
// memory has but one.
bool Register::backup(const QString& filePath, QString* error)
{
    QString location;
    {
        const QReadLocker locker(&m_lock);
        location = m_location;
    }
    QString reason;
    if (location.isEmpty()) {
        reason = tr("No store is open.");
    } else if (location == memoryLocation) {
        const QMutexLocker writing(&m_writing);
        m_store->takeOver();
        backupStore(*m_store, filePath, &reason);
        m_store->handOver();
    } else {
        const std::unique_ptr<SqlStore> reader = makeStore();
        if (QFileInfo(filePath).canonicalFilePath() == QFileInfo(location).canonicalFilePath())
            reason = tr("It is the open store itself. Choose another file.");
        else if (reader->openBeside(location, &reason))
            backupStore(*reader, filePath, &reason);
    }
    if (!reason.isEmpty())
        set(error, tr("The backup %1 cannot be made. %2").arg(QDir::toNativeSeparators(filePath), reason));
    return reason.isEmpty();
}

bool Register::checkConsistency(QString* problem)
{
    const QMutexLocker writing(&m_writing);
    QString finding = tr("No store is open.");
    if (m_store != nullptr) {
        Announcements announcements;
        m_store->takeOver();
        finding = m_store->beginRead() && catchUp(announcements) ? findInconsistency(*m_store, m_state)
                                                                 : m_store->cause();
        m_store->rollback();
        m_store->handOver();
        announceInGuiThread(announcements);
    }
    set(problem, finding);
    return finding.isEmpty();
}

} // namespace qarn_data
