// What is recorded, and that it is undone in any order.

#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/spriteanim.h"
#include "support/modeltools.h"
#include "support/testmain.h"
#include "undo/animationchange.h"
#include "undo/editclock.h"
#include "undo/editrecorder.h"
#include "undo/mapeditcommand.h"

#include <QtGui>
#include <QtTest>

#include <functional>
#include <memory>
#include <optional>

namespace {

constexpr quint32 Rounds = 60;

qint64 now = 0;
qint64 gap = 1000; ///< from edit to edit, so that none merges with the one before

/// Assets that share a tile set and a bank. Tile n shows pixels n + 1 at first, and so does sprite n: edits name
/// them by that, so that they mean the same with and without another edit before them.
struct Scene
{
    Scene()
    {
        for (int i = 0; i < 8; ++i) {
            if (i > 0)
                bank->addSprite();
            bank->setImage(i, plainImage({16, 16}, i + 1));
            tileSet->setTileImage(i, plainImage({8, 8}, i + 1));
            tileSet->setTileOffset(i, i);
            tileSet->tile(i)->setAttributes(i);
            level->setTile({i, 0}, {7 - i, false, true, false, i, true});
            level->objectLayer()->setCell({i, 1}, {i, false, false, false, 0, true});
            other->setTile({i, i % 4}, {i % 4, false, false, false, 0, true});
            level->addSprite(placed(i + 1));
            other->addSprite(placed(8 - i));
        }
        small->setTile({0, 0}, {4, false, false, false, 0, true});
        block->setSize({4, 1});
        block->addFrame()->setCells({{{0}, {3}, {4}, {7}}});
        walk->setSize({3, 1});
        walk->frame(0)->setCells({{{0}, {3}, {4}}});
        recorder.emplace(project.get(), [this](const QUuid &) { return front; });
    }
    int tile(int pixel) const
    {
        return find(
            tileSet->count(), [&](int i) { return tileSet->image(i); }, pixel);
    }
    int sprite(int pixel) const
    {
        return find(
            bank->count(), [&](int i) { return bank->spriteImage(i, false, false, false); }, pixel);
    }
    Map::PlacedSprite placed(int pixel, int x = 1) const
    {
        return {.bank = bank->id(), .animation = {}, .sprite = sprite(pixel), .x = x, .name = {}};
    }
    template <typename Edit>
    void ofBank(Edit edit) const
    {
        emit bank->structureAboutToChange();
        edit();
        emit bank->structureChanged("Edit");
    }
    template <typename Edit>
    void ofMap(const QPointer<Map> &map, Edit edit) const
    {
        const Map::Snapshot before = map->snapshot();
        edit(*map);
        front->push(new MapEditCommand("Edit", map, before, map->snapshot()));
    }
    void editEverything(int delay)
    {
        block->setDelay(delay);
        walk->setDelay(delay);
        palette->setColour(delay, Qt::white, false);
        tileSet->insertTile(0);
        ofBank([this] { bank->addSprite(); });
    }
    void undoAndRedoEverything()
    {
        first.setIndex(0);
        first.setIndex(first.count());
    }
    QString contents() const
    {
        QString text;
        QDebug out(&text);
        for (const Tile::State &state : tileSet->snapshot())
            out << state.image.pixelIndex(0, 0) << state.offset << state.attributes << state.value;
        for (int i = 0; i < bank->count(); ++i)
            out << "\nsprite" << bank->spriteImage(i, false, false, false).pixelIndex(0, 0);
        for (const QPointer<Map> &map : project->maps()) {
            for (const TileMap::Rows &layer : {map->tileLayer()->rows(), map->objectLayer()->rows()}) {
                for (const TileMap::Row &row : layer) {
                    out << "\n";
                    for (const auto &cell : row)
                        out << cell.index << cell.flip << cell.offset << cell.used << ',';
                }
            }
            for (const Map::PlacedSprite &sprite : map->sprites())
                out << "\nplaced" << sprite.sprite << sprite.x << sprite.flip;
        }
        for (const Animation *animation : std::initializer_list<Animation *>{block, walk}) {
            out << "\nanimation" << animation->size() << animation->delay() << int(block->type());
            for (int frame = 0; frame < animation->frameCount(); ++frame) {
                for (const auto &cell : animation->frame(frame)->cells().value(0))
                    out << cell.index << cell.mirror;
            }
        }
        return text;
    }

    std::unique_ptr<Project> project = std::make_unique<Project>();
    QPointer<Palette> palette = project->createPalette(CreateAction::DefaultNext, "Colours");
    QPointer<TileSet> tileSet = project->createTileSet("Tiles", palette->id(), 8);
    QPointer<Map> level = project->createMap("Level", tileSet->id(), {8, 2});
    QPointer<Map> other = project->createMap("Other", tileSet->id(), {8, 4});
    QPointer<Map> small = project->createMap("Small", tileSet->id(), {1, 1});
    QPointer<MapObjects> blocks = project->createBlockList("Blocks", tileSet->id());
    QPointer<TileAnimation> block = blocks->createTileAnimation("Door");
    QPointer<SpriteBank> bank = project->createSpriteBank(Quenmora::EightBit, "Sprites", palette->id());
    QPointer<SpriteAnim> walk = bank->newAnimation();
    QUndoStack first;
    QUndoStack second;
    QUndoStack *front = &first;
    std::optional<EditRecorder> recorder;

private:
    static int find(int count, const std::function<QImage(int)> &picture, int pixel)
    {
        for (int i = 0; i < count; ++i) {
            if (picture(i).pixelIndex(0, 0) == pixel)
                return i;
        }
        return -1;
    }
};

struct Edit
{
    const char *name;
    std::function<void(Scene &)> run;
};

const QList<Edit> &edits()
{
    static const QList<Edit> all{
        // of which none moves the first tile, which is shown in place of one that is gone
        {"delete tile", [](Scene &s) { s.tileSet->deleteTile(s.tile(5)); }},
        {"insert tile", [](Scene &s) { s.tileSet->insertTile(s.tile(4)); }},
        {"move tile", [](Scene &s) { s.tileSet->moveTile(s.tile(8), s.tile(2)); }},
        {"copy tile", [](Scene &s) { s.tileSet->copyTile(s.tile(2), s.tile(7)); }},
        {"delete sprite", [](Scene &s) { s.ofBank([&] { s.bank->deleteSprite(s.sprite(4)); }); }},
        {"move sprite", [](Scene &s) { s.ofBank([&] { s.bank->moveSprite(s.sprite(7), s.sprite(2)); }); }},
        {"add sprite", [](Scene &s) { s.ofBank([&] { s.bank->addSprite(); }); }},
        {"clear sprite", [](Scene &s) { s.ofBank([&] { s.bank->clearSprite(s.sprite(8)); }); }},
        {"block frames", [](Scene &s) { s.block->frame(0)->setIndex(0, 0, s.tile(6)); }},
        {"block delay", [](Scene &s) { s.block->setDelay(5); }},
        {"block type", [](Scene &s) { s.block->setMapObjectType(MapObjectType::HorizontalPlatform); }},
        {"change tile",
         [](Scene &s) {
             emit s.tileSet->structureAboutToChange();
             s.tileSet->tile(s.tile(6))->setAttributes(70);
             s.tileSet->tile(s.tile(6))->setValue(6);
             emit s.tileSet->structureChanged("Edit");
         }},
        {"walk frames", [](Scene &s) { s.walk->setDelay(3), s.walk->addFrame()->setIndex(0, 0, s.sprite(6)); }},
        {"fill and resize",
         [](Scene &s) {
             s.ofMap(s.other, [&s](Map &map) {
                 map.setTiles({0, 0, 8, 4}, s.tile(4), false, false, false, true);
                 map.resize({9, 5}, Qt::AlignRight | Qt::AlignBottom);
             });
         }},
        {"shrink", [](Scene &s) { s.ofMap(s.level, [](Map &map) {
                                      map.resize({6, 2});
                                  }); }},
        {"grow",
         [](Scene &s) { s.ofMap(s.level, [](Map &map) {
                            map.resize({10, 4}, Qt::AlignRight | Qt::AlignBottom);
                        }); }},
        {"paint over",
         [](Scene &s) {
             s.ofMap(s.level, [&s](Map &map) { map.setTiles({2, 0, 4, 2}, s.tile(8), false, false, false, true); });
         }},
        {"draw over a frame", [](Scene &s) { s.block->frame(0)->setIndex(0, 2, s.tile(6)); }},
        {"place sprites",
         [](Scene &s) {
             s.ofMap(s.other, [&s](Map &map) {
                 for (int x = 2; x < 7; ++x)
                     map.addSprite(s.placed(5, x));
             });
         }},
        {"take sprite away", [](Scene &s) { s.ofMap(s.other, [](Map &map) { map.removeSprite(0); }); }},
        {"unknown to undo",
         [](Scene &s) {
             s.tileSet->tile(s.tile(3))->setValue(9);
             s.tileSet->tile(s.tile(6))->setValue(7);
             s.bank->setImage(s.sprite(5), plainImage({16, 16}, 50));
             const QPointer<Map> map = s.project->createMap("New", s.tileSet->id(), {2, 1});
             map->setTile({0, 0}, {s.tile(3), false, false, false, 0, true});
             map->addSprite(s.placed(3));
         }},
    };
    return all;
}

/// Deletes a tile and a sprite, and lets the first tile become another one. Tells what there is before and after each
/// step.
QStringList deleteSome(Scene &scene)
{
    scene.front = &scene.first;
    QStringList contents{scene.contents()};
    const auto run = [&](const std::function<void()> &edit) {
        edit();
        contents.append(scene.contents());
    };
    run([&] { scene.tileSet->deleteTile(scene.tile(5)); });
    run([&] { scene.tileSet->deleteTile(0); }); // which is shown in place of the other one
    run([&] { scene.tileSet->insertTile(0); });
    run([&] { scene.tileSet->moveTile(1, 2); }); // which is shown by now
    run([&] { scene.ofBank([&] { scene.bank->deleteSprite(scene.sprite(4)); }); });
    run([&] { scene.ofBank([&] { scene.bank->moveSprite(0, 2); }); });
    return contents;
}

/// Edits of one map each, which are on one stack.
QStringList ofMaps()
{
    return {"fill and resize", "place sprites", "take sprite away", "shrink", "grow", "paint over"};
}

} // namespace

class TestUndoOrder : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        gap = 1000;
        EditClock::setSource([] { return now += gap; });
    }
    void cleanupTestCase() { EditClock::setSource({}); }

    void colourEditsGatherWithinTheLimit()
    {
        Scene scene;
        gap = 0;
        // each edit 400 ms after the one before: the limit slides
        for (const auto &[index, colour] : {std::pair{5, Qt::white}, {3, Qt::red}, {5, Qt::green}}) {
            scene.palette->setColour(index, colour, false);
            now += 400;
        }
        QCOMPARE(scene.first.undoText(), "Colour");
        now += 1;
        scene.palette->setColour(7, Qt::white, true);
        QCOMPARE(scene.first.count(), 2);
        const Palette &palette = *scene.palette;
        scene.first.setIndex(0); // the standard palette
        QVERIFY(palette.rawColour(3) == 0x0301 && palette.rawColour(5) == 0x0501 && palette.rawColour(7) == 0x0701);
        scene.first.setIndex(2);
        QVERIFY(palette.rawColour(3) == 0xE000 && palette.rawColour(5) == 0x1C00 && palette.rawColour(7) == 0xFF81);
    }

    void animationEditsMergeWithinTheLimit()
    {
        Scene scene;
        gap = 0;
        const TileAnimation::State original = scene.block->state();
        scene.block->setDelay(2);
        now += 100;
        scene.block->frame(0)->setMirror(0, 0, true);
        now += 100;
        scene.block->setSize({3, 3});
        QCOMPARE(scene.first.undoText(), "Edit Frames");
        QCOMPARE(scene.first.count(), 1);
        now += 101;
        scene.block->setDelay(5);
        const auto other = scene.blocks->createBoundTileAnimation("Lift");
        other->setDelay(4); // still being made
        QCoreApplication::processEvents();
        QCOMPARE(scene.first.count(), 2);
        other->setDelay(1);
        QCOMPARE(scene.first.count(), 3);
        scene.first.undo();
        QCOMPARE(other->delay(), 4);
        scene.first.setIndex(0);
        QVERIFY(scene.block->state() == original);
        emit scene.block->contentChanged(); // without a change
        QCOMPARE(scene.first.count(), 3);
    }

    void structuralEditsAreStepsOfTheirOwn()
    {
        Scene scene;
        scene.ofBank([&scene] { scene.bank->addSprite(); });
        scene.walk->frame(0)->setIndex(0, 0, 8);
        scene.ofBank([&scene] { scene.bank->deleteSprite(8); });
        emit scene.bank->structureChanged("End without a beginning");
        scene.walk->setDelay(2); // of which the edit of the bank is no part
        QCOMPARE(scene.first.count(), 4);
        for (const auto &[index, sprites, cell] : {std::tuple(3, 8, 0), {2, 9, 8}, {3, 8, 0}, {1, 9, 0}}) {
            scene.first.setIndex(index);
            QVERIFY(scene.bank->count() == sprites && scene.walk->frame(0)->cell(0, 0).index == cell);
        }
    }

    void laterAssetsAreWatched()
    {
        Scene scene;
        scene.project->createPalette(CreateAction::Blank, "Late")->setColour(0, Qt::white, false);
        scene.project->createTileSet("Late", scene.palette->id(), 4)->deleteTile(0);
        const auto bank = scene.project->createSpriteBank(Quenmora::FourBit, "Late", scene.palette->id());
        bank->deleteAnimation(bank->newAnimation()->id()); // does not live until it would be watched
        QCoreApplication::processEvents();
        QCOMPARE(scene.first.count(), 2);
    }

    void undoAndEditsWithoutAStackRecordNothing()
    {
        Scene scene;
        scene.front = nullptr;
        scene.editEverything(3);
        scene.front = &scene.first;
        scene.editEverything(5);
        QCOMPARE(scene.first.count(), 5);
        scene.undoAndRedoEverything();
        QCOMPARE(scene.first.count(), 5);
        scene.first.setIndex(0);
        QCOMPARE(scene.block->delay(), 3);
        // what was undone is the state from which the next edit is recorded
        scene.block->setDelay(7);
        scene.first.undo();
        QCOMPARE(scene.block->delay(), 3);
    }

    void deletedAssetsAreSafe()
    {
        Scene scene;
        scene.editEverything(3);
        emit scene.tileSet->structureAboutToChange();
        emit scene.bank->structureAboutToChange();
        scene.bank->deleteAnimation(scene.walk->id());
        scene.blocks->removeAnimation(scene.block->id());
        scene.undoAndRedoEverything();
        for (const QPointer<Map> &map : scene.project->maps())
            scene.project->deleteMap(map->id());
        QVERIFY(scene.project->deleteBlocks(scene.blocks->id()) && scene.project->deleteTileSet(scene.tileSet->id()));
        QVERIFY(scene.project->deleteSpriteBank(scene.bank->id()) && scene.project->deletePalette(scene.palette->id()));
        scene.undoAndRedoEverything();
        scene.recorder.reset();
        scene.undoAndRedoEverything();
        scene.project.reset();
        scene.undoAndRedoEverything();
    }

    void whatComesBackFollowsTheOrderOfThePalette()
    {
        Scene scene;
        scene.tileSet->setTileImage(5, plainImage({8, 8}, 0x5A));
        scene.bank->setImage(5, plainImage({16, 16}, 0x5A));
        scene.tileSet->deleteTile(5);
        scene.ofBank([&scene] { scene.bank->deleteSprite(5); });
        PaletteHistory::of(*scene.palette).add({{0x5A, 0x59}, {0x59, 0x5A}}); // on the stack of another document
        scene.first.setIndex(0);
        QVERIFY(scene.tile(0x59) == 5 && scene.sprite(0x59) == 5);
    }

    void whatIsDeletedSinceIsNotMovedBack()
    {
        const Tile::State tile{plainImage({8, 8}, 1)};
        const TileSetEdit before{{tile, tile, tile}, {}, {}, {0, 1, 2}};
        const TileSetEdit moved{{tile, tile, tile}, {}, {}, {1, 2, 0}};
        const TileSetEdit now{{tile, tile}, {}, {}, {1, 2}};
        const TileSetEdit undone = TileSetChange(before, moved).undone(now);
        QCOMPARE(undone.names, (Numbering::Names{1, 2}));
        QCOMPARE(undone.tiles, now.tiles);
    }
    /// Edits on three stacks, which are undone and redone in any order in between: what must be left is what those that
    /// are not undone make of a scene of their own, one after the other.
    void undoInAnyOrderLeavesTheOtherEdits()
    {
        struct Step
        {
            const Edit *edit;
            QUndoStack *stack; ///< none of what undo does not know
            int index; ///< where in the stack it begins
        };
        for (quint32 seed = 1; seed <= Rounds; ++seed) {
            QRandomGenerator random(seed);
            QList<const Edit *> left;
            for (qsizetype i = 0; i < edits().size() - 1; ++i)
                left.insert(random.bounded(left.size() + 1), &edits()[i]);
            left.resize(seed % 2 ? left.size() : 2 + seed % 3); // two may meet more often than all of them
            left.append(&edits().last());
            Scene scene;
            QUndoStack third;
            QUndoStack *const stacks[] = {&scene.first, &scene.second, &third};
            QList<Step> steps;
            while (!left.isEmpty()) {
                const Edit *edit = left.takeFirst();
                scene.front = stacks[ofMaps().contains(edit->name) ? 0 : random.bounded(3)];
                const int index = scene.front->index();
                const int count = scene.front->count();
                edit->run(scene);
                if (scene.front->index() > index) {
                    steps.removeIf([&](const Step &step) { return step.stack == scene.front && step.index >= index; });
                    steps.append({edit, scene.front, index});
                } else if (left.isEmpty()) {
                    QCOMPARE(scene.front->count(), count);
                    steps.append({edit, nullptr, 0});
                }
                for (int i = random.bounded(8); i > 0; --i) {
                    const Step &step = steps[random.bounded(steps.size())];
                    if (step.stack)
                        step.stack->setIndex(random.bounded(2) ? step.index : step.stack->count());
                }
                Scene must;
                QStringList names;
                for (const Step &step : std::as_const(steps)) {
                    const bool undone = step.stack && step.stack->index() <= step.index;
                    names += undone ? QString("(%1)").arg(step.edit->name) : step.edit->name;
                    if (!undone)
                        step.edit->run(must);
                }
                if (scene.contents() != must.contents())
                    QFAIL(qPrintable(
                        QString("seed %1, after %2\nis\n%3\nmust be\n%4")
                            .arg(QString::number(seed), names.join(", "), scene.contents(), must.contents())));
            }
        }
    }

    /// What is shown after steps of maps and animations is the same whether tiles and sprites are deleted, and the
    /// first tile moves, before them or after them.
    void stepsPassThroughDeletionsAsIfThereWereNone()
    {
        const auto edit = [](Scene &scene) {
            scene.front = &scene.second;
            scene.ofMap(scene.other, [&scene](Map &map) {
                map.addSprite(scene.placed(4, 2));
                map.setTiles({0, 0, 8, 1}, scene.tile(5), false, false, false, true);
            });
            scene.block->frame(0)->setIndex(0, 2, scene.tile(2)); // over the tile that is deleted
            scene.walk->frame(0)->setIndex(0, 1, scene.sprite(2));
            scene.ofMap(scene.other, [](Map &map) {
                map.removeSprite(4); // the one that is deleted
                map.resize({3, 4}, Qt::AlignRight);
            });
            scene.ofMap(scene.level, [](Map &map) { map.setTiles({0, 0, 8, 2}, 0, false, false, false, true); });
            scene.ofMap(scene.level, [](Map &map) { map.removeSprite(3); });
            scene.ofMap(scene.small, [&scene](Map &map) { map.setTile({0, 0}, {scene.tile(2)}); });
        };
        Scene scene;
        edit(scene);
        deleteSome(scene);
        QList<QStringList> states; // by the steps of the edits, and of the deletions
        for (int index = 0; index <= scene.second.count(); ++index) {
            Scene must;
            edit(must);
            must.second.setIndex(index);
            states.append(deleteSome(must));
        }
        for (int deleted = 0; deleted < states.size(); ++deleted) {
            for (int back = 0; back < states.size(); ++back) {
                scene.second.setIndex(back);
                for (int index = scene.first.count(); index >= 0; --index) {
                    scene.first.setIndex(index);
                    QCOMPARE(scene.contents(), states[back][index]);
                }
                scene.second.setIndex(deleted);
                scene.first.setIndex(scene.first.count());
            }
        }
    }

    void editsMeanwhileAreAsIfNothingWereDeleted()
    {
        QList<QStringList> states; // by the steps of the edits
        for (const bool meanwhile : {false, true}) {
            Scene scene;
            scene.other->addSprite(scene.placed(4, 60)); // one of those that are deleted
            if (meanwhile)
                deleteSome(scene);
            const QString before = scene.contents();
            scene.front = &scene.second;
            scene.ofMap(scene.other, [](Map &map) { map.resize({3, 4}); });
            scene.ofMap(scene.small, [&scene](Map &map) {
                for (const QPointer<TileMap> &layer : {map.tileLayer(), map.objectLayer()})
                    layer->setCell({0, 0}, {scene.tile(6)});
            });
            scene.ofMap(scene.level, [&scene](Map &map) {
                map.setTiles({0, 0, 8, 2}, scene.tile(8), false, false, false, true);
                for (int x = 0; x < 8; ++x)
                    map.objectLayer()->setCell({x, 1}, {scene.tile(8), false, false, false, 0, true});
            });
            scene.block->frame(0)->setIndex(0, 2, scene.tile(6));
            scene.walk->frame(0)->setIndex(0, 1, scene.sprite(2));
            scene.second.setIndex(0);
            QCOMPARE(scene.contents(), before);
            scene.second.setIndex(scene.second.count());
            scene.first.setIndex(0);
            states.append(QStringList());
            for (int index = scene.second.count(); index >= 0; --index) {
                scene.second.setIndex(index);
                states.last().append(scene.contents());
            }
        }
        QCOMPARE(states[1], states[0]);
    }

    void whatIsShownForATileThatIsNotInsertedFollowsTheFirst()
    {
        Scene scene;
        scene.tileSet->insertTile(4);
        scene.front = &scene.second;
        scene.ofMap(scene.small, [](Map &map) { map.setTile({0, 0}, {4}); });
        scene.front = &scene.first;
        scene.first.undo();
        scene.tileSet->moveTile(0, 3);
        const QString shown = scene.contents();
        scene.second.undo();
        scene.second.redo();
        QCOMPARE(scene.contents(), shown);
    }

    void equalTilesThatChangePlacesAreAsTheyWere()
    {
        Scene scene;
        const auto tiles = scene.project->createTileSet("Blank", scene.palette->id(), 4);
        const auto map = scene.project->createMap("Blank", tiles->id(), {1, 1});
        tiles->setTileOffset(1, 5);
        map->setTile({0, 0}, {1, false, false, false, 0, true});
        map->objectLayer()->setCell({0, 0}, {3, false, false, false, 0, true});
        tiles->deleteTile(1);
        tiles->moveTile(0, 1); // where the deleted one was between them, in whose place the first is shown
        QCOMPARE(scene.first.undoText(), "Delete Tile");
        QCOMPARE(map->tileLayer()->cellAt({0, 0}).index, 0);
        scene.first.undo();
        QCOMPARE(tiles->tileOffset(1), 5);
        QCOMPARE(map->tileLayer()->cellAt({0, 0}).index, 1);
    }

    void editsWithoutAChangeLeaveNoStep()
    {
        Scene scene;
        scene.tileSet->setTileImage(6, scene.tileSet->image(1));
        scene.tileSet->setTileOffset(6, scene.tileSet->tileOffset(1));
        scene.tileSet->copyTile(1, 6);
        scene.bank->clearSprite(3);
        scene.ofBank([&] { scene.bank->clearSprite(3); });
        scene.ofBank([&] { scene.bank->copySprite(2, 2); });
        scene.ofBank([&] { scene.bank->moveSprite(2, 2); });
        scene.ofBank([&] { scene.bank->deleteSprite(99); });
        QCOMPARE(scene.first.count(), 0);
        scene.ofBank([&] { scene.bank->clearSprite(2); });
        QCOMPARE(scene.first.count(), 1);
    }

    void framesAddedSinceTakeTheSizeThatComesBack()
    {
        SpriteAnim run;
        const Animation::State small = run.state();
        run.setSize(QSize(3, 2));
        const Animation::State large = run.state();
        run.addFrame();
        const Animation::State back = changed(run.state(), large, small);
        QCOMPARE(back.size, small.size);
        for (const Animation::State::Frame &frame : back.frames)
            QVERIFY(frame.cells.size() == small.size.height() && frame.cells.last().size() == small.size.width());
        QCOMPARE(back.frames.size(), 2);
    }
};

QUENMORA_TEST_MAIN(TestUndoOrder)
#include "tst_undoorder.moc"
