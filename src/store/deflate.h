#pragma once

#include <QtGlobal>

/// Deflate, which packs the members of an archive and the pixels of a PNG, cannot pack more than this many bytes into
/// one: what announces more is damaged, or wants to fill the memory.
constexpr qint64 MaxDeflateRatio = 1032;
