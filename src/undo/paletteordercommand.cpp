#include "undo/paletteordercommand.h"

#include "model/palette.h"
#include "model/project.h"
#include "model/projectextras.h"
#include "undo/reorderedcycles.h"

#include <utility>

PaletteOrderCommand::PaletteOrderCommand(const QString &text, Project *project, Palette *palette,
                                         const PaletteOrder &order)
    : QUndoCommand(text)
    , m_project(project)
    , m_palette(palette)
    , m_order(order)
{ }

PaletteOrderCommand::~PaletteOrderCommand() = default;

void PaletteOrderCommand::undo()
{
    apply(m_order.inverse());
    moveCycles(m_order.inverse(), std::exchange(m_lost, {}));
}

void PaletteOrderCommand::redo()
{
    apply(m_order);
    m_lost = moveCycles(m_order, {});
}

ColourCycles::List PaletteOrderCommand::moveCycles(const PaletteOrder &order, const ColourCycles::List &others) const
{
    if (!m_project || !m_palette)
        return {};
    ProjectExtras &extras = *m_project->extras();
    const ColourCycles::List before = ColourCycles::of(extras, m_palette->id());
    const ReorderedCycles moved = ReorderedCycles::of(before, order);
    const ColourCycles::List after = ColourCycles::sound(moved.kept + others);
    if (after != before)
        ColourCycles::set(extras, m_palette->id(), after);
    return moved.lost;
}

void PaletteOrderCommand::apply(const PaletteOrder &order) const
{
    if (m_project && m_palette)
        PaletteUsers(*m_project, *m_palette).reorder(order);
}
