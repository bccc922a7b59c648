#pragma once

#include "ui/enums.h"

#include <QImage>

class Palette;

/// The colours that a canvas paints with, and how its pixels relate to the palette.
struct CanvasColours
{
    /// Palette indices of the foreground and the background.
    int ink = 1;
    int paper = 0;
    Quenmora::Ui::ImageType imageType = Quenmora::Ui::Full256;
    /// The entries of the palette that other programs' pictures may take; none until the canvas is told.
    int firstOfPictures = 0;
    int countOfPictures = 0;

    /// The first index of bank offset (1–16) of 16 colours. Low bits of any other number are taken as they are.
    static int baseOf(int offset) { return ((offset - 1) * 16) & 0xF0; }
    /// Moves ink and paper into the bank that starts at base.
    void moveToBank(int base)
    {
        ink = ink % 16 + base;
        paper = paper % 16 + base;
    }

    /// A picture in the entries that pictures may take; null when there are none.
    QImage indexed(const QImage &picture, const Palette *palette) const;
};
