#include "editors/canvas/pictureimport.h"

#include "model/nximage.h"
#include "model/palette.h"

QImage PictureImport::indexed(const QImage &picture, const Palette &palette, int colourCount, QSize scaledTo)
{
    if (picture.isNull())
        return {};
    NxImage source;
    source.setImage(scaledTo.isValid() ? picture.scaled(scaledTo, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                                       : picture);
    // Entries that are not offered repeat the first one, which is found before them.
    Palette offered;
    offered.copyColours(palette);
    for (int index = colourCount; index < Palette::Size; ++index)
        offered.storeRawColour(index, palette.rawColour(0));
    QImage image = source.remap(&offered);
    if (!image.isNull())
        image.setColorTable(palette.colourTable());
    return image;
}
