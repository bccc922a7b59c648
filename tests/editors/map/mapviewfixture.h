#pragma once

#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "editors/map/maptoolpalette.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/tileset.h"

#include <QTest>
#include <QUndoStack>

/// A view of a map of 20 × 16 cells with a sprite at pixel (40, 40) and a block animation of 2 × 1 cells.
struct MapViewFixture
{
    Project project;
    QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, QStringLiteral("Colours"));
    QPointer<TileSet> tiles = project.createTileSet(QStringLiteral("Tiles"), palette->id(), 16);
    QPointer<MapObjects> blocks = project.createBlockList(QStringLiteral("Blocks"), tiles->id());
    QPointer<TileAnimation> animation = blocks->createBoundTileAnimation(QStringLiteral("Torch"));
    QPointer<SpriteBank> bank = project.createSpriteBank(Quenmora::EightBit, QStringLiteral("Bank"), palette->id());
    QPointer<Map> map = project.createMap(QStringLiteral("Level"), tiles->id(), {20, 16});
    QUndoStack stack;
    MapEditor::View view{map};
    MapEditor::MapGrid *grid = view.grid();
    MapEditor::MapToolPalette *toolPalette = view.toolPalette();

    MapViewFixture()
    {
        animation->setSize({2, 1});
        for (int frame = 0; frame < 2; ++frame)
            animation->addFrame()->setIndex(0, 0, 1 + frame);
        animation->setDelay(1);
        map->addSprite(sprite({40, 40}));
        view.setUndoStack(&stack);
        view.setSpriteBanks({bank});
        view.resize(500, 400);
        view.show();
        view.activateWindow(); // shortcuts work in the active window
        static_cast<void>(QTest::qWaitForWindowActive(&view));
        grid->setFocus();
    }

    Map::PlacedSprite sprite(QPoint at) const
    {
        Map::PlacedSprite placed;
        placed.bank = bank->id();
        placed.x = at.x();
        placed.y = at.y();
        return placed;
    }

    QAction *action(Quenmora::Ui::ToolButton button) const { return toolPalette->action(button); }
    QPoint cell(int x, int y) const { return grid->viewport().rectOfCells({x, y, 1, 1}).center(); }
    /// Clicks on the sprite with the sprite tool, which opens its properties.
    void clickSprite()
    {
        grid->setMode(Quenmora::Ui::PlaceSprite);
        QTest::mouseClick(grid, Qt::LeftButton, Qt::NoModifier, grid->spriteRect(0).center());
    }
};

/// The widgets inside another one that have a tool tip.
template <typename Widget>
QList<Widget *> withToolTip(const QWidget &parent, const QString &toolTip)
{
    QList<Widget *> found = parent.findChildren<Widget *>();
    found.removeIf([&toolTip](const Widget *widget) { return widget->toolTip() != toolTip; });
    return found;
}
