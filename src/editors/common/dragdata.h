#pragma once

#include <QMimeData>
#include <QString>

#include <optional>

/// What a dragged tile carries: its index and palette offset, two big-endian 32-bit integers in data of
/// the type "quenmora/tile-drag-anim".
struct TileDrag
{
    int index = 0;
    int offset = 0;

    static QString mimeType() { return QStringLiteral("quenmora/tile-drag-anim"); }
    /// Mime data with this content; the caller owns it.
    [[nodiscard]] QMimeData *toMimeData() const;
    /// Nothing when the data is missing or cut.
    [[nodiscard]] static std::optional<TileDrag> fromMimeData(const QMimeData *mimeData);
};

/// What a dragged sprite carries: its index, a big-endian 32-bit integer in data of the type
/// "quenmora/sprite-drag-anim".
struct SpriteDrag
{
    int index = 0;

    static QString mimeType() { return QStringLiteral("quenmora/sprite-drag-anim"); }
    /// Mime data with this content; the caller owns it.
    [[nodiscard]] QMimeData *toMimeData() const;
    /// Nothing when the data is missing or cut.
    [[nodiscard]] static std::optional<SpriteDrag> fromMimeData(const QMimeData *mimeData);
};
