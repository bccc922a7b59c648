#pragma once

#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QUuid>

#include <optional>

namespace Importing {

/// What a person chose for a file: how it is read, and what becomes of it. It is kept as JSON, and whoever reads the
/// file again with it makes the same of it.
struct ImportChoices
{
    static constexpr int AtTheEnd = -1;

    QString kind; ///< FileKind::id
    QMap<QString, QString> options{}; ///< of the kind, by their ids; those that are not the default
    QString name{}; ///< of what is made
    QUuid target{}; ///< the asset into which it goes; null for a new one
    int at = AtTheEnd; ///< the number in the target (of tiles or sprites) from which on it is replaced
    QUuid palette{}; ///< of what is made, where it brings no colours; null for a new one
    QUuid tileSet{}; ///< of a new map that brings no tiles; null for a new one

    [[nodiscard]] QJsonObject toJson() const;
    /// Nothing when a value is of a wrong type, or there is no kind.
    [[nodiscard]] static std::optional<ImportChoices> fromJson(const QJsonObject &object);

    bool operator==(const ImportChoices &) const = default;
};

} // namespace Importing
