#pragma once

#include <QHash>
#include <QImage>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QUuid>

#include <array>
#include <memory>
#include <optional>
#include <vector>

class MapObjects;
class Palette;

/// One 8×8 tile: its pixels, the palette offset with which they are shown, and what the game knows
/// about it.
///
/// Pixels are palette indices of which only the low four bits belong to the tile: it is shown with the
/// palette entries offset·16 + (pixel & 15). A tile emits nothing; its tile set reports changes.
class Tile : public QObject
{
    Q_OBJECT

public:
    /// Width and height of a tile in pixels.
    static constexpr int Size = 8;
    /// Bytes of a tile in the hardware's layout, two pixels a byte.
    static constexpr int DataSize = Size * Size / 2;

    /// Gameplay attributes, under the names that the assembler export gives them.
    enum Attribute {
        TA_NONE = 0x00,
        TA_TOPSOLID = 0x01,
        TA_LEFTSOLID = 0x02,
        TA_RIGHTSOLID = 0x04,
        TA_BOTTOMSOLID = 0x08,
        TA_SOLID = 0x0F,
        TA_DEADLY = 0x10,
        TA_COLLECTIBLE = 0x20,
        TA_LADDER = 0x40,
        TA_DOOR = 0x80
    };
    Q_ENUM(Attribute)

    /// Pixels row by row, left to right.
    using Pixels = std::array<uchar, Size * Size>;

    /// Everything that a tile holds, as a value.
    struct State
    {
        QImage image;
        int offset = 0;
        int attributes = TA_NONE;
        int value = 0;

        bool operator==(const State &) const = default;
    };

    /// A blank tile: every pixel 0, 256 opaque black colours.
    explicit Tile(QObject *parent = nullptr);
    explicit Tile(const State &state, QObject *parent = nullptr);

    /// The pixels as an 8-bit indexed picture.
    [[nodiscard]] QImage image() const { return m_state.image; }
    /// The tile keeps a copy of its own, converted as by NxImage::indexed().
    void setImage(const QImage &image);
    /// The pixels as plain bytes; what the image lacks of 8×8 pixels is 0.
    [[nodiscard]] Pixels pixels() const;

    /// Palette offset, 0–15.
    [[nodiscard]] int offset() const { return m_state.offset; }
    void setOffset(int offset) { m_state.offset = offset; }

    [[nodiscard]] int attributes() const { return m_state.attributes; }
    void setAttributes(int attributes) { m_state.attributes = attributes; }
    /// Whether every bit of flag is set; for TA_NONE, whether no attribute is set at all.
    [[nodiscard]] bool hasAttribute(int flag) const;
    void setAttribute(int flag, bool on);

    /// A free number that the user gives to the tile.
    [[nodiscard]] int value() const { return m_state.value; }

    /// Sets an entry (0–255) of the image's colour table, always opaque.
    void setColour(int index, const QColor &colour);

    /// A copy without parent; the caller owns it.
    [[nodiscard]] Tile *clone() const;
    [[nodiscard]] State state() const { return m_state; }

    /// The pixels in the hardware's layout: 8 rows of 4 bytes, the even column in the high nibble.
    [[nodiscard]] QByteArray toNextData() const;

public slots:
    void setValue(int value) { m_state.value = value; }

private:
    State m_state;
};

/// An ordered list of tiles for the Next's tilemap layer, shown with a bound palette.
///
/// Maps and tile animations name tiles by their position in the list. Structural edits are framed by
/// structureAboutToChange() and structureChanged(), which is what undo listens to. Operations ignore
/// positions that the list does not have.
class TileSet : public QObject
{
    Q_OBJECT
    Q_MOC_INCLUDE("model/palette.h")

public:
    /// The contents of all tiles, in order.
    using Snapshot = QList<Tile::State>;

    /// A tile set of count blank tiles.
    explicit TileSet(int count, QObject *parent = nullptr);

    [[nodiscard]] QUuid id() const { return m_id; }
    void setId(const QUuid &id) { m_id = id; }
    [[nodiscard]] QString name() const { return m_name; }
    /// Whether the tiles are drawn for the tilemap's high resolution, with pixels twice as tall as wide.
    [[nodiscard]] bool hiRes() const { return m_hiRes; }
    [[nodiscard]] QPointer<Palette> palette() const { return m_palette; }
    /// The id of the palette that was bound last; it outlives the palette itself.
    [[nodiscard]] QUuid paletteId() const { return m_paletteId; }

    /// The block sets whose cells name tiles of this set, by their ids.
    [[nodiscard]] QHash<QUuid, QPointer<MapObjects>> blockSets() const { return m_blockSets; }
    void registerBlocks(const QPointer<MapObjects> &blocks);
    void unregisterBlocks(const QUuid &id) { m_blockSets.remove(id); }

    [[nodiscard]] int count() const { return static_cast<int>(m_tiles.size()); }
    /// The tile at index, or null outside the list. Structural edits and restore() may destroy it.
    [[nodiscard]] Tile *tile(int index) const;
    /// The picture of a tile as it is stored; null outside the list.
    [[nodiscard]] QImage image(int index) const;
    /// The palette offset of a tile; 0 outside the list.
    [[nodiscard]] int tileOffset(int index) const;

    /// A tile as it is shown: pixels (pixel & 15) + offset·16, in an orientation (see oriented()).
    /// Outside the list: blank, with a message in the log.
    [[nodiscard]] QImage tileImage(int index, bool rotate, bool flip, bool mirror, int offset) const;
    /// The pixels of tileImage() written to 8 rows of 8 bytes at target, stride bytes apart. It
    /// allocates nothing and is meant for painting many tiles; outside the list it writes zeros.
    void renderTile(int index, bool rotate, bool flip, bool mirror, int offset, uchar *target, qsizetype stride) const;

    /// Shows other pixels than a tile has, as long as somebody is painting them: they become its content only when
    /// setTileImage() makes them that. A null picture ends it.
    void showPainted(int index, const QImage &pixels);
    /// tileImage() with what is being painted and the colours that the palette shows now.
    [[nodiscard]] QImage shownTileImage(int index, bool rotate, bool flip, bool mirror, int offset) const;
    /// The pixels of that, written as by renderTile().
    void renderShownTile(int index, bool rotate, bool flip, bool mirror, int offset, uchar *target,
                         qsizetype stride) const;

    // Plain setters; editors follow them with notifyImageChanged().
    void setTileOffset(int index, int offset);
    void setTileImage(int index, const QImage &image);

    /// Gives the tile at to the picture and the offset of the tile at from ("Copy Tile").
    void copyTile(int from, int to);
    /// Moves a tile to another position; the tiles between close up ("Move Tile").
    void moveTile(int from, int to);

    [[nodiscard]] Snapshot snapshot() const;
    /// Replaces all tiles and emits restored() alone.
    void restore(const Snapshot &snapshot);
    /// Replaces all tiles by copies of another set's, silently.
    void copyTilesFrom(const TileSet &other);

    /// All tiles stacked in one picture, 8 pixels wide, with the palette's colours: the form in which a
    /// project stores them. Null for a set without tiles.
    [[nodiscard]] QImage toStrip() const;
    /// Takes pixels and colours of all tiles from such a picture. False, and nothing changed, unless it is
    /// 8-bit indexed and exactly as large as toStrip() makes it.
    [[nodiscard]] bool setStrip(const QImage &strip);

    // Raw files (tilesetformats.cpp). Writers return false unless everything was written.

    /// Next tile data: Tile::toNextData() of every tile.
    [[nodiscard]] bool exportNxt(const QString &fileName) const;
    /// The name of the file that exportToDirectory() writes, NAME_tiles.nxt.
    [[nodiscard]] QString exportFileName() const;
    /// Next tile data, as that file in a folder; false also when the name cannot be part of a file's name.
    [[nodiscard]] bool exportToDirectory(const QString &folder) const;
    /// One byte a pixel, 64 bytes a tile, of the tiles startBlock to endBlock counted from 1; each pixel is
    /// the palette index with the tile's own offset. With rotate, rows and columns change places.
    [[nodiscard]] bool exportBlocks(const QString &fileName, int startBlock, int endBlock, bool rotate) const;
    /// The attributes of every tile as a table for an assembler, sixteen to a line.
    [[nodiscard]] bool exportAttributesAsm(const QString &fileName) const;
    /// The attributes of every tile, one byte each.
    [[nodiscard]] bool exportAttributesBinary(const QString &fileName) const;

signals:
    void nameChanged(const QString &name);
    /// The pixels or the offset of one tile changed.
    void tileChanged(int index);
    /// The palette's entries show other colours, but neither tiles nor palette changed.
    void shownColoursChanged();
    void tileDeleted(int index);
    void tileInserted(int index);
    /// Two neighbouring positions exchanged their tiles.
    void tileSwapped(int first, int second);
    /// A structural edit is about to begin.
    void structureAboutToChange();
    /// A structural edit has ended; text names it for undo.
    void structureChanged(const QString &text);
    /// All tiles were replaced from a snapshot.
    void restored();

public slots:
    void setName(const QString &name);
    void setHiRes(bool on) { m_hiRes = on; }
    /// Binds a palette (or none). The colours of tiles that exist already stay as they are; they follow
    /// every later change of the palette.
    void setPalette(QPointer<Palette> palette);
    /// Announces that an editor has changed the picture of a tile.
    void notifyImageChanged(int index);

    /// Fills the tiles from index on with the characters of a ZX Spectrum font: 8 bytes a character, a byte a
    /// row, the top row first, bit 7 leftmost. False when the file cannot be read or ends inside a character
    /// that a tile was waiting for; the tiles before it keep their new pixels.
    bool importZXFont(int index, int foreIndex, int backIndex, int offset, const QString &filename);
    /// Makes a picture the image of a tile, in the nearest colours of the bound palette.
    void importImage(int index, const QImage &image, int offset);
    /// Fills tiles from Next tile data, as far as it reaches, and clears their offsets. Silent. False when
    /// the file cannot be read.
    bool importNxt(const QString &filename);

    /// Clears the pixels of a tile; not an undoable edit.
    void clearImage(int index);
    void deleteTile(int index);
    /// Inserts a blank tile with palette offset 1; index may be the number of tiles.
    void insertTile(int index);

private slots:
    void updateColour(int index, QColor colour);

private:
    [[nodiscard]] bool contains(int index) const { return index >= 0 && index < count(); }
    /// The bound palette's colours, black without one.
    [[nodiscard]] QList<QRgb> colourTable() const;
    /// A tile picture of these 64 pixels in the bound palette's colours.
    [[nodiscard]] QImage imageOf(const Tile::Pixels &pixels) const;
    [[nodiscard]] QByteArray nextData() const;
    [[nodiscard]] bool isPainted(int index) const { return m_painted && m_painted->index == index; }
    void replaceTiles(const Snapshot &states);

    QUuid m_id = QUuid::createUuid();
    QUuid m_paletteId;
    QString m_name;
    bool m_hiRes = false;
    std::vector<std::unique_ptr<Tile>> m_tiles;
    QPointer<Palette> m_palette;
    /// A tile as it is being painted.
    struct Painted
    {
        int index;
        QImage pixels;
    };
    std::optional<Painted> m_painted;
    QHash<QUuid, QPointer<MapObjects>> m_blockSets;
};
