#pragma once

#include <QJsonObject>
#include <QLatin1String>

class Animation;
struct DocumentReader;

/// What the documents of tile animations and sprite animations have in common: "id", "name", "width", "height",
/// "delay" and "frames". A frame object has an "id" and, row by row in one flat array under a key that each kind
/// has of its own, the cells.
namespace AnimationDocument {

enum class FrameIds {
    Restored, ///< frames get the ids that they were written with
    New
};

[[nodiscard]] QJsonObject write(const Animation &animation, QLatin1String cellsKey);

/// Gives an animation that has no frames yet its size, delay and frames. Cells that are missing stay zero. A width or
/// height that is missing is fallbackSide, and so are both where the frames would need more cells than a document
/// may imply.
void read(DocumentReader &reader, Animation &animation, const QJsonObject &object, QLatin1String cellsKey,
          int fallbackSide, FrameIds ids);

} // namespace AnimationDocument
