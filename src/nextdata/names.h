#pragma once

#include "nextdata/result.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

namespace NextData {

/// The names that text output defines: each is valid in every dialect, a reserved word in none, and there once.
/// Upper and lower case count as the same, as some assemblers have it.
///
/// An output has a label, and names that are made of it: label_suffix. It claims all of them at once.
class Names
{
public:
    /// A label made from the name of an asset, or from a fallback word where the name holds nothing to use. A number
    /// is added as long as it, or a name that is made of it, is taken.
    [[nodiscard]] QString claim(const QString &name, const QString &fallback, const QStringList &suffixes = {});

    /// The same for what stands behind "label_", where no word is reserved.
    [[nodiscard]] QString claimPart(const QString &name, const QString &fallback, const QStringList &suffixes = {});

    /// Claims exactly this label; a failure says why it cannot be one.
    [[nodiscard]] Result<QString> claimExactly(const QString &label, const QStringList &suffixes = {});

private:
    [[nodiscard]] QString claimNumbered(const QString &word, const QStringList &suffixes);
    [[nodiscard]] bool areFree(const QString &label, const QStringList &suffixes) const;
    void take(const QString &label, const QStringList &suffixes);

    QSet<QString> m_taken; ///< in lower case
    QHash<QString, int> m_lastNumber; ///< that was added to a word
};

/// The name in lower case ASCII letters, digits and single underscores, with accents taken off, at most 40 of them;
/// empty when nothing of it is left.
[[nodiscard]] QString asWord(const QString &name);

} // namespace NextData
