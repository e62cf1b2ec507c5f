#pragma once

#include "ChangeLog.h"
#include "Register.h"

#include <QMutexLocker>

#include <functional>

namespace qarn_data
{

/// One write to the register: holds the connection while it lives, and undoes what it did not commit. Its
/// thread sees a state that no one else changes meanwhile.
class WriteSession
{
public:
    /// `what` opens the sentence for the operator should this fail: "The person could not be updated".
    explicit WriteSession(const QString& what);
    ~WriteSession();

    /// Opens the transaction and takes in what other processes did before it.
    bool begin();
    /// Commits, notes the change for other processes and enters it into memory.
    bool commit(ChangeKind kind, const QString& subject, const std::function<void(RegisterState&)>& enter);
    /// Says why the store does not take the change, or not all of it.
    void refuse(const QString& reason);
    /// Passes on whether SQL took a statement; a failure stands for the whole write.
    bool check(bool ok);

    SqlStore& store() { return *m_register.m_store; }
    const RegisterState& state() const { return m_register.m_state; }
    /// What the operator is to be told; empty while all went well.
    QString failure() const { return m_failure; }

private:
    void fail();

    Q_DISABLE_COPY(WriteSession)

    Register& m_register;
    QMutexLocker m_writing;
    QString m_what;
    QString m_failure;
    bool m_isActive = false;
};

} // namespace qarn_data
