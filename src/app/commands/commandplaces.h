#pragma once

#include "ui/commands.h"

#include <QString>

/// Where commands are found, and where their keys count.
namespace CommandPlaces {

/// The menu that has it, such as "Tiles ▸ Import", or what it belongs to, such as "Map Editor".
[[nodiscard]] QString placeOf(const Commands::Command &command);

/// In the order of the menus, and then of the editors.
[[nodiscard]] QList<Commands::Command> sorted(QList<Commands::Command> commands);

/// Whether one key press could mean both: one of them counts in the whole window, they belong to the same editor, or
/// one is in a part of the other's editor.
[[nodiscard]] bool canMeet(const Commands::Command &a, const Commands::Command &b);

} // namespace CommandPlaces
