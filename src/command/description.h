#pragma once

class Project;
class QTextStream;

/// Writes everything that a project holds as text for comparing two versions of it: one fact a line, so that what
/// differs between two texts is what differs between the projects. Assets stand at the beginning of a line, in the
/// order in which they were made, and what belongs to them is indented.
///
///     tiles "Level"
///       palette "Level"
///       tile 1 offset 3 attributes $0F value 0
///         00011000                              a row of pixels, a hexadecimal digit each
///         0*8                                   a row of equal pixels
///     map "Level"
///       size 64 22
///       0/1*60 12rm/3 . . .                     a row of cells: tile, transforms, palette offset
///
/// Ids stand only where a name would not tell which asset is meant. Which documents are open is no fact of the game.
void describe(const Project &project, QTextStream &out);
