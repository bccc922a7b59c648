#pragma once

#include "model/tilemap.h"

#include <QList>
#include <QPoint>
#include <QString>

/// Tiles that make one ground, such as grass or a road: each is marked with the neighbours towards which the ground
/// goes on, so that the tiles whose borders match are found while it is painted.
///
/// A terrain looks at the four cells beside a cell, or at all eight around it. A corner then counts only between two
/// sides on which the ground goes on, as it is hidden otherwise. One that may turn its tiles finds those that have the
/// borders when they are rotated, flipped or mirrored, too, and reads the marks of a turned cell as turned.
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
    bool turns = false; ///< its tiles may be turned

    [[nodiscard]] const Tile *find(int index) const;
    [[nodiscard]] bool has(const TileMap::TileData &cell) const { return cell.used && find(cell.index); }
    /// Makes a tile one of the ground with these marks; nothing for a negative index.
    void mark(int index, int marks);
    void remove(int index);

    /// The marks that count.
    [[nodiscard]] int counted(int marks) const;
    /// The marks that a cell of the ground has; none of another.
    [[nodiscard]] int marksOf(const TileMap::TileData &cell) const;
    /// The tile whose marks fit best, one of several equal ones by choice, as a cell that does not know its palette
    /// offset. It is turned as little as it takes; its index is -1 of a terrain without tiles.
    [[nodiscard]] TileMap::TileData tileFor(int marks, quint32 choice) const;

    /// The neighbours of a cell that are of the ground; those outside the grid count as such.
    [[nodiscard]] int marksAt(const TileMap &grid, QPoint cell) const;
    /// What the cells at and around a place become when it becomes of the ground, or is cleared: those of the ground
    /// get tiles that match. Whether any cell became another one.
    bool paint(TileMap &grid, QPoint place, bool ground, quint32 choice) const;

    bool operator==(const Terrain &) const = default;
};
