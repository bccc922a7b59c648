#pragma once

#include "undo/paletteorder.h"

#include <QPointer>

#include <array>
#include <bitset>

class Project;
class TileSet;

/// The pictures of a project that are drawn with a palette: tiles, sprites, images and the scratch image.
class PaletteUsers
{
public:
    using Entries = std::bitset<PaletteOrder::Size>;

    PaletteUsers(Project &project, Palette &palette);

    /// How many pixels use each entry: of tiles and 4-bit sprites, as their own palette offset shows them.
    [[nodiscard]] std::array<qint64, PaletteOrder::Size> counts() const;

    /// Whether entries may only move within their group of 16, because pictures have 4 bits a pixel.
    [[nodiscard]] bool needGroups() const { return m_needGroups; }
    /// The entries that cannot move without a picture looking different: transparent ones, and those of tiles and
    /// sprites that are drawn with several groups.
    [[nodiscard]] const Entries &fixed() const { return m_fixed; }

    /// The movable ones among entries, in lists within which they may change places.
    [[nodiscard]] QList<QList<int>> movable(int first, int last) const;

    /// Moves entries, and the pixels with them. What is drawn looks as before if only movable entries move.
    void reorder(const PaletteOrder &order) const;

private:
    void lookAtTiles();
    void lookAtSprites();
    void lookAtImages();

    QPointer<Project> m_project;
    QPointer<Palette> m_palette;
    Entries m_fixed;
    bool m_needGroups = false;
};
