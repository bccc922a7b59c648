#pragma once

#include "app/colourcycling.h"
#include "editors/canvas/canvas.h"
#include "editors/canvas/imageeditorview.h"
#include "editors/canvas/spritelist.h"
#include "editors/canvas/tilepickergrid.h"
#include "editors/common/dragdata.h"
#include "editors/palette/colourcyclesdialog.h"
#include "editors/palette/paletteeditor.h"
#include "editors/palette/palettegrid.h"
#include "support/canvasmouse.h"
#include "support/randomhands.h"

#include <QSpinBox>
#include <QTest>

/// Paints tiles, sprites and images, changes their lists and colours, at random.
class RandomPixels : protected virtual RandomHands
{
protected:
    RandomPixels()
    {
        addPainting();
        addTiles();
        addSprites();
        addColours();
    }

private:
    void addPainting()
    {
        using namespace Quenmora::Ui;
        const auto shown = [this] { return anyCanvas(); };
        addFor<4>(shown, "draw", Undoable, [this](Canvas &canvas) { // what people do most
            // Paste stays as it is, so that a paste ends in a click
            if (canvas.mode() != Paste)
                canvas.setMode(any(QList{Draw, Line, Rectangle, RectangleFill, Circle, CircleFill, Fill, Pick}));
            drag(&canvas, chance() ? Qt::LeftButton : Qt::RightButton, anyKeys());
            if (canvas.mode() == Paste)
                canvas.setMode(Draw);
        });
        addFor(shown, "drop what is drawn", None, [this](Canvas &canvas) {
            canvas.setMode(any(QList{Draw, Line, RectangleFill, Circle, Select}));
            const QSize size = canvas.image().size().expandedTo({1, 1});
            const auto anyPixel = [this, size] { return QPoint(number(size.width()), number(size.height())); };
            const EditorInput::Mouse mouse{canvas};
            mouse.press(anyPixel());
            mouse.move(anyPixel(), Qt::LeftButton);
            QTest::keyClick(&canvas, Qt::Key_Escape);
            mouse.move(anyPixel(), Qt::LeftButton);
            mouse.release(anyPixel());
        });
        addFor(shown, "select pixels", Undoable, [this](Canvas &canvas) { // or move what is selected
            if (canvas.mode() != Select)
                canvas.setMode(Select);
            drag(&canvas, Qt::LeftButton, anyKeys());
        });
        addFor(shown, "arrow key", Undoable, [this](Canvas &canvas) {
            QTest::keyClick(&canvas, any(QList{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}),
                            chance() ? Qt::NoModifier : Qt::ShiftModifier);
        });
        addFor(shown, "canvas menu", Undoable,
               [this](Canvas &canvas) { any(canvas.contextMenu()->actions())->trigger(); });
    }
    Qt::KeyboardModifiers anyKeys()
    {
        return any(QList<Qt::KeyboardModifier>{Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier});
    }

    /// A canvas that is shown; null when there is none.
    Canvas *anyCanvas()
    {
        QList<Canvas *> canvases;
        if (views().tileEditor->tileSet())
            canvases.append(views().tileEditor->canvas());
        if (views().spriteEditor->sprites())
            canvases.append(views().spriteEditor->canvas());
        if (auto *page = front<ImageEditor::View>())
            canvases.append(page->canvas());
        Canvas *canvas = any(canvases);
        bringToFront(canvas);
        return canvas;
    }

    void addTiles()
    {
        const auto editor = [this] { return views().tileEditor->tileSet() ? views().tileEditor : nullptr; };
        addFor(editor, "choose tile", None,
               [this](TileWindow &window) { window.setTileIndex(1 + number(std::max(window.tileSet()->count(), 1))); });
        addFor(editor, "palette offset", Lasting,
               [this](TileWindow &window) { window.findChild<QSpinBox *>()->setValue(1 + number(16)); });
        addFor(editor, "swap tile palette", Lasting,
               [this](TileWindow &) { m_window.changeTilePalette(anyId(&Project::palettes)); });
        const auto tiles = [this] {
            TilePickerGrid *grid = views().tilePicker->grid();
            return grid->tileSet() && grid->tileSet()->count() > 0 ? grid : nullptr;
        };
        addFor(tiles, "tile list", Undoable, [this](TilePickerGrid &grid) {
            const int count = grid.tileSet()->count();
            bringToFront(&grid);
            click(&grid, grid.cellRect(number(count)).center(), Qt::RightButton);
            grid.contextMenu()->close();
            QStringList entries{"Copy Image", "Paste Image", "Zoom In", "Zoom Out"};
            if (count > 1)
                entries.append("Delete");
            if (count < 50)
                entries.append("Insert");
            choose(grid.contextMenu(), any(entries));
        });
        addFor(tiles, "clear tile", Lasting, [this](TilePickerGrid &grid) {
            if (number(4) == 0)
                choose(grid.contextMenu(), "Clear");
        });
        addFor(tiles, "move tile", Undoable, [this](TilePickerGrid &grid) {
            const int source = number(grid.tileSet()->count());
            const QPoint target = grid.cellRect(number(grid.tileSet()->count())).center();
            drop(grid, grid.cellRect(source).center(), target, TileDrag{source, 0}.toMimeData(),
                 chance() ? Qt::ShiftModifier : Qt::NoModifier);
        });
    }

    void addSprites()
    {
        const auto sprites = [this] {
            return views().spriteEditor->sprites() ? views().spriteEditor->list() : nullptr;
        };
        using List = SpriteEditor::SpriteList;
        addFor(sprites, "choose sprite", None,
               [this](List &list) { list.setSelectedIndex(number(list.sprites()->count())); });
        addFor(sprites, "swap sprite palette", Lasting,
               [this](List &) { m_window.changeSpritePalette(anyId(&Project::palettes)); });
        addFor(sprites, "sprite list", Undoable, [this](List &list) {
            const int sprite = number(list.sprites()->count());
            const int other = number(list.sprites()->count());
            const auto append = [&list] { list.sprites()->count() < 12 ? emit list.addSprite() : void(); };
            oneOf([&] { emit list.copySprite(sprite, other); }, [&] { emit list.moveSprite(sprite, other); },
                  [&] { emit list.deleteRequested(sprite); }, [&] { emit list.clearRequested(sprite); }, append,
                  append);
        });
    }

    void addColours()
    {
        const auto editor = [this] { return views().palette->palette() ? views().palette->editor() : nullptr; };
        addFor<2>(editor, "colour", Undoable, [this](PaletteEditor &colours) {
            const int first = number(Palette::Size);
            colours.setSelection(first, first + number(Palette::Size - first));
            oneOf(
                [&] {
                    colours.applyColour({number(256), number(256), number(256)}, chance());
                },
                [&] { colours.createGradient(); });
        });
        addFor(editor, "move colours", Undoable, [this](PaletteEditor &colours) {
            bringToFront(colours.grid());
            drag(colours.grid(), Qt::LeftButton, anyKeys());
        });
        addFor(editor, "colour cycles", None, [this](PaletteEditor &colours) {
            const int first = number(Palette::Size - 1);
            colours.setSelection(first, std::min(first + 1 + number(40), Palette::Size - 1));
            choose(views().palette->paletteMenu(), "Colour C&ycles…");
            auto *dialog = m_window.findChild<ColourCyclesDialog *>();
            oneOf([&] { EditorInput::button(*dialog, "&Add Selection")->click(); },
                  [&] { EditorInput::button(*dialog, "&Remove")->click(); },
                  [&] { any(dialog->findChildren<QSpinBox *>())->setValue(number(Palette::Size)); },
                  [&] { m_window.colourCycling()->action()->trigger(); });
            dialog->setVisible(chance());
            m_window.colourCycling()->clock()->advance(number(100));
        });
        add("choose palette", Lasting, [this] { // with the scratch image in front it becomes that one's
            emit views().palette->paletteChosen(anyId(&Project::palettes));
            return true;
        });
    }
};
