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
    moveCycles(m_order.inverse());
}

void PaletteOrderCommand::redo()
{
    apply(m_order);
    moveCycles(m_order);
}

void PaletteOrderCommand::moveCycles(const PaletteOrder &order)
{
    if (!m_project || !m_palette)
        return;
    ProjectExtras &extras = *m_project->extras();
    const ColourCycles::List before = ColourCycles::of(extras, m_palette->id());
    const ReorderedCycles moved = ReorderedCycles::of(before, order);
    const ColourCycles::List after = ColourCycles::sound(moved.kept + std::exchange(m_lost, moved.lost));
    if (after != before)
        ColourCycles::set(extras, m_palette->id(), after);
}

void PaletteOrderCommand::apply(const PaletteOrder &order) const
{
    if (m_project && m_palette)
        PaletteUsers(*m_project, *m_palette).reorder(order);
}
