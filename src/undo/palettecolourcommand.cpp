#include "undo/palettecolourcommand.h"

#include "model/palette.h"

#include <QCoreApplication>

PaletteColourCommand::PaletteColourCommand(Palette *palette, int index, quint16 before, quint16 after)
    : QUndoCommand(QCoreApplication::translate("PaletteColourCommand", "Colour"))
    , m_palette(palette)
    , m_before{{index, before}}
    , m_after{{index, after}}
    , m_made(PaletteHistory::of(*palette).order())
{ }

PaletteColourCommand::~PaletteColourCommand() = default;

void PaletteColourCommand::undo()
{
    apply(m_before);
    m_applied = false;
}

void PaletteColourCommand::redo()
{
    if (m_applied)
        return;
    apply(m_after);
    m_applied = true;
}

bool PaletteColourCommand::mergeWith(const QUndoCommand *other)
{
    const auto *newer = dynamic_cast<const PaletteColourCommand *>(other);
    if (!newer || newer->m_palette != m_palette || newer->m_timestamp - m_timestamp > MergeInterval
        || newer->m_made != m_made)
        return false;
    for (auto entry = newer->m_after.cbegin(); entry != newer->m_after.cend(); ++entry) {
        if (!m_before.contains(entry.key()))
            m_before.insert(entry.key(), newer->m_before.value(entry.key()));
        m_after.insert(entry.key(), entry.value());
    }
    m_timestamp = newer->m_timestamp;
    return true;
}

void PaletteColourCommand::apply(const Words &words) const
{
    if (!m_palette)
        return;
    const PaletteOrder since = PaletteOrder::since(m_made, PaletteHistory::of(*m_palette).order());
    for (auto entry = words.cbegin(); entry != words.cend(); ++entry)
        m_palette->setRawColour(since(entry.key()), entry.value());
}
