#pragma once

#include "app/imports/mapimport.h"

class Project;
class QWidget;

/// Makes a palette, a tile set and a map of a picture, cut into tiles that are stored once. The window in
/// front shows the progress. Nothing is made of a picture that cannot be used; one with more colours than tiles can
/// show is imported as far as they go, and the failure says how many tiles lost some.
[[nodiscard]] MapImport importPicture(Project &project, const QString &filePath, QWidget *parent);
