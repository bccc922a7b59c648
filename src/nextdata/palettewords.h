#pragma once

#include <QByteArray>

class Palette;

namespace NextData {

/// Entries of a palette as the hardware takes them, two bytes each: RRRGGGBB, P000000B.
[[nodiscard]] QByteArray paletteWords(const Palette &palette, int first, int count);

} // namespace NextData
