#pragma once

#include "store/deflateformat.h"

#include <QtGlobal>

#include <vector>

/// Other tokens for what some tokens of a deflate stream say, which take fewer bits.
///
/// A compressor that is fast takes the longest match that it finds. But content such as cells of a map repeats at a few
/// distances all the time, which have short codes: a match at one of those is often cheaper than a longer one
/// elsewhere. So this looks for the way of the fewest bits among the tokens that were found and all matches at the
/// distances that they use most.
///
/// The content is what the tokens say, with so many bytes before it that matches may copy from.
[[nodiscard]] std::vector<DeflateToken> cheapestTokens(const std::vector<DeflateToken> &found, const char *content,
                                                       qsizetype before);
