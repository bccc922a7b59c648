#pragma once

#include "ui/toolpalette.h"

namespace MapEditor {

/// The tools and actions beside a map, with their shortcuts.
class MapToolPalette : public ToolPalette
{
    Q_OBJECT

public:
    explicit MapToolPalette(QWidget *parent = nullptr);

    /// Adds the tools that not every map editor has.
    void addPaintTools();
};

} // namespace MapEditor
