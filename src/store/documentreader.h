#pragma once

#include "model/assetname.h"
#include "store/projectdocument.h"
#include "store/readingbudget.h"

#include <QIODevice>
#include <QImage>
#include <QJsonObject>
#include <QJsonValue>
#include <QLatin1String>
#include <QPointer>
#include <QString>
#include <QUuid>

#include <memory>
#include <optional>

/// What the readers of all kinds of asset share while one project is read.
///
/// Each kind has a writer, which turns an asset into its object of the document and adds its other
/// members, and a reader, which takes one such object, builds the asset and registers it with the
/// project. A reader that cannot go on leaves through fail().
struct DocumentReader
{
    Project &project;
    const MemberOpener &members;
    QString &error;

    ReadingBudget budget{};

    /// How many cells the animations may still have that the document does not spell out. Sizes cost
    /// nothing to write; without a bound a short document could ask for all memory there is, here and
    /// again when the project is saved.
    qsizetype impliedCells = qsizetype(1) << 18;

    /// A picture of the archive.
    struct Picture
    {
        QImage image; ///< null also when it is none, or takes more than the budget has
        bool isThere = false; ///< whether there is an undamaged member
    };

    enum class Use { Pixels, Tiles };

    /// The member, ready to be read; null when it is not there or empty.
    [[nodiscard]] std::unique_ptr<QIODevice> open(const QString &memberName) const;
    /// The whole member; empty when it is not there, damaged, or longer than this.
    [[nodiscard]] QByteArray readAll(const QString &memberName, qint64 mostBytes) const;
    // The members of an asset; again is whether it replaces one.
    [[nodiscard]] Picture readPicture(const QString &memberName, Use use, bool again);
    [[nodiscard]] std::optional<TileMap::Rows> readCells(const QString &memberName, bool again);

    /// Frees the asset whose place one with the same id is about to take. Whether there is one.
    template <class Asset>
    [[nodiscard]] static bool makeRoom(const QPointer<Asset> &earlier)
    {
        const bool found = earlier;
        delete earlier.data();
        return found;
    }

    /// Notes why the project cannot be read; always false.
    [[nodiscard]] bool fail(const QString &message);
};

/// Values of the document. What is missing, of another type or (for numbers) no 32-bit integer counts
/// as the fallback.
namespace DocumentValue {

/// The name under a key, cut to what a name may be.
[[nodiscard]] inline QString name(const QJsonObject &object, QLatin1String key)
{
    return AssetName::cut(object.value(key).toString());
}

/// The id under a key; null when it is missing or none.
[[nodiscard]] inline QUuid id(const QJsonObject &object, QLatin1String key)
{
    return QUuid::fromString(object.value(key).toString());
}

/// As id(), but a new random id instead of a null one.
[[nodiscard]] inline QUuid idOrNew(const QJsonObject &object, QLatin1String key)
{
    const QUuid stored = id(object, key);
    return stored.isNull() ? QUuid::createUuid() : stored;
}

/// The text of an id, or no text for a reference that is not set.
[[nodiscard]] inline QString reference(const QUuid &id)
{
    return id.isNull() ? QString() : id.toString();
}

/// An integer from least to most; any other number counts as the fallback.
[[nodiscard]] inline int integer(const QJsonObject &object, QLatin1String key, int least, int most, int fallback)
{
    const int value = object.value(key).toInt(fallback);
    return value >= least && value <= most ? value : fallback;
}

/// A position or length in pixels or cells, bounded so that sums and areas cannot overflow.
[[nodiscard]] inline int coordinate(const QJsonObject &object, QLatin1String key, int fallback = 0)
{
    constexpr int Limit = 1 << 24;
    return integer(object, key, -Limit, Limit, fallback);
}

/// How long an animation shows a frame, in ticks.
[[nodiscard]] inline int delay(const QJsonObject &object, QLatin1String key)
{
    constexpr int Longest = 1 << 24;
    return integer(object, key, 0, Longest, 0);
}

/// The value of an enumeration that counts from 0 to last; a number outside of it counts as the fallback.
template <class Enumeration>
[[nodiscard]] Enumeration enumerator(const QJsonObject &object, QLatin1String key, Enumeration last,
                                     Enumeration fallback)
{
    return Enumeration(integer(object, key, 0, int(last), int(fallback)));
}

} // namespace DocumentValue
