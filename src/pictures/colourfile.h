#pragma once

#include "model/result.h"

#include <QByteArray>
#include <QList>
#include <QRgb>
#include <QString>

/// The colours in a palette file of other programs, told by its content whatever its name says.
///
///   .gpl   "GIMP Palette", then lines of red, green, blue (and alpha where it says "Channels: RGBA") and a name
///   .pal   "JASC-PAL", "0100", the count, then as many lines of red, green, blue
///   .hex   a line of six hexadecimal digits a colour
///   .act   256 times red, green, blue; in 772 bytes also the count and the transparent index, high byte first
///
/// The raw palettes of the machine, which say nothing of themselves, are not among them.
struct ColourFile
{
    /// Files of more bytes are refused.
    static constexpr qint64 MaxBytes = 1 << 20;

    QList<QRgb> colours; ///< at least one
    int transparentIndex = -1; ///< of a colour, or -1
    QString name; ///< of the palette, where the file says one

    /// Whether a file begins as the forms of text do. It may still be damaged. An .act file says nothing of itself:
    /// ZX Spectrum fonts have as many bytes.
    [[nodiscard]] static bool recognises(const QByteArray &start);

    [[nodiscard]] static Result<ColourFile> read(const QString &fileName);
    [[nodiscard]] static Result<ColourFile> read(const QByteArray &bytes);
};
