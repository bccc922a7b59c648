#pragma once

#include "model/tilemap.h"

#include <QList>
#include <QPoint>
#include <QString>

/// Tiles that make one ground, such as grass or a road: each is marked with the neighbours towards which the ground
/// goes on, so that the tiles whose borders match are found while it is painted.
///
/// A terrain looks at the four cells beside a cell, or at all eight around it. A corner then counts only between two
/// sides on which the ground goes on, as it is hidden otherwise.
struct Terrain
{
    /// Neighbours clockwise from above, as bits of marks.
    enum Mark {
        North = 1,
        NorthEast = 2,
        East = 4,
        SouthEast = 8,
        South = 16,
        SouthWest = 32,
        West = 64,
        NorthWest = 128
    };
    static constexpr int Sides = North | East | South | West;
    static constexpr int All = 255;

    struct Tile
    {
        int index;
        int marks;

        bool operator==(const Tile &) const = default;
    };

    QString name;
    bool corners = false; ///< eight neighbours
    QList<Tile> tiles; ///< in the order of their indices, none twice

    [[nodiscard]] const Tile *find(int index) const;
    [[nodiscard]] bool has(const TileMap::TileData &cell) const { return cell.used && find(cell.index); }
    /// Makes a tile one of the ground with these marks; nothing for a negative index.
    void mark(int index, int marks);
    void remove(int index);

    /// The marks that count.
    [[nodiscard]] int counted(int marks) const;
    /// The tile whose marks fit best, one of several equal ones by choice; -1 of a terrain without tiles.
    [[nodiscard]] int tileFor(int marks, quint32 choice) const;

    /// The neighbours of a cell that are of the ground; those outside the grid count as such.
    [[nodiscard]] int marksAt(const TileMap &grid, QPoint cell) const;
    /// What the cells at and around a place become when it becomes of the ground, or is cleared: those of the ground
    /// get tiles that match. Whether any cell became another one.
    bool paint(TileMap &grid, QPoint place, bool ground, quint32 choice) const;

    bool operator==(const Terrain &) const = default;
};
