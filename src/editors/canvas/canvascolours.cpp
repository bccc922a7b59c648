#include "editors/canvas/canvascolours.h"

#include "editors/canvas/pictureimport.h"

QImage CanvasColours::indexed(const QImage &picture, const Palette *palette) const
{
    if (!palette || countOfPictures == 0)
        return {};
    return PictureImport::indexed(picture, *palette, firstOfPictures, countOfPictures);
}
