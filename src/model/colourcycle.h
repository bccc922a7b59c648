#pragma once

#include "model/palette.h"

#include <QList>
#include <QString>
#include <QUuid>

class ProjectExtras;

/// A range of a palette's entries whose colours go round: each step, every colour moves to the next entry, and the one
/// that leaves the range at one end comes in at the other. Water flows and fires burn without a picture being changed.
struct ColourCycle
{
    static constexpr int FrameTime = 20; ///< milliseconds: a frame of the machine's screen
    static constexpr int MaxFrames = 255;

    int first = 0; ///< 0–255, as last, which is behind it
    int last = 0;
    int frames = 5; ///< from step to step, 1–MaxFrames
    bool backwards = false; ///< colours move to lower entries

    [[nodiscard]] bool isValid() const;
    /// Whether they have entries in common.
    [[nodiscard]] bool overlaps(const ColourCycle &other) const { return first <= other.last && other.first <= last; }

    bool operator==(const ColourCycle &) const = default;
};

/// The ranges of palettes, which the project's extras keep: the section "colourCycles" has a member for the id of each
/// palette that has some.
namespace ColourCycles {

/// In the order of their entries, none of which is in two of them.
using List = QList<ColourCycle>;

inline const QString Section = QStringLiteral("colourCycles");

/// Those of the ranges that can be, in order; of two that overlap, the first one given.
[[nodiscard]] List sound(const List &cycles);

/// What is kept for a palette.
[[nodiscard]] List of(const ProjectExtras &extras, const QUuid &palette);
void set(ProjectExtras &extras, const QUuid &palette, const List &cycles);

/// Whose colours entries show so many frames after the beginning.
[[nodiscard]] Palette::ShownEntries shownEntries(const List &cycles, qint64 frame);
/// The most frames that pass between any two steps.
[[nodiscard]] int commonFrames(const List &cycles);

} // namespace ColourCycles
