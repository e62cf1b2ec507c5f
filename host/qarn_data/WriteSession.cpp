#include "WriteSession.h"

#include "Announcing.h"
#include "Checkpointer.h"
#include "SqlStore.h"

#include <QCoreApplication>
#include <QDir>

namespace qarn_data
{

namespace
{

QString tr(const char* text)
{
    return QCoreApplication::translate("qarn_data::WriteSession", text);
}

} // namespace

WriteSession::WriteSession(const QString& what)
    : m_register(Register::instance()),
      m_writing(&m_register.m_writing),
      m_what(what)
{
    if (m_register.m_store != nullptr)
        store().takeOver();
}

WriteSession::~WriteSession()
{
    if (m_register.m_store == nullptr)
        return;
    if (m_isActive)
        store().rollback();
    store().handOver();
}

bool WriteSession::begin()
{
    if (m_register.m_store == nullptr) {
        refuse(tr("No store is open."));
        return false;
    }
    Announcements announcements;
    m_isActive = store().beginWrite();
    const bool ok = m_isActive && m_register.catchUp(announcements);
    announceInGuiThread(announcements);
    if (!ok)
        fail();
    return ok;
}

bool WriteSession::commit(ChangeKind kind, const QString& subject,
                          const std::function<void(RegisterState&)>& enter)
{
    const qint64 change = state().lastChange + 1;
    if (!ChangeLog(store()).append({change, kind, subject}) || !store().commit()) {
        fail();
        return false;
    }
    m_isActive = false;
    if (m_register.m_checkpointer != nullptr)
        m_register.m_checkpointer->noteWrite();
    const QWriteLocker locker(&m_register.m_lock);
    m_register.m_state.lastChange = change;
    enter(m_register.m_state);
    return true;
}

void WriteSession::refuse(const QString& reason)
{
    m_failure = QStringLiteral("%1. %2").arg(m_what, reason);
}

bool WriteSession::check(bool ok)
{
    if (!ok)
        fail();
    return ok;
}

void WriteSession::fail()
{
    m_failure =
        tr("%1 (%2). %3").arg(m_what, QDir::toNativeSeparators(m_register.m_location), store().cause());
}

} // namespace qarn_data
