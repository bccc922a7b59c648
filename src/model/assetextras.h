#pragma once

class Project;

/// Drops what a project's extras keep for tile sets and palettes that are gone, of the sections that have a member for
/// the id of each: "stamps", "terrains" and "colourCycles".
///
/// To be called when the extras are written: until then, nothing of a project is forgotten.
void dropExtrasOfGoneAssets(Project &project);
