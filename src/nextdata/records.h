#pragma once

#include "nextdata/result.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace NextData {

/// Puts together records of little-endian fields, and remembers the first value that its field cannot hold.
class Records
{
public:
    /// The things that are written, for a failure's text: an asset's name.
    explicit Records(const QString &owner) : m_owner(owner) { }

    /// Begins a record; a failure names it so.
    void begin(const QString &record);

    void addByte(const QString &field, qint64 value);
    void addWord(const QString &field, qint64 value);
    void addSignedWord(const QString &field, qint64 value);

    /// The bytes since begin().
    [[nodiscard]] QByteArray bytes() const { return m_bytes; }
    /// The first value of all records that did not fit.
    [[nodiscard]] std::optional<Failure> failure() const { return m_failure; }

private:
    void add(const QString &field, qint64 value, qint64 least, qint64 most, int bytes);

    QString m_owner;
    QString m_record;
    QByteArray m_bytes;
    std::optional<Failure> m_failure;
};

} // namespace NextData
