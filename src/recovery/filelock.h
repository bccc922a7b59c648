#pragma once

#include <QString>

#include <optional>
#include <utility>

/// A file that one running program holds at a time. The system lets go of it when that program ends, however it
/// ends; a process number, which the system gives to others later, is never asked.
class FileLock
{
public:
    /// Holds the file, which is made when it is missing; nothing when somebody else does, or it cannot be made. It is
    /// the file of that name that is held: one that was removed meanwhile is not.
    [[nodiscard]] static std::optional<FileLock> take(const QString &path);

    FileLock(FileLock &&other) noexcept : m_handle(std::exchange(other.m_handle, None)) { }
    FileLock &operator=(FileLock &&other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    ~FileLock() { release(); }

    void release();
    /// Whether the file of that name still is the one that is held.
    [[nodiscard]] bool holds(const QString &path) const;

private:
    using Handle = qintptr;
    static constexpr Handle None = -1;

    explicit FileLock(Handle handle) : m_handle(handle) { }

    Handle m_handle = None;
};
