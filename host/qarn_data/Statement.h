#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

class QSqlError;

namespace qarn_data
{

/// One row of a result, valid while the handler runs. Columns count from 0.
class Row
{
public:
    virtual ~Row();
    virtual bool isNull(int column) const = 0;
    virtual qint64 number(int column) const = 0; ///< 0 for NULL
    virtual QString text(int column) const = 0;
    virtual QByteArray bytes(int column) const = 0;
};

using RowHandler = std::function<void(const Row&)>;

/// A value for a place in a statement. Refers to its text or bytes, which must outlive the call. A null text
/// stands for an empty one: text columns are never NULL.
class Value
{
public:
    enum class Kind { Null, Number, Text, Bytes };

    Value(qint64 number) : m_kind(Kind::Number), m_number(number) {}
    Value(int number) : m_kind(Kind::Number), m_number(number) {}
    Value(std::optional<qint64> number)
        : m_kind(number ? Kind::Number : Kind::Null),
          m_number(number.value_or(0))
    {
    }
    Value(const QString& text) : m_kind(Kind::Text), m_text(&text) {}
    Value(const QByteArray& bytes) : m_kind(Kind::Bytes), m_bytes(&bytes) {}

    Kind kind() const { return m_kind; }
    qint64 number() const { return m_number; }
    const QString& text() const { return *m_text; }
    const QByteArray& bytes() const { return *m_bytes; }

private:
    Kind m_kind;
    qint64 m_number = 0;
    const QString* m_text = nullptr;
    const QByteArray* m_bytes = nullptr;
};

using Values = std::vector<Value>;

/// A prepared statement of one connection.
class Statement
{
public:
    virtual ~Statement();
    /// Calls `handler`, which may be empty, for each row of the result.
    virtual bool run(const Value* values, int count, const RowHandler& handler, QSqlError* error) = 0;
};

} // namespace qarn_data
