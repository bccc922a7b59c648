#pragma once

#include <QDir>
#include <QString>

class Project;

/// Fills an empty project with a small game from a folder of pictures: a level of tiles with animated
/// blocks, sprites with their animations, and a title screen.
///
/// The pictures are "level.png", "tiles.png" (the tiles row by row, a row for each way in which the game
/// treats them), "blocks.png" (the frames of the animated blocks), "sprites.png" and "title.png". Ids follow
/// from names, so that the same pictures always make the same project. False, with the reason in error,
/// when a picture is missing or does not fit.
[[nodiscard]] bool buildSample(Project &project, const QDir &pictures, QString &error);
