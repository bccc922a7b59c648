#include "editors/canvas/pictureimport.h"

#include "model/nextcolour.h"
#include "model/nximage.h"
#include "model/palette.h"
#include "pictures/machinecolours.h"

#include <algorithm>

namespace {

/// Every colour as the nearest entry of a palette but one, which clear pixels get; -1 for none.
QImage nearestEntries(const NxImage &picture, const Palette &palette, bool kept, int clear)
{
    const QList<QRgb> table = palette.colourTable();
    QList<int> indices;
    for (const QRgb colour : picture.colours()) {
        const QRgb wanted = kept ? MachineColours::shown(colour) : colour;
        int nearest = clear == 0 ? 1 : 0;
        for (int index = nearest + 1; index < Palette::Size; ++index) {
            if (index != clear
                && NextColour::squaredDistance(table[index], wanted)
                    < NextColour::squaredDistance(table[nearest], wanted))
                nearest = index;
        }
        indices.append(nearest);
    }
    return picture.withIndices(indices, std::max(clear, 0), table);
}

} // namespace

QImage PictureImport::indexed(const QImage &picture, const Palette &palette, int first, int count, QSize scaledTo,
                              Levels levels, ClearPixels clear)
{
    if (picture.isNull())
        return {};
    const bool kept = levels == Levels::Kept;
    QImage scaled = picture;
    if (scaledTo.isValid())
        scaled =
            picture.scaled(scaledTo, Qt::IgnoreAspectRatio, kept ? Qt::FastTransformation : Qt::SmoothTransformation);
    NxImage source;
    if (kept)
        scaled = MachineColours::kept(std::move(scaled));
    if (clear == ClearPixels::Kept)
        source.setTranslucent(std::move(scaled));
    else
        source.setImage(std::move(scaled));
    // The entries offered come first; the rest repeat the first of them, which is found before them.
    Palette offered;
    for (int index = 0; index < Palette::Size; ++index)
        offered.storeRawColour(index, palette.rawColour(index < count ? first + index : first));
    const int transparent = palette.transparencyIndex() - first;
    QImage image = kept || clear == ClearPixels::Kept
        ? nearestEntries(source, offered, kept, transparent >= 0 && transparent < count ? transparent : -1)
        : source.remap(&offered);
    if (image.isNull())
        return {};
    for (int y = 0; y < image.height() && first > 0; ++y) {
        uchar *row = image.scanLine(y);
        std::transform(row, row + image.width(), row, [first](uchar index) { return uchar(first + index); });
    }
    image.setColorTable(palette.colourTable());
    return image;
}
