#pragma once

#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "editors/map/maptoolpalette.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/tileset.h"
#include "support/modeltools.h"

#include <QtTest>
#include <QtWidgets>

#include <cstring>

using Signals = QList<QVariantList>; ///< what a spy saw

/// A map of 20 × 16 cells with both layers shown, and what may be placed on it.
///
/// Tile n is filled with pixel value n, and tile 3 has palette offset 2. The block set has an animation of 3 × 2
/// cells with two frames of a tick each, one full of tile 5 and one of tile 6. The bank has four sprites, number n
/// filled with colour n, and an animation of 2 × 1 sprites.
struct MapAssets
{
    Project project;
    QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, "Colours");
    QPointer<TileSet> tiles = project.createTileSet("Tiles", palette->id(), 16);
    QPointer<MapObjects> blocks = project.createBlockList("Blocks", tiles->id());
    QPointer<TileAnimation> animation = blocks->createBoundTileAnimation("Torch");
    QPointer<SpriteBank> bank = project.createSpriteBank(Quenmora::EightBit, "Bank", palette->id());
    QPointer<SpriteAnim> run = bank->newAnimation();
    QPointer<Map> map = project.createMap("Level", tiles->id(), {20, 16});
    QUndoStack stack;

    MapAssets()
    {
        for (int i = 0; i < tiles->count(); ++i) {
            QImage tile = plainImage({8, 8}, i);
            tile.setColorTable(palette->colourTable());
            tiles->setTileImage(i, tile);
        }
        tiles->setTileOffset(3, 2);
        animation->setSize({3, 2});
        animation->setDelay(1);
        for (const int tile : {5, 6}) {
            const QPointer<AnimationFrame> frame = animation->addFrame();
            for (int cell = 0; cell < 6; ++cell)
                frame->setIndex(cell / 3, cell % 3, tile);
        }
        QImage sprites = plainImage({16, 64}, 0);
        for (int y = 0; y < 64; ++y)
            std::memset(sprites.scanLine(y), y / 16, 16);
        bank->setWholeImage(sprites);
        run->setSize({2, 1});
        run->frame(0)->setIndex(0, 0, 1);
        run->frame(0)->setIndex(0, 1, 2);
        map->objectLayer()->setVisible(true);
    }

    TileMap::TileData tile(int x, int y) const { return map->tileLayer()->cellAt({x, y}); }
    TileMap::TileData object(int x, int y) const { return map->objectLayer()->cellAt({x, y}); }
    /// The texts of the undo steps.
    QString steps() const
    {
        QStringList texts;
        for (int i = 0; i < stack.count(); ++i)
            texts.append(stack.text(i));
        return texts.join('|');
    }
    /// A placed sprite that shows one sprite of the bank.
    Map::PlacedSprite sprite(int index, QPoint at) const
    {
        return {.bank = bank->id(), .animation = {}, .sprite = index, .x = at.x(), .y = at.y(), .name = {}};
    }
    /// A placed sprite that shows the animation of the bank.
    Map::PlacedSprite animated(QPoint at) const
    {
        return {.bank = bank->id(), .animation = run->id(), .sprite = -1, .x = at.x(), .y = at.y(), .name = {}};
    }
};

/// The map in a grid that shows all of it with 16 screen pixels a cell.
struct MapGridFixture : MapAssets
{
    static constexpr int Cell = 16;
    MapEditor::MapGrid grid;

    MapGridFixture()
    {
        grid.resize(map->size() * Cell);
        grid.setUndoStack(&stack);
        grid.setSpriteBanks({bank});
        grid.setMap(map);
        grid.setBaseSize(Cell / 4);
        grid.show();
    }

    /// The colour of a palette entry on the screen.
    QColor colour(int index) const { return QColor(palette->colourTable().at(index)); }
    QColor screenColour(QPoint point) { return grid.grab().toImage().pixelColor(point); }
    /// The middle of a cell in the widget.
    static QPoint at(int x, int y) { return {x * Cell + Cell / 2, y * Cell + Cell / 2}; }
    /// The widget point of a map pixel.
    static QPoint pixel(int x, int y) { return {x * Cell / 8, y * Cell / 8}; }

    void press(QPoint point, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mousePress(&grid, button, modifiers, point);
    }
    void move(QPoint point, Qt::KeyboardModifiers modifiers = {})
    {
        QMouseEvent event(QEvent::MouseMove, point, grid.mapToGlobal(point), Qt::NoButton, grid.pointer().held,
                          modifiers);
        QApplication::sendEvent(&grid, &event);
    }
    void release(QPoint point, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseRelease(&grid, button, {}, point);
    }
    void drag(const QList<QPoint> &points, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {})
    {
        press(points.first(), button, keys);
        for (const QPoint &point : points.mid(1))
            move(point);
        release(points.last(), button);
    }
    void click(QPoint point, Qt::MouseButton button = Qt::LeftButton) { drag({point}, button); }
};

/// The map with a sprite at pixel (40, 40) in a view that has the keyboard.
struct MapViewFixture : MapAssets
{
    MapEditor::View view{map};
    MapEditor::MapGrid *grid = view.grid();
    MapEditor::MapToolPalette *toolPalette = view.toolPalette();

    MapViewFixture()
    {
        map->addSprite(sprite(0, {40, 40}));
        view.setUndoStack(&stack);
        view.setSpriteBanks({bank});
        view.resize(500, 400);
        view.show();
        view.activateWindow(); // shortcuts work in the active window
        static_cast<void>(QTest::qWaitForWindowActive(&view));
        grid->setFocus();
    }

    QAction *action(Quenmora::Ui::ToolButton button) const { return toolPalette->action(button); }
    QPoint cell(int x, int y) const { return grid->viewport().rectOfCells({x, y, 1, 1}).center(); }
    /// Clicks on the sprite with the sprite tool, which opens its properties.
    void clickSprite()
    {
        grid->setMode(Quenmora::Ui::PlaceSprite);
        QTest::mouseClick(grid, Qt::LeftButton, {}, grid->spriteRect(0).center());
    }
};
