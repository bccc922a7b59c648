#include "editors/map/maptoolpalette.h"

namespace MapEditor {

MapToolPalette::MapToolPalette(QWidget *parent) : ToolPalette(Qt::Vertical, parent)
{
    using namespace Quenmora::Ui;
    using Keys = QList<QKeySequence>;
    nameCommands(QStringLiteral("mapEditor"));
    const auto add = [this](ToolButton button, const Keys &shortcuts = {}) {
        Entry entry = entryOf(button);
        entry.shortcuts = shortcuts;
        addEntry(entry);
    };
    // how the next cells are painted: states here, not commands
    const auto addOrientation = [this](ToolButton button, const QString &text, const QKeySequence &shortcut) {
        addEntry({button, entryOf(button).icon, text, Toggle, {shortcut}});
    };
    add(Draw, {Qt::Key_D});
    add(Select, {Qt::Key_S});
    add(Pick, {Qt::Key_P});
    add(PlaceAnim);
    add(PlaceSprite);
    addOrientation(RotateCW, tr("Rotated"), Qt::CTRL | Qt::Key_R);
    addOrientation(Flip, tr("Flipped"), Qt::SHIFT | Qt::Key_F);
    addOrientation(Mirror, tr("Mirrored"), Qt::SHIFT | Qt::Key_M);
    add(Grid, {Qt::Key_G});
    add(MoveUp, {Qt::Key_Up});
    add(MoveDown, {Qt::Key_Down});
    add(MoveLeft, {Qt::Key_Left});
    add(MoveRight, {Qt::Key_Right});
    add(ZoomOut, {Qt::Key_Minus});
    add(ZoomIn, {Qt::Key_Equal, Qt::Key_Plus});
    add(ExpandToFit);
    add(ToggleViewport);
    add(AnimPlay);
    add(PaintPalette);
    setMode(Draw);
}

void MapToolPalette::addPaintTools()
{
    using namespace Quenmora::Ui;
    const auto add = [this](ToolButton button, const QString &text, const QKeySequence &shortcut) {
        Entry entry = entryOf(button);
        entry.text = text;
        entry.shortcuts = {shortcut};
        addEntry(entry);
    };
    add(RandomTiles, tr("Random tiles of the stamp"), Qt::Key_X);
    add(Fill, tr("Bucket fill"), Qt::Key_F);
    add(Line, tr("Line"), Qt::Key_L);
    add(Rectangle, tr("Rectangle"), Qt::Key_R);
    add(RectangleFill, tr("Filled rectangle"), Qt::SHIFT | Qt::Key_R);
    add(Circle, tr("Ellipse"), Qt::Key_E);
    add(CircleFill, tr("Filled ellipse"), Qt::SHIFT | Qt::Key_E);
    add(PaintTerrain, tr("Paint terrain"), Qt::Key_T);
}

} // namespace MapEditor
