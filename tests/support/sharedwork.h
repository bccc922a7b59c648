#pragma once

#include "editors/canvas/canvas.h"
#include "editors/canvas/layer2image.h"
#include "editors/canvas/spritelist.h"
#include "model/mapobjects.h"
#include "model/spriteanim.h"
#include "model/tileanimation.h"
#include "support/randomhands.h"
#include "undo/mapeditcommand.h"

#include <QUndoGroup>

#include <array>
#include <utility>

/// Two maps, a block set and the animations of a bank, which share a tile set and the bank, edited from all their
/// documents; and a model that is too simple to be wrong.
///
/// The model knows tiles and sprites by ids that never change, and a step as a function. What must be there at any
/// time, in whatever order steps were undone and redone, is what those that are not undone make of the beginning, one
/// after the other. Each step is made so that it means the same without those before it: it names what no other one
/// deletes or moves, and edits of one place are on one stack.
class SharedWork : private RandomHands
{
public:
    SharedWork(MainWindow &window, quint32 seed) : RandomHands(window, seed) { }

private:
    struct Level
    {
        QSize size{8, 4};
        QList<int> cells; ///< ids, in row-major order
        QList<std::pair<int, int>> placed; ///< id of the sprite and where
    };
    struct Things
    {
        QList<int> tiles;
        QList<int> sprites;
        QHash<int, int> pixels; ///< what a tile or sprite is filled with, by id
        std::array<Level, 2> levels;
        QList<int> block; ///< ids of the cells
        QList<int> walk;
        int delay = 0;
    };

public:
    /// Starts a project of its own with things as they are at first.
    void begin()
    {
        m_window.projectController()->newProject("Shared");
        m_steps.clear();
        m_left = {9, 10, 20, 21, 22, 30, 31, 40, 41, 105, 106, 120, 121, 130, 140};
        m_first = {};
        m_first.tiles = {1, 2, 3, 4, 5, 20, 6, 21, 7, 22, 8, 30, 9, 31, 10};
        m_first.sprites = {101, 102, 103, 120, 104, 121, 105, 130, 106};
        m_first.block = {1, 20, 30, 22};
        m_first.walk = {102, 121, 130};
        const QPointer<Palette> palette = project().createPalette(CreateAction::DefaultNext, "Colours");
        m_tileSet = project().createTileSet("Tiles", palette->id(), int(m_first.tiles.size()), false);
        m_bank = project().createSpriteBank(Quenmora::EightBit, "Sprites", palette->id());
        while (m_bank->count() < m_first.sprites.size())
            m_bank->addSprite();
        for (int map : {0, 1})
            createLevel(map);
        m_blocks = project().createBlockList("Blocks", m_tileSet->id());
        m_block = m_blocks->createBoundTileAnimation("Block");
        setUp(*m_block, m_first.block, m_first.tiles);
        m_walk = m_bank->newAnimation();
        setUp(*m_walk, m_first.walk, m_first.sprites);
        for (int i = 0; i < m_first.tiles.size(); ++i)
            m_tileSet->setTileImage(i, filled(8, m_first.pixels[m_first.tiles[i]] = 1 + i % 15));
        for (int i = 0; i < m_first.sprites.size(); ++i)
            m_bank->setImage(i, filled(16, m_first.pixels[m_first.sprites[i]] = 1 + i % 15));
        QCoreApplication::processEvents(); // the recorder watches the animations from now on
        m_window.documentController()->setActiveTileSet(m_tileSet->id());
        m_window.documentController()->setActiveSpriteEditor(m_bank->id());
    }

    /// Edits something with any document in front, or undoes or redoes steps of any document.
    Effect act() override
    {
        QUndoStack *stack = any(undoGroup().stacks());
        if (number(3) > 0) {
            for (int steps = 1 + number(3); steps > 0; --steps)
                chance() ? stack->undo() : stack->redo();
            return Undoable;
        }
        undoGroup().setActiveStack(stack);
        m_now = expected();
        oneOf([this] { editTiles(); }, [this] { editTiles(); }, [this] { editSprites(); }, [this] { editSprites(); },
              [this] { drawPixels(); }, [this] { editMap(size_t(number(2))); }, [this] { editAnimations(); });
        return Undoable;
    }

    /// What the project holds, and what it must hold, in words.
    [[nodiscard]] std::pair<QString, QString> compared()
    {
        const Things now = expected();
        QStringList is;
        QStringList must;
        const auto note = [](QStringList &list, const QString &what, const auto &values) {
            list.append(what + ':');
            for (const int value : values)
                list.last() += QStringLiteral(" %1").arg(value);
        };
        const auto noteBoth = [&](const QString &what, const auto &real, const auto &model) {
            note(is, what, real);
            note(must, what, model);
        };
        QList<int> real;
        for (int i = 0; i < m_tileSet->count(); ++i)
            real.append(m_tileSet->image(i).pixelIndex(3, 3));
        noteBoth("tiles", real, pixelsOf(now, now.tiles));
        real.clear();
        for (int i = 0; i < m_bank->count(); ++i)
            real.append(m_bank->spriteImage(i, false, false, false).pixelIndex(3, 3));
        noteBoth("sprites", real, pixelsOf(now, now.sprites));
        for (const size_t level : {0, 1}) {
            const Map &map = *m_maps[level];
            real.clear();
            for (const TileMap::Row &row : map.tileLayer()->rows()) {
                for (const TileMap::TileData &cell : row)
                    real.append(cell.index);
            }
            noteBoth("cells", QList{map.size().width(), map.size().height()} + real,
                     QList{now.levels[level].size.width(), now.levels[level].size.height()}
                         + numbersOf(now.levels[level].cells, now.tiles));
            real.clear();
            for (const Map::PlacedSprite &sprite : map.sprites())
                real << sprite.sprite << sprite.x;
            QList<int> placed;
            for (const auto &[id, x] : now.levels[level].placed)
                placed << int(now.sprites.indexOf(id)) << x;
            noteBoth("placed", real, placed);
        }
        noteBoth("block", cellsOf(*m_block), numbersOf(now.block, now.tiles));
        noteBoth("walk", cellsOf(*m_walk), numbersOf(now.walk, now.sprites));
        noteBoth("delay", QList{m_block->delay()}, QList{now.delay});
        return {is.join('\n'), must.join('\n')};
    }

    /// The steps that were made, in order, with those that are undone in brackets.
    [[nodiscard]] QString history() const
    {
        QStringList names;
        for (const Step &step : m_steps)
            names.append(isUndone(step) ? '(' + step.name + ')' : step.name);
        return names.join(", ");
    }

private:
    using Making = std::function<void(Things &)>;
    struct Step
    {
        QString name;
        QUndoStack *stack;
        int index; ///< in the stack
        Making effect;
    };

    QUndoGroup &undoGroup() { return *m_window.documentController()->undoGroup(); }
    static bool isUndone(const Step &step) { return step.stack->index() <= step.index; }
    [[nodiscard]] Things expected() const
    {
        Things things = m_first;
        for (const Step &step : m_steps) {
            if (!isUndone(step))
                step.effect(things);
        }
        return things;
    }

    static QImage filled(int side, int pixel)
    {
        QImage image(side, side, QImage::Format_Indexed8);
        image.setColorTable(QList<QRgb>(256, qRgb(0, 0, 0)));
        image.fill(uint(pixel));
        return image;
    }
    static QList<int> numbersOf(const QList<int> &ids, const QList<int> &order)
    {
        QList<int> numbers;
        for (const int id : ids)
            numbers.append(int(order.indexOf(id)));
        return numbers;
    }
    static QList<int> pixelsOf(const Things &things, const QList<int> &ids)
    {
        QList<int> pixels;
        for (const int id : ids)
            pixels.append(things.pixels[id]);
        return pixels;
    }
    static QList<int> cellsOf(const Animation &animation)
    {
        QList<int> numbers;
        for (const auto &cell : animation.frame(0)->cells().constFirst())
            numbers.append(cell.index);
        return numbers;
    }
    static void setUp(Animation &animation, const QList<int> &ids, const QList<int> &order)
    {
        animation.setSize({int(ids.size()), 1});
        if (animation.frameCount() == 0)
            animation.addFrame();
        for (int column = 0; column < ids.size(); ++column)
            animation.frame(0)->setIndex(0, column, int(order.indexOf(ids[column])));
    }
    void createLevel(int level)
    {
        Level &made = m_first.levels[size_t(level)];
        m_maps[size_t(level)] = project().createMap("Level", m_tileSet->id(), made.size);
        Map &map = *m_maps[size_t(level)];
        for (int cell = 0; cell < 32; ++cell) {
            const int tile = (cell * (3 + level)) % int(m_first.tiles.size());
            made.cells.append(m_first.tiles[cell % 8 < 3 ? 0 : tile]); // the left columns are painted
            map.setTile({cell % 8, cell / 8},
                        {int(m_first.tiles.indexOf(made.cells.last())), false, false, false, 0, true});
        }
        for (const int id : {101, 120, 103, 130, 121, 106}) {
            made.placed.append({id, id - 100});
            map.addSprite(placedSprite(id, id - 100, m_first));
        }
    }
    [[nodiscard]] Map::PlacedSprite placedSprite(int id, int x, const Things &things) const
    {
        return {.bank = m_bank->id(), .animation = {}, .sprite = int(things.sprites.indexOf(id)), .x = x, .name = {}};
    }

    /// Does an edit; when that made a step, it is one of the model as well.
    void edit(const QString &name, const std::function<void()> &change, const Making &effect)
    {
        QHash<QUndoStack *, int> before;
        for (QUndoStack *stack : undoGroup().stacks())
            before.insert(stack, stack->index());
        change();
        for (QUndoStack *stack : undoGroup().stacks()) {
            const int index = before.value(stack);
            if (stack->index() == index)
                continue;
            // what the stack had undone is gone
            m_steps.removeIf([=](const Step &step) { return step.stack == stack && step.index >= index; });
            m_steps.append({name, stack, index, effect});
        }
    }

    /// One of these ids when no step has been made with it yet; else 0.
    int take(const QList<int> &ids)
    {
        const int id = any(ids);
        return m_left.removeOne(id) ? id : 0;
    }
    /// Takes an id out, where it is, and puts it in behind another one.
    static void moveBehind(QList<int> &ids, int anchor, int id)
    {
        ids.removeOne(id);
        ids.insert(ids.indexOf(anchor) + 1, id);
    }
    static void replaceAll(QList<int> &ids, int from, int to) { std::replace(ids.begin(), ids.end(), from, to); }

    void editTiles()
    {
        TileSet &tiles = *m_tileSet;
        const auto at = [this](int id) { return int(m_now.tiles.indexOf(id)); };
        if (const int gone = take({20, 21, 22})) {
            edit(
                QStringLiteral("delete tile %1").arg(gone), [&] { tiles.deleteTile(at(gone)); },
                [gone](Things &things) {
                    things.tiles.removeOne(gone);
                    for (QList<int> *cells : {&things.levels[0].cells, &things.levels[1].cells, &things.block})
                        replaceAll(*cells, gone, things.tiles.first());
                });
        } else if (const int made = take({40, 41})) {
            const int anchor = made == 40 ? 1 : 4; // what is gone shows the first tile, which stays
            edit(
                QStringLiteral("insert tile %1").arg(made), [&] { tiles.insertTile(at(anchor) + 1); },
                [=](Things &things) {
                    moveBehind(things.tiles, anchor, made);
                    things.pixels[made] = 0;
                });
        } else if (const int moved = take({30, 31})) {
            const int anchor = moved - 28;
            edit(
                QStringLiteral("move tile %1").arg(moved),
                [&] { tiles.moveTile(at(moved), at(anchor) + (at(anchor) < at(moved) ? 1 : 0)); },
                [=](Things &things) { moveBehind(things.tiles, anchor, moved); });
        } else if (const int target = take({9, 10})) {
            edit(
                QStringLiteral("copy to tile %1").arg(target), [&] { tiles.copyTile(at(target - 2), at(target)); },
                [=](Things &things) { things.pixels[target] = things.pixels[target - 2]; });
        }
    }

    void editSprites()
    {
        const auto at = [this](int id) { return int(m_now.sprites.indexOf(id)); };
        SpriteEditor::SpriteList &list = *views().spriteEditor->list();
        if (const int gone = take({120, 121})) {
            edit(
                QStringLiteral("delete sprite %1").arg(gone), [&] { emit list.deleteRequested(at(gone)); },
                [gone](Things &things) {
                    things.sprites.removeOne(gone);
                    replaceAll(things.walk, gone, things.sprites.first());
                    for (Level &level : things.levels)
                        level.placed.removeIf([gone](const auto &sprite) { return sprite.first == gone; });
                });
        } else if (const int made = take({140})) {
            edit(
                "add sprite", [&] { emit list.addSprite(); },
                [made](Things &things) {
                    things.sprites.append(made);
                    things.pixels[made] = 0;
                });
        } else if (const int moved = take({130})) {
            edit(
                "move sprite", [&] { emit list.moveSprite(at(moved), at(102) + 1); },
                [moved](Things &things) { moveBehind(things.sprites, 102, moved); });
        } else if (const int target = take({105, 106})) {
            edit(
                QStringLiteral("change sprite %1").arg(target),
                [&] { target == 105 ? emit list.clearRequested(at(105)) : emit list.copySprite(at(104), at(106)); },
                [target](Things &things) { things.pixels[target] = target == 105 ? 0 : things.pixels[104]; });
        }
    }

    void drawPixels()
    {
        const int pixel = 1 + number(15);
        const auto fill = [pixel](Canvas *canvas) {
            canvas->applyEdit("Draw", PixelEditCommand::None,
                              [&](Layer2Image &layer) { layer.fillRectangle(canvas->image().rect(), pixel); });
        };
        const int id = any(QList{1, 2, 3, 101, 102, 103});
        if (id < 100) {
            views().tileEditor->setTileIndex(int(m_now.tiles.indexOf(id)) + 1);
            edit(
                QStringLiteral("draw tile %1").arg(id), [&] { fill(views().tileEditor->canvas()); },
                [=](Things &things) { things.pixels[id] = pixel; });
        } else {
            views().spriteEditor->changeSprite(int(m_now.sprites.indexOf(id)));
            edit(
                QStringLiteral("draw sprite %1").arg(id), [&] { fill(views().spriteEditor->canvas()); },
                [=](Things &things) { things.pixels[id] = pixel; });
        }
    }

    void editMap(size_t level)
    {
        Map &map = *m_maps[level];
        const QSize size = map.size();
        const auto mapEdit = [&](const QString &name, const std::function<void()> &change, const Making &effect) {
            edit(
                QStringLiteral("%1 on map %2").arg(name).arg(level),
                [&] {
                    const Map::Snapshot before = map.snapshot();
                    change();
                    if (map.snapshot() != before)
                        m_window.documentController()->undoStackFor(map.id())->push(
                            new MapEditCommand(name, &map, before, map.snapshot()));
                },
                effect);
        };
        const auto paint = [&] {
            const int tile = any(QList{1, 2, 3, 4, 5, 6, 7, 8});
            const QPoint at(number(3), number(4));
            mapEdit(
                "paint",
                [&] {
                    map.setTile(at, {int(m_now.tiles.indexOf(tile)), false, false, false, 0, true});
                },
                [=](Things &things) {
                    Level &painted = things.levels[level];
                    painted.cells[at.y() * painted.size.width() + at.x()] = tile;
                });
        };
        const auto place = [&] {
            const int id = any(QList{102, 104, 105});
            const int x = 1 + number(60);
            mapEdit(
                "place", [&] { map.addSprite(placedSprite(id, x, m_now)); },
                [=](Things &things) {
                    things.levels[level].placed.append({id, x});
                });
        };
        const auto grow = [&] {
            const QSize larger(size.width() + number(2), size.height() + 1);
            if (larger.height() > 8)
                return;
            const bool atEnd = chance();
            const QPoint shift = atEnd ? QPoint(larger.width() - size.width(), 1) : QPoint();
            mapEdit(
                "grow",
                [&] { map.resize(larger, atEnd ? Qt::AlignRight | Qt::AlignBottom : Qt::AlignLeft | Qt::AlignTop); },
                [=](Things &things) {
                    Level grown{larger, QList<int>(larger.width() * larger.height(), things.tiles.first()), {}};
                    Level &old = things.levels[level];
                    for (int i = 0; i < old.cells.size(); ++i) {
                        const QPoint at = QPoint(i % old.size.width(), i / old.size.width()) + shift;
                        grown.cells[at.y() * larger.width() + at.x()] = old.cells[i];
                    }
                    for (const auto &[id, x] : std::as_const(old.placed))
                        grown.placed.append({id, x + shift.x() * 8});
                    old = grown;
                });
        };
        oneOf(paint, paint, place, grow);
    }

    void editAnimations()
    {
        undoGroup().setActiveStack(m_window.documentController()->undoStackFor(m_blocks->id()));
        const auto setCell = [this](QList<int> Things::*cells, const QList<int> &order, int id, Animation &animation) {
            edit(
                "edit frames", [&] { animation.frame(0)->setIndex(0, 0, int(order.indexOf(id))); },
                [=](Things &things) { (things.*cells)[0] = id; });
        };
        oneOf(
            [&] {
                setCell(&Things::block, m_now.tiles, any(QList{2, 5, 8}), *m_block);
            },
            [&] {
                setCell(&Things::walk, m_now.sprites, any(QList{101, 103, 106}), *m_walk);
            },
            [&] {
                const int delay = number(9);
                edit(
                    "delay", [&] { m_block->setDelay(delay); }, [=](Things &things) { things.delay = delay; });
            });
    }

    Things m_first;
    Things m_now; ///< before the edit that is being made
    QList<Step> m_steps;
    QList<int> m_left; ///< what no step has been made with yet
    QPointer<TileSet> m_tileSet;
    QPointer<SpriteBank> m_bank;
    std::array<QPointer<Map>, 2> m_maps;
    QPointer<MapObjects> m_blocks;
    QPointer<TileAnimation> m_block;
    QPointer<SpriteAnim> m_walk;
};
