#pragma once

#include "undo/editclock.h"
#include "undo/paletteorder.h"

#include <QMap>
#include <QPointer>
#include <QUndoCommand>

class Palette;

/// Undo step of edited colours of one palette.
///
/// The colours have been set when the command is pushed, so the first redo does nothing. Edits that
/// follow one another within MergeInterval gather in one step; the limit slides, it counts from the
/// edit merged last, so that a drag over the colour sliders is one step.
class PaletteColourCommand final : public QUndoCommand
{
public:
    static constexpr int Id = 1001;
    /// Milliseconds.
    static constexpr qint64 MergeInterval = 400;

    /// The entry at index (0–255) changed from the colour word before to after.
    PaletteColourCommand(Palette *palette, int index, quint16 before, quint16 after);
    ~PaletteColourCommand() override;

    void undo() override;
    void redo() override;
    [[nodiscard]] int id() const override { return Id; }
    bool mergeWith(const QUndoCommand *other) override;

private:
    /// Colour words by palette index.
    using Words = QMap<int, quint16>;

    void apply(const Words &words) const;

    QPointer<Palette> m_palette;
    Words m_before;
    Words m_after;
    PaletteOrder m_made; ///< when these were the numbers of the entries
    qint64 m_timestamp = EditClock::now();
    bool m_applied = true;
};
