#pragma once

#include "app/imports/mapimport.h"

class Project;
class QWidget;

/// Makes a palette, a tile set and a map of the four files of a Next data set, of which filePath is any: the
/// base name with ".nxp" (palette), ".nxt" (tiles), ".nxm" (map) and ".nxb" (blocks of the map). What was
/// made before something failed stays in the project.
[[nodiscard]] MapImport importNextData(Project &project, const QString &filePath, QWidget *parent);
