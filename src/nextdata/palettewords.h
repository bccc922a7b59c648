#pragma once

#include <QByteArray>
#include <QList>

class Palette;

namespace NextData {

/// Entries of a palette as the hardware takes them, two bytes each: RRRGGGBB, P000000B.
[[nodiscard]] QByteArray paletteWords(const Palette &palette, int first, int count);

/// The words of such entries; half a word at the end is left out.
[[nodiscard]] QList<quint16> wordsOf(const QByteArray &bytes);

/// The words of entries of one byte RRRGGGBB. The machine makes the third bit of blue of the other two: it is set where
/// one of them is.
[[nodiscard]] QList<quint16> wordsOfColourBytes(const QByteArray &bytes);

} // namespace NextData
