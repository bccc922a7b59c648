#pragma once

#include <QString>

#include <utility>
#include <variant>

/// Why something cannot be, in a sentence for the person who wanted it.
struct Failure
{
    QString reason;
};

/// A value, or the reason why there is none.
template <typename Value>
class [[nodiscard]] Result
{
public:
    Result(Value value) : m_content(std::move(value)) { }
    Result(Failure failure) : m_content(std::move(failure)) { }

    explicit operator bool() const { return std::holds_alternative<Value>(m_content); }
    const Value &operator*() const & { return std::get<Value>(m_content); }
    Value operator*() && { return std::get<Value>(std::move(m_content)); }
    const Value *operator->() const { return &std::get<Value>(m_content); }

    /// Empty when there is a value.
    [[nodiscard]] QString reason() const { return *this ? QString() : failure().reason; }
    [[nodiscard]] const Failure &failure() const { return std::get<Failure>(m_content); }

private:
    std::variant<Value, Failure> m_content;
};
