#include "editors/canvas/pictureimport.h"

#include "model/nximage.h"
#include "model/palette.h"
#include "pictures/machinecolours.h"

#include <algorithm>

namespace {

/// A picture that was made by MachineColours::kept() as the nearest entries of a palette.
QImage nearestEntries(const NxImage &picture, const Palette &palette)
{
    QList<int> indices;
    for (const QRgb colour : picture.colours())
        indices.append(palette.nearestIndex(QColor::fromRgb(MachineColours::shown(colour))));
    return picture.withIndices(indices, 0, palette.colourTable());
}

} // namespace

QImage PictureImport::indexed(const QImage &picture, const Palette &palette, int first, int count, QSize scaledTo,
                              Levels levels)
{
    if (picture.isNull())
        return {};
    const bool kept = levels == Levels::Kept;
    QImage scaled = picture;
    if (scaledTo.isValid())
        scaled =
            picture.scaled(scaledTo, Qt::IgnoreAspectRatio, kept ? Qt::FastTransformation : Qt::SmoothTransformation);
    NxImage source;
    source.setImage(kept ? MachineColours::kept(std::move(scaled)) : std::move(scaled));
    // The entries offered come first; the rest repeat the first of them, which is found before them.
    Palette offered;
    for (int index = 0; index < Palette::Size; ++index)
        offered.storeRawColour(index, palette.rawColour(index < count ? first + index : first));
    QImage image = kept ? nearestEntries(source, offered) : source.remap(&offered);
    if (image.isNull())
        return {};
    for (int y = 0; y < image.height() && first > 0; ++y) {
        uchar *row = image.scanLine(y);
        std::transform(row, row + image.width(), row, [first](uchar index) { return uchar(first + index); });
    }
    image.setColorTable(palette.colourTable());
    return image;
}
