#include "editors/map/mapedit.h"

#include "undo/mapeditcommand.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace MapEditor {

namespace {

using Placements = AnimatedBlocks::State;

/// The placements of the first list that the second one does not have.
Placements missingIn(const Placements &placements, const Placements &others)
{
    Placements missing;
    if (placements == others)
        return missing;
    std::copy_if(placements.cbegin(), placements.cend(), std::back_inserter(missing),
                 [&others](const AnimationProperties::State &placement) { return !others.contains(placement); });
    return missing;
}

bool anyIntersects(const Placements &placements, const QRect &area)
{
    return std::any_of(placements.cbegin(), placements.cend(), [&area](const AnimationProperties::State &placement) {
        return placement.area.intersects(area);
    });
}

QRect boundsOf(const TileMap::Rows &rows)
{
    return {0, 0, rows.isEmpty() ? 0 : int(rows.first().size()), int(rows.size())};
}

/// Animations that stood on the map all the while may have played on. The frames that they show now are put
/// into the content from before the edit, so that they are no difference.
void adoptFrames(Map::Snapshot &before, const Map::Snapshot &after)
{
    const QRect bounds = boundsOf(after.objects);
    if (before.objects.constData() == after.objects.constData() || boundsOf(before.objects) != bounds)
        return;
    const Placements edited =
        missingIn(before.placements, after.placements) + missingIn(after.placements, before.placements);
    for (const AnimationProperties::State &placement : after.placements) {
        if (anyIntersects(edited, placement.area))
            continue;
        const QRect area = placement.area & bounds;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            const auto first = after.objects[y].cbegin() + area.left();
            const auto last = first + area.width();
            if (!std::equal(first, last, std::as_const(before.objects)[y].cbegin() + area.left()))
                std::copy(first, last, before.objects[y].begin() + area.left());
        }
    }
}

} // namespace

void MapEdit::setMap(const QPointer<Map> &map)
{
    abandon();
    m_map = map;
}

void MapEdit::begin()
{
    if (m_depth++ == 0 && m_map)
        m_before = m_map->snapshot();
}

void MapEdit::end(const QString &text)
{
    if (m_depth == 0 || --m_depth > 0)
        return;
    if (m_map && m_stack) {
        const Map::Snapshot after = m_map->snapshot();
        adoptFrames(m_before, after);
        if (m_before != after)
            m_stack->push(new MapEditCommand(text, m_map, m_before, after)); // the stack owns it
    }
    abandon();
}

void MapEdit::endAll(const QString &text)
{
    m_depth = std::min(m_depth, 1);
    end(text);
}

void MapEdit::abandon()
{
    m_before = {};
    m_depth = 0;
}

void MapEdit::push(QUndoCommand *step)
{
    std::unique_ptr<QUndoCommand> owned(step);
    if (step && m_stack)
        m_stack->push(owned.release());
}

void MapEdit::run(const QString &text, const std::function<void(Map &)> &operation)
{
    if (!m_map)
        return;
    begin();
    operation(*m_map);
    end(text);
}

} // namespace MapEditor
