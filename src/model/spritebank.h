#pragma once

#include "model/animation.h"
#include "model/assetregistry.h"
#include "model/enums.h"
#include "model/palette.h"
#include "model/spritetransparency.h"

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QUuid>

#include <optional>

class ImageSlicer;
class SpriteAnim;

/// A numbered list of 16×16 hardware sprites in one colour depth, drawn with a bound palette, and the
/// animations that are made of them.
///
/// The sprites are stacked in one picture, 16 pixels wide, whose pixels are palette indices; there is
/// always at least one. In a 4-bit bank only the low four bits of a pixel count when a sprite is drawn,
/// the high four come from a palette offset. Operations ignore a sprite number that is not in the bank.
class SpriteBank : public QObject
{
    Q_OBJECT

public:
    static constexpr int SpriteSize = 16;
    static constexpr int SpriteBytes = SpriteSize * SpriteSize;
    /// A strip of a million rows, the most that PNG readers accept by default.
    static constexpr int MaxCount = 1'000'000 / SpriteSize;

    /// What an undo step keeps of a bank: its pixels and the contents of its animations, by their id.
    struct State
    {
        QImage image;
        QHash<QUuid, Animation::State> animations;

        /// Compares indices: QImage would compare colours, and crash without a colour table.
        bool operator==(const State &other) const;
    };

    explicit SpriteBank(Quenmora::Sprite depth, QObject *parent = nullptr);

    [[nodiscard]] QUuid id() const { return m_id; }
    void setId(QUuid id) { m_id = id; }
    [[nodiscard]] QString name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }
    [[nodiscard]] Quenmora::Sprite depth() const { return m_depth; }

    /// The pixel value that is not drawn; a 4-bit bank compares its low four bits only.
    [[nodiscard]] int transparency() const { return m_transparency; }
    void setTransparency(int transparency) { m_transparency = transparency; }
    /// The same, announced by coloursChanged() when it is another one.
    void changeTransparency(int transparency);
    [[nodiscard]] SpriteTransparency clearPixels() const { return {m_depth, m_transparency}; }

    /// Bytes that are kept and saved with the bank; the bank itself does not read them.
    [[nodiscard]] QByteArray offsets() const { return m_offsets; }
    void setOffsets(const QByteArray &offsets) { m_offsets = offsets; }

    [[nodiscard]] QPointer<Palette> palette() const { return m_palette; }
    /// The id of the bound palette, null when none is bound.
    [[nodiscard]] QUuid paletteId() const { return m_palette ? m_palette->id() : QUuid(); }
    /// Binds a palette (or none); the sprites take its colours, now and whenever one of them changes.
    void setPalette(Palette *palette);

    [[nodiscard]] int count() const { return m_image.height() / SpriteSize; }

    /// All sprites, stacked top to bottom in the order of their numbers, as palette indices.
    [[nodiscard]] QImage image() const { return m_image; }
    /// Replaces all sprites, silently, by a picture that is converted as by NxImage::indexed(). What is not
    /// part of a whole sprite is cut off, and a picture without a whole sprite is padded to one.
    void setWholeImage(const QImage &image);

    /// One sprite as palette indices, in an orientation (see oriented()); blank outside the bank.
    [[nodiscard]] QImage spriteImage(int index, bool rotate, bool flip, bool mirror) const;
    /// One sprite as a map shows it: 32-bit colours, transparent pixels clear, the palette offset (0–15)
    /// applied in a 4-bit bank, in an orientation. Null outside the bank.
    [[nodiscard]] QImage renderSprite(int index, int paletteOffset, bool rotate, bool flip, bool mirror) const;

    /// Shows other pixels than a sprite has, as long as somebody is painting them: they become its content only when
    /// setImage() makes them that. A null picture ends it.
    void showPainted(int index, const QImage &pixels);
    /// spriteImage() with what is being painted and the colours that the palette shows now.
    [[nodiscard]] QImage shownSpriteImage(int index, bool rotate, bool flip, bool mirror) const;

    void clearSprite(int index);
    void copySprite(int from, int to);
    /// Takes a sprite out and puts it back at another place; the ones between move up or down by one.
    void moveSprite(int from, int to);

    /// Appends the sprites of a file of raw sprite data (".spr"): one byte a pixel, rows top to bottom,
    /// 256 bytes a sprite, no header. False when the file cannot be read or holds more than fits.
    [[nodiscard]] bool importSpr(const QString &fileName);
    /// Writes all sprites in that layout. False unless everything was written.
    [[nodiscard]] bool exportSpr(const QString &fileName) const;

    /// Appends the 16×16 pieces of a picture file, row by row, in the nearest colours of the bound palette.
    /// The new number of sprites, or −1 when the picture cannot be used; the bank is then unchanged.
    [[nodiscard]] int importImageFile(const QString &fileName);
    /// The same with the pieces of a picture of indices.
    [[nodiscard]] int appendPieces(const QImage &indexed);
    /// Fills a new bank with the distinct 16×16 pieces of a picture file, and the bound palette with its
    /// colours. The number of pieces, or −1 when the picture cannot be used; nothing is then changed.
    [[nodiscard]] int importSlicedImage(const QString &fileName);
    /// The same with a slicer that has cut sprites.
    [[nodiscard]] int importPieces(const ImageSlicer &slicer);
    /// Makes a picture, in the nearest colours of the bound palette, the sprite at index.
    void importImage(int index, const QImage &image);

    /// The bank's animations in the order in which they were added.
    [[nodiscard]] QList<QPointer<SpriteAnim>> animations() const { return m_animations.all(); }
    /// The animation with this id, or null.
    [[nodiscard]] QPointer<SpriteAnim> animation(QUuid id) const { return m_animations.find(id); }
    /// Adds an animation with this id, or with a new one where another animation has it already.
    QPointer<SpriteAnim> addAnimation(QUuid id);
    QPointer<SpriteAnim> newAnimation();
    void deleteAnimation(QUuid id);

    [[nodiscard]] State snapshot() const;
    /// Puts pixels and animation contents back. Animations that the state does not know stay as they are.
    void restore(const State &state);

signals:
    /// Pixels of one sprite changed.
    void imageChanged(int index);
    void countChanged();
    void spriteSwapped(int first, int second);
    void spriteMoved(int from, int to);
    void spriteDeleted(int index);
    /// Emitted around a structural operation by whoever performs it; the text names it for undo.
    void structureAboutToChange();
    void structureChanged(const QString &text);
    void animationsChanged();
    void restored();
    /// The sprites look different though their pixels stay: another palette was bound, an entry of the bound one
    /// changed, or another index became the transparent one.
    void coloursChanged();
    /// The palette's entries show other colours, but neither sprites nor palette changed.
    void shownColoursChanged();

public slots:
    /// Copies the top left 16×16 pixels of a picture into a sprite (converted in the same way).
    void setImage(int index, const QImage &image);
    /// Appends a blank sprite.
    void addSprite(bool emitSignal = true);
    /// Removes a sprite; the only one of a bank is cleared instead.
    void deleteSprite(int index);

private slots:
    void updateColour(int index, QColor colour, bool priority);

private:
    [[nodiscard]] bool contains(int index) const { return index >= 0 && index < count(); }
    [[nodiscard]] bool hasRoomFor(qsizetype sprites) const { return sprites <= MaxCount - count(); }
    void applyColours();
    void resize(int count);
    void writePixels(int index, const uchar *pixels);

    int m_transparency = SpriteTransparency::DefaultIndex;
    QUuid m_id = QUuid::createUuid();
    QString m_name;
    Quenmora::Sprite m_depth;
    QByteArray m_offsets = QByteArray(1, '\0');
    QImage m_image;
    QPointer<Palette> m_palette;
    /// A sprite as it is being painted.
    struct Painted
    {
        int index;
        QImage pixels;
    };
    std::optional<Painted> m_painted;
    AssetRegistry<SpriteAnim> m_animations;
};
