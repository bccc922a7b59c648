#pragma once

#include <QString>

/// Names that people give to projects, assets, animations and placed sprites.
namespace AssetName {

/// The longest name that is read or typed, in UTF-16 units: far beyond what anybody means to type, and short enough
/// that every view can lay it out.
constexpr int MaxLength = 1024;

/// The name, cut where it is too long; a pair of surrogates is not cut apart.
[[nodiscard]] inline QString cut(const QString &name)
{
    if (name.size() <= MaxLength)
        return name;
    return name.left(name.at(MaxLength - 1).isHighSurrogate() ? MaxLength - 1 : MaxLength);
}

} // namespace AssetName
