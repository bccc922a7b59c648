#pragma once

#include "model/enums.h"
#include "pictures/dithering.h"

#include <QImage>
#include <QString>
#include <QUuid>

#include <optional>

class Palette;
class Project;
class QWidget;
class SpriteBank;

/// A new sprite bank that is made of a file.
struct SpriteImport
{
    QString file;
    QString name; ///< of the bank, and of a new palette
    Quenmora::Sprite depth = Quenmora::EightBit;
    QUuid paletteId; ///< a palette of the project, or null for a new one
    bool keepColours = false; ///< of a picture whose colours are the machine's: their levels stay what they are

    std::optional<Dithering> reduction{}; ///< to the colours that there is room for, which keeps levels as well

    bool operator==(const SpriteImport &) const = default;
};

/// A picture whose indices and colours are those of a new bank.
struct IndexedSprites
{
    QImage pixels;
    bool hasClearPixels = false;

    /// In the colours of a palette, or in its own for null.
    [[nodiscard]] static IndexedSprites of(QImage picture, const SpriteImport &import, const Palette *palette);
};

/// Makes a bank of the 16×16 pieces of a picture: all of them in the nearest colours of a palette of the
/// project, or the distinct ones in colours of their own, with a new palette of these, reduced if that is wanted. What
/// is clear in the picture is so in the sprites, and nothing else. The window in front shows the progress. Null, and
/// the project is as it was, when the picture cannot be used.
[[nodiscard]] SpriteBank *importSpritePicture(Project &project, const SpriteImport &import, QWidget *parent);

/// Makes a bank of raw sprite data; a new palette is the standard one. Null, and the project is as it was,
/// when the file cannot be used.
[[nodiscard]] SpriteBank *importSpriteData(Project &project, const SpriteImport &import, QWidget *parent);
