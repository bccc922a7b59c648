#pragma once

#include "editors/map/mapanimator.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
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
        addSizes();
        addViews();
    }

private:
    using View = MapEditor::View;

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
        addForMap("map menu", Undoable, [this](View &page) {
            choose(page.grid()->findChild<QMenu *>(), any(QStringList{"Cut", "Copy", "Copy as Image", "Fill"}));
        });
        addForMap("map from selection", Lasting, [this](View &page) {
            if (project().maps().size() < 4)
                choose(page.grid()->findChild<QMenu *>(), "Copy to new map");
        });
        addForMap("map key", Undoable, [this](View &page) {
            choose(&page, any(QStringList{"Delete", "Delete", "Cancel"}));
        });
    }

    void addSizes()
    {
        addForMap("rows and columns", Undoable, [this](View &page) {
            const auto edit = any(std::vector{&View::addRow, &View::addColumn, &View::removeRow, &View::removeColumn});
            (page.*edit)(Quenmora::Position(number(2)));
        });
        addForMap("resize map", Undoable, [this](View &page) {
            const QList<Qt::Alignment> anchors{Qt::AlignLeft | Qt::AlignTop, Qt::AlignCenter,
                                               Qt::AlignRight | Qt::AlignBottom};
            if (chance())
                page.grid()->resizeMap({1 + number(60), 1 + number(50)}, any(anchors));
        });
    }

    void addViews()
    {
        using namespace Quenmora::Ui;
        addForMap("map view", Lasting, [this](View &page) { // some of it is kept with the map
            page.toolPaletteClicked(any(QList{RotateCW, Flip, Mirror, Grid, MoveUp, MoveLeft, MoveRight, MoveDown,
                                              ZoomIn, ZoomOut, ExpandToFit, ToggleViewport, PaintPalette}),
                                    chance());
        });
        addForMap("layers", Lasting, [this](View &page) {
            page.grid()->setMapVisibility(number(4) > 0);
            page.grid()->setObjectVisibility(number(4) > 0);
            page.grid()->setSpriteVisibility(number(4) > 0);
        });
        addForMap("play map", Lasting, [this](View &page) {
            page.toolPaletteClicked(AnimPlay, true);
            for (int ticks = number(60); ticks > 0; --ticks)
                page.animator()->tick();
            page.toolPaletteClicked(AnimPlay, false);
        });
    }
};
