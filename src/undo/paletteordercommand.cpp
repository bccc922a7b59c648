#include "undo/paletteordercommand.h"

#include "model/palette.h"
#include "model/project.h"

PaletteOrderCommand::PaletteOrderCommand(const QString &text, Project *project, Palette *palette,
                                         const PaletteOrder &order)
    : QUndoCommand(text)
    , m_project(project)
    , m_palette(palette)
    , m_order(order)
{ }

PaletteOrderCommand::~PaletteOrderCommand() = default;

void PaletteOrderCommand::apply(const PaletteOrder &order) const
{
    if (m_project && m_palette)
        PaletteUsers(*m_project, *m_palette).reorder(order);
}
