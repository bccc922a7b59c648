#include "editors/canvas/imageimport.h"

#include "editors/canvas/pictureimport.h"
#include "model/palette.h"
#include "model/spritetransparency.h"

int ImageImport::clearEntry(const Palette *palette, int colourCount) const
{
    if (newPalette)
        return SpriteTransparency{colourCount == Palette::Size ? Quenmora::EightBit : Quenmora::FourBit}.pixel();
    const int transparent = palette ? palette->transparencyIndex() : -1;
    return transparent < colourCount ? transparent : -1;
}

ImageImport::Result ImageImport::convert(const QImage &picture, const Palette &palette, QSize imageSize,
                                         int colourCount) const
{
    const QImage part = scale ? picture : picture.copy(QRect(QPoint(), imageSize) & picture.rect());
    const int clear = clearEntry(&palette, colourCount);
    const bool keepsClear = keepClearPixels && clear >= 0;
    if (!reduction && !newPalette) {
        return {
            PictureImport::indexed(part, palette, 0, colourCount, scale ? imageSize : QSize(),
                                   keepColours ? PictureImport::Levels::Kept : PictureImport::Levels::Quantised,
                                   keepsClear ? PictureImport::ClearPixels::Kept : PictureImport::ClearPixels::Dropped),
            {}};
    }
    const auto mode = keepColours ? Qt::FastTransformation : Qt::SmoothTransformation;
    const ReducedPixels reduced = ReducedPixels::of(scale ? part.scaled(imageSize, Qt::IgnoreAspectRatio, mode) : part,
                                                    {.dithering = reduction.value_or(Dithering::None),
                                                     .colourCount = colourCount,
                                                     .clear = clear,
                                                     .palette = newPalette ? nullptr : &palette,
                                                     .anyGroup = false,
                                                     .keepClearPixels = keepsClear});
    return {reduced.pixels, reduced};
}
