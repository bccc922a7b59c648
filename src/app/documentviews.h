#pragma once

class BlockSelectorWindow;
class DocumentTabView;
class MapSpritesWindow;
class MenuBar;
class PaletteWindow;
class PreferencesDialog;
class ProjectWindow;
class SpriteWindow;
class TilePickerTool;
class TileWindow;

namespace MapEditor {
class ToolBar;
}

/// The parts of the main window that show documents. It owns none of them.
struct DocumentViews
{
    DocumentTabView *tabs = nullptr;
    ProjectWindow *project = nullptr;
    PaletteWindow *palette = nullptr;
    TileWindow *tileEditor = nullptr;
    SpriteWindow *spriteEditor = nullptr;
    TilePickerTool *tilePicker = nullptr;
    BlockSelectorWindow *mapObjects = nullptr;
    MapSpritesWindow *mapSprites = nullptr;
    MapEditor::ToolBar *mapToolBar = nullptr;
    MenuBar *menuBar = nullptr;
    PreferencesDialog *preferences = nullptr;
};
