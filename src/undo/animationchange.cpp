#include "undo/animationchange.h"

#include "undo/gridchange.h"
#include "undo/listchange.h"

#include <QHash>

#include <utility>

namespace {

using Frame = Animation::State::Frame;

QList<QUuid> idsOf(const QList<Frame> &frames)
{
    QList<QUuid> ids;
    for (const Frame &frame : frames)
        ids.append(frame.id);
    return ids;
}

QHash<QUuid, AnimationFrame::Cells> byId(const QList<Frame> &frames)
{
    QHash<QUuid, AnimationFrame::Cells> cells;
    for (const Frame &frame : frames)
        cells.insert(frame.id, frame.cells);
    return cells;
}

/// Gives a frame that another size was not applied to the size of its animation.
void resize(AnimationFrame::Cells &cells, QSize size)
{
    cells.resize(size.height());
    for (QList<AnimationFrame::Cell> &row : cells)
        row.resize(size.width());
}

} // namespace

Animation::State changed(const Animation::State &now, const Animation::State &from, const Animation::State &to)
{
    if (now == from)
        return to;
    Animation::State result = now;
    result.size = now.size == from.size ? to.size : now.size;
    result.delay = now.delay == from.delay ? to.delay : now.delay;

    QList<QUuid> ids = idsOf(now.frames);
    ListChange<QUuid>(idsOf(from.frames), idsOf(to.frames)).apply(EditSide::After, ids);
    const auto present = byId(now.frames);
    const auto before = byId(from.frames);
    const auto after = byId(to.frames);
    const bool resized = now.size != from.size || from.size != to.size;
    result.frames.clear();
    for (const QUuid &id : std::as_const(ids)) {
        AnimationFrame::Cells cells = present.value(id, after.value(id));
        if (present.contains(id) && before.contains(id) && after.contains(id))
            FrameChange(before.value(id), after.value(id)).applyWhereUntouched(EditSide::After, cells);
        if (resized)
            resize(cells, result.size);
        result.frames.append({id, cells});
    }
    return result;
}

TileAnimation::State changed(const TileAnimation::State &now, const TileAnimation::State &from,
                             const TileAnimation::State &to)
{
    const Animation::State base =
        changed(static_cast<const Animation::State &>(now), static_cast<const Animation::State &>(from),
                static_cast<const Animation::State &>(to));
    return {base, now.type == from.type ? to.type : now.type};
}
