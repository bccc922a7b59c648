#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>

/// Where an asset came from: a file, and what was chosen for it.
struct ImportRecord
{
    enum Kind { Map, Sprites, Image, Palette, File, Tiles };

    Kind kind = Map;
    QString file; ///< its whole path
    QByteArray digest; ///< of the content that was imported last (FileState)
    QJsonObject choices; ///< whose keys the importers of the kind know; of any other file, ImportChoices

    bool operator==(const ImportRecord &) const = default;

    /// As it is kept beside a project: files near the project's are named as seen from there. An empty project file is
    /// none.
    [[nodiscard]] QJsonObject toJson(const QString &projectFile) const;
    /// Nothing for what is no record.
    [[nodiscard]] static std::optional<ImportRecord> fromJson(const QJsonValue &json, const QString &projectFile);
};
