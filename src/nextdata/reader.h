#pragma once

#include "nextdata/content.h"
#include "nextdata/option.h"
#include "nextdata/result.h"
#include "nextdata/source.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

namespace NextData {

/// What a file holds, and what was left out of it.
struct Reading
{
    Content content;
    QStringList remarks{}; ///< sentences for people
};

/// The way back from a form: a pure function of bytes and options. What the file does not tell, the options do.
struct Reader
{
    /// How well a number of bytes goes with what is read.
    enum class Fit {
        None, ///< it cannot be
        Possible,
        Exact, ///< files of this kind usually have just so many
    };

    QString id; ///< the form's
    AssetKind kind;
    QString title; ///< for people
    QStringList suffixes; ///< without the dot, in lower case, that files of this kind have
    QList<Option> options;

    Fit (*fit)(qint64 size);
    Result<Reading> (*read)(const QByteArray &bytes, const OptionValues &values);
    /// The options that a file of so many bytes most probably needs; null for the defaults.
    QMap<QString, QString> (*suggested)(qint64 size) = nullptr;
};

/// The largest file that is read: more than the machine has memory, and maps of 4,000 × 2,000 cells.
inline constexpr qint64 MostBytes = qint64(16) << 20;

/// All readers, in the order of forms().
[[nodiscard]] const QList<Reader> &readers();

/// The reader of an id; null when there is none.
[[nodiscard]] const Reader *findReader(const QString &id);

/// What a file holds; a failure says why it cannot be that.
[[nodiscard]] Result<Reading> read(const Reader &reader, const QByteArray &bytes, const OptionValues &values);

/// Whether a file begins with a +3DOS header:
///
///     offset  size  content
///     0       8     "PLUS3DOS"
///     8       1     $1A
///     9       2     issue, version
///     11      4     length of the whole file, low byte first
///     15      112   what BASIC knows of the file
///     127     1     the sum of the bytes before, modulo 256
[[nodiscard]] bool hasPlus3DosHeader(const QByteArray &bytes);

/// The file without that header, if it has one. What the header does not count, which fills a disk's last sector, is
/// left out.
[[nodiscard]] QByteArray withoutHeader(const QByteArray &bytes);

} // namespace NextData
