#pragma once

#include "model/spritebank.h"

#include <QImage>
#include <QList>
#include <QPoint>
#include <QString>

#include <array>

class QUndoStack;

/// What a sprite looks like: numbers of the machine's colours (NineBitColour), or Clear.
struct SpriteLook
{
    static constexpr quint16 Clear = 0xffff;
    using Colours = std::array<quint16, 256>;

    std::array<quint16, SpriteBank::SpriteBytes> pixels;

    /// What each pixel value looks like.
    [[nodiscard]] static Colours coloursOf(const QList<QRgb> &table, const SpriteTransparency &transparency);
    /// 16 × 16 indices of a picture.
    [[nodiscard]] static SpriteLook of(const QImage &indexed, QPoint corner, const Colours &colours);
    [[nodiscard]] static QList<SpriteLook> allOf(const SpriteBank &bank);

    bool operator==(const SpriteLook &) const = default;
};

struct RenewedSprites
{
    QString failure{}; ///< why nothing was changed
    QList<int> places{}; ///< the numbers that the sprites have in the bank now
    qsizetype replaced = 0; ///< of these, those that are new
};

/// Brings a bank up to date with sprites that were imported into it under some numbers. Those that look as before keep
/// their numbers, others take the numbers of those that are gone, and the rest comes behind all. They are drawn with
/// the colours of the palette from a first entry on, which gets new ones, if it may, where no sprite shows the old.
[[nodiscard]] RenewedSprites renewSprites(SpriteBank &bank, const QList<SpriteLook> &sprites,
                                          const QList<int> &imported, int firstColour, bool mayAddColours,
                                          QUndoStack *stack);
