#pragma once

#include "editors/canvas/tilepickergrid.h"
#include "editors/map/mapanimator.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "editors/map/mapoverview.h"
#include "editors/map/paintdesk.h"
#include "model/mapobjects.h"
#include "model/spriteanim.h"
#include "model/tileanimation.h"
#include "support/randomhands.h"

/// Edits the map in front at random.
class RandomMaps : protected virtual RandomHands
{
protected:
    RandomMaps()
    {
        addTools();
        addPainting();
    }

private:
    using View = MapEditor::View;
    using PaintKit = MapEditor::PaintKit;

    /// Adds what is done with the map in front.
    template <int Often = 1, typename Run>
    void addForMap(const char *name, Effect effect, Run run)
    {
        const auto map = [this] { return front<View>() && front<View>()->map() ? front<View>() : nullptr; };
        addFor<Often>(map, name, effect, run);
    }

    void addTools()
    {
        using namespace Quenmora::Ui;
        addForMap<4>("use map tool", Undoable, [this](View &page) {
            if (page.grid()->mode() != Paste || chance())
                page.toolPaletteClicked(any(QList{Draw, Draw, Select, Pick, PlaceAnim, PlaceSprite}));
            drag(page.grid());
        });
        addForMap("choose for the map", Lasting, [this](View &page) {
            const QPointer<TileSet> tiles = page.map()->tileSet();
            const QPointer<SpriteBank> bank = any(project().spriteBanks());
            const QPointer<MapObjects> blocks = any(project().blockSets());
            const int kind = number(4);
            if (kind == 0)
                page.setTileIndex(tiles ? number(std::max(tiles->count(), 1)) : 0);
            else if (kind == 1 && bank)
                emit views().mapSprites->spriteSelected(bank->id(), number(bank->count()));
            else if (kind == 2 && bank)
                emit views().mapSprites->spriteAnimationSelected(any(bank->animations()));
            else if (kind == 3 && blocks && blocks->tileSet() == tiles) // the dock offers no others
                emit views().mapObjects->animationSelected(any(blocks->animations()));
        });
        addForMap("edit placed sprite", Undoable, [this](View &page) {
            const int index = page.grid()->selectedSprite();
            Map::PlacedSprite sprite = page.map()->sprites().value(index);
            sprite.mirror = chance();
            sprite.rotate = chance();
            sprite.paletteOffset = number(16);
            sprite.startFrame = number(4);
            if (index >= 0 && index < page.map()->sprites().size())
                page.grid()->setSpriteProperties(sprite);
        });
    }

    /// What painting maps fast takes: stamps, shapes, terrains, replacement, moved selections. And what shows them.
    void addPainting()
    {
        using namespace Quenmora::Ui;
        addForMap<3>("paint map", Undoable, [this](View &page) {
            page.toolPaletteClicked(any(QList{Fill, Line, Rectangle, RectangleFill, Circle, CircleFill, Draw, Select}));
            if (page.grid()->brush().terrain.tiles.size() > 0 && chance())
                page.toolPaletteClicked(PaintTerrain);
            drag(page.grid(), chance() ? Qt::LeftButton : Qt::RightButton,
                 number(4) == 0 ? Qt::ControlModifier : Qt::NoModifier);
            if (page.grid()->mode() == Select)
                drag(page.grid()); // which may be within what was selected
        });
        addForMap("pick stamp", Lasting, [this](View &page) {
            const auto desk = page.paintDesk();
            const PaintKit *kit = desk->bar()->kit();
            if (chance()) {
                page.toolPaletteClicked(Pick);
                drag(page.grid());
            } else if (kit && !kit->stamps().isEmpty() && chance()) {
                desk->pickStamp(kit->stamps().at(number(int(kit->stamps().size()))).stamp);
            } else {
                bringToFront(views().tilePicker->grid());
                drag(views().tilePicker->grid(), Qt::LeftButton, Qt::ControlModifier);
            }
            page.toolPaletteClicked(RandomTiles, number(4) == 0);
            page.grid()->setPaletteOffset(number(32) - 16 < 0 ? -1 : number(16));
        });
        addForMap("name stamp or mark terrain", Lasting, [this](View &page) {
            PaintKit *kit = page.paintDesk()->bar()->kit();
            const QPointer<TileSet> tiles = page.map()->tileSet();
            if (!kit || !tiles)
                return;
            kit->nameStamp(number(4), chance() ? QStringLiteral("Stamp") : QString());
            if (number(4) == 0)
                kit->removeStamp(number(4));
            Terrain terrain{QStringLiteral("Ground"), chance(), {}, chance()};
            for (int i = number(20); i > 0; --i)
                terrain.mark(number(std::max(tiles->count(), 1)), number(256));
            kit->setTerrains({terrain});
        });
        addForMap("replace tile", Undoable, [this](View &page) {
            const QPointer<TileSet> tiles = page.map()->tileSet();
            const int count = tiles ? std::max(tiles->count(), 1) : 1;
            page.paintDesk()->replaceTile({number(count), number(count)},
                                          MapEditor::ReplaceTileDialog::Scope(number(3)));
        });
        addForMap("move about the map", None, [this](View &page) {
            page.grid()->zoomAround({number(page.grid()->width() + 1), number(page.grid()->height() + 1)},
                                    chance() ? 1 : -1);
            page.grid()->showCell({number(60), number(50)});
            page.paintDesk()->setOverviewVisible(chance());
            if (auto *overview = page.grid()->findChild<MapEditor::MapOverview *>())
                drag(overview);
        });
        addForMap("play map", Lasting, [this](View &page) {
            page.toolPaletteClicked(AnimPlay, true);
            for (int ticks = number(60); ticks > 0; --ticks)
                page.animator()->tick();
            page.toolPaletteClicked(AnimPlay, false);
        });
    }
};
