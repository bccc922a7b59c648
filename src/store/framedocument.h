#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QLatin1String>
#include <QSize>

class Animation;
struct DocumentReader;

/// The frames of tile animations and sprite animations, which differ in the name of the cell array.
/// A frame object has an "id" and, row by row in one flat array, the cells.
namespace FrameDocument {

enum class FrameIds {
    Restored, ///< frames get the ids that they were written with
    New
};

[[nodiscard]] QJsonArray write(const Animation &animation, QLatin1String cellsKey);

/// The size of an animation as its object gives it under "width" and "height", or fallback (for each side)
/// where it is missing, or where the frames would need more cells than a document may imply.
[[nodiscard]] QSize readSize(DocumentReader &reader, const QJsonObject &object, const QJsonArray &frames,
                             QLatin1String cellsKey, int fallback);

/// Appends the frames to an animation whose size has been set. Cells that are missing stay zero.
void read(Animation &animation, const QJsonArray &frames, QLatin1String cellsKey, FrameIds ids);

} // namespace FrameDocument
