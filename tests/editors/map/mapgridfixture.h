#pragma once

#include "editors/map/mapgrid.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/tileset.h"

#include <QApplication>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QUndoStack>

#include <cstring>

/// A map of 20 × 16 cells in a grid that shows all of it with 16 screen pixels a cell.
///
/// Tile n is filled with pixel value n, and tile 3 has palette offset 2. The block set has an animation of 3 × 2
/// cells; the bank has four sprites, number n filled with colour n, and an animation of 2 × 1 sprites.
struct MapGridFixture
{
    static constexpr int Cell = 16;

    Project project;
    QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, QStringLiteral("Colours"));
    QPointer<TileSet> tiles = project.createTileSet(QStringLiteral("Tiles"), palette->id(), 16);
    QPointer<MapObjects> blocks = project.createBlockList(QStringLiteral("Blocks"), tiles->id());
    QPointer<TileAnimation> animation = blocks->createBoundTileAnimation(QStringLiteral("Torch"));
    QPointer<SpriteBank> bank = project.createSpriteBank(Quenmora::EightBit, QStringLiteral("Bank"), palette->id());
    QPointer<SpriteAnim> run = bank->newAnimation();
    QPointer<Map> map = project.createMap(QStringLiteral("Level"), tiles->id(), {20, 16});
    QUndoStack stack;
    MapEditor::MapGrid grid;

    MapGridFixture()
    {
        for (int i = 0; i < tiles->count(); ++i)
            tiles->setTileImage(i, filled({8, 8}, i));
        tiles->setTileOffset(3, 2);
        animation->setSize({3, 2});
        for (int tile = 5; tile <= 6; ++tile) {
            animation->addFrame();
            for (int cell = 0; cell < 6; ++cell)
                animation->frame(tile - 5)->setIndex(cell / 3, cell % 3, tile);
        }
        QImage sprites(16, 64, QImage::Format_Indexed8);
        for (int y = 0; y < 64; ++y)
            std::memset(sprites.scanLine(y), y / 16, 16);
        sprites.setColorTable(palette->colourTable());
        bank->setWholeImage(sprites);
        run->setSize({2, 1});
        run->frame(0)->setIndex(0, 0, 1);
        run->frame(0)->setIndex(0, 1, 2);
        map->objectLayer()->setVisible(true);

        grid.resize(map->size() * Cell);
        grid.setUndoStack(&stack);
        grid.setSpriteBanks({bank});
        grid.setMap(map);
        grid.setBaseSize(Cell / 4);
        grid.show();
    }

    QImage filled(QSize size, int pixel) const
    {
        QImage image(size, QImage::Format_Indexed8);
        image.fill(uint(pixel));
        image.setColorTable(palette->colourTable());
        return image;
    }

    TileMap::TileData tile(int x, int y) const { return map->tileLayer()->cellAt({x, y}); }
    TileMap::TileData object(int x, int y) const { return map->objectLayer()->cellAt({x, y}); }
    QString lastStep() const { return stack.undoText(); }
    /// The colour of a palette entry on the screen.
    QColor colour(int index) const { return QColor(palette->colourTable().at(index)); }
    QColor screenColour(QPoint point) { return grid.grab().toImage().pixelColor(point); }

    /// The middle of a cell in the widget.
    static QPoint at(int x, int y) { return {x * Cell + Cell / 2, y * Cell + Cell / 2}; }
    /// The widget point of a map pixel.
    static QPoint pixel(int x, int y) { return {x * Cell / 8, y * Cell / 8}; }

    void send(QEvent::Type type, QPoint point, Qt::MouseButton button, Qt::MouseButtons buttons,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QMouseEvent event(type, point, grid.mapToGlobal(point), button, buttons, modifiers);
        QApplication::sendEvent(&grid, &event);
    }
    void press(QPoint point, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        send(QEvent::MouseButtonPress, point, button, button, modifiers);
    }
    void move(QPoint point, Qt::MouseButtons buttons = Qt::NoButton)
    {
        send(QEvent::MouseMove, point, Qt::NoButton, buttons);
    }
    void release(QPoint point, Qt::MouseButton button = Qt::LeftButton)
    {
        send(QEvent::MouseButtonRelease, point, button, Qt::NoButton);
    }
    void drag(const QList<QPoint> &points, Qt::MouseButton button = Qt::LeftButton)
    {
        press(points.first(), button);
        for (const QPoint &point : points.mid(1))
            move(point, button);
        release(points.last(), button);
    }
    void click(QPoint point, Qt::MouseButton button = Qt::LeftButton) { drag({point}, button); }

    /// A placed sprite that shows one sprite of the bank.
    Map::PlacedSprite sprite(int index, QPoint at) const
    {
        Map::PlacedSprite placed;
        placed.bank = bank->id();
        placed.sprite = index;
        placed.x = at.x();
        placed.y = at.y();
        return placed;
    }
};
