#include "editors/canvas/pictureimport.h"

#include "model/nximage.h"
#include "model/palette.h"

#include <algorithm>

QImage PictureImport::indexed(const QImage &picture, const Palette &palette, int first, int count, QSize scaledTo)
{
    if (picture.isNull())
        return {};
    NxImage source;
    source.setImage(scaledTo.isValid() ? picture.scaled(scaledTo, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                       : picture);
    // The entries offered come first; the rest repeat the first of them, which is found before them.
    Palette offered;
    for (int index = 0; index < Palette::Size; ++index)
        offered.storeRawColour(index, palette.rawColour(index < count ? first + index : first));
    QImage image = source.remap(&offered);
    if (image.isNull())
        return {};
    for (int y = 0; y < image.height() && first > 0; ++y) {
        uchar *row = image.scanLine(y);
        std::transform(row, row + image.width(), row, [first](uchar index) { return uchar(first + index); });
    }
    image.setColorTable(palette.colourTable());
    return image;
}
