#include "support/mapfixture.h"
#include "support/testmain.h"
#include "undo/editrecorder.h"

#include <QtWidgets>

using namespace Quenmora::Ui;
using TileData = TileMap::TileData;
using F = MapGridFixture;

class TestMapTools : public QObject
{
    Q_OBJECT

private slots:
    void strokeWritesItsCells()
    {
        using Points = QList<QPoint>;
        // where the pointer goes, the snap size, and the cells row by row
        for (const auto &[points, snap, cells] : {
                 std::tuple(Points{F::at(2, 2)}, 1, Points()), // without a move
                 {{F::at(3, 5), F::at(2, 2)}, 1, {{2, 2}, {2, 3}, {3, 4}, {3, 5}}}, // fast
                 {{F::at(1, 1), F::at(13, 5)}, 4, {{0, 0}, {4, 0}, {8, 4}, {12, 4}}},
                 {{F::at(2, 2), F::at(3, 2), {-40, 500}, F::at(6, 2)}, 1, {{2, 2}, {3, 2}, {6, 2}}}, // outside and back
             }) {
            F f;
            f.grid.setCurrentTileIndex(3);
            f.grid.setRotated(true);
            f.grid.setMirrored(true);
            f.grid.setSnapToSize(snap);
            for (const auto button : {Qt::LeftButton, Qt::RightButton}) { // which clears again
                f.drag(points, button);
                Points written;
                for (int i = 0; i < 16 * 20; ++i) {
                    if (f.tile(i % 20, i / 20) == TileData{3, true, false, true, 2, button == Qt::LeftButton})
                        written.append({i % 20, i / 20});
                }
                QCOMPARE(written, cells);
            }
            QCOMPARE(f.steps(), cells.isEmpty() ? "" : "Paint|Paint");
        }
    }

    void clickPaintsWhereThatIsChosen()
    {
        F f;
        f.grid.setPaintsOnPress(true);
        f.grid.setCurrentTileIndex(4);
        for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) { // which picks
            f.click(f.at(3, 2), button);
            QCOMPARE(f.tile(3, 2).used, button == Qt::LeftButton);
        }
        f.grid.setCurrentTileAnimation(f.animation);
        f.click(f.at(3, 2));
        f.click(f.at(3, 2)); // on the one that is there
        f.grid.resize(f.grid.size() + QSize(0, 100)); // with room around the map
        f.move(f.at(12, 9)); // off the one that is there
        f.click(f.at(12, 20));
        QCOMPARE(f.map->animatedBlocks()->list().size(), 1);
        QCOMPARE(f.steps(), "Paint|Paint|Place Animation");
    }

    void strokeIsOneStep()
    {
        F f;
        f.grid.setCurrentTileIndex(4);
        for (int i = 0; i < 2; ++i) // the same tile over itself
            f.drag({f.at(0, 3), f.at(4, 3), f.at(9, 3)});
        QCOMPARE(f.steps(), "Paint");
        f.drag({f.at(1, 0), f.at(2, 0), {-3, -3}}); // released outside, and the edit ends all the same
        f.move(f.at(7, 7));
        QVERIFY(!f.tile(7, 7).used); // no button is held any more
        QCOMPARE(f.stack.count(), 2);
    }

    void hiddenLayersAreNotEdited()
    {
        F f;
        const Map::Snapshot before = f.map->snapshot();
        const std::function<void()> choices[] = {[&f] { f.grid.setCurrentTileIndex(4); },
                                                 [&f] { f.grid.setCurrentTileAnimation(f.animation); },
                                                 [&f] { f.grid.setCurrentSprite(f.bank->id(), 1); }};
        const auto show = [&f](bool visible) {
            f.grid.setMapVisibility(visible);
            f.grid.setObjectVisibility(visible);
            f.grid.setSpriteVisibility(visible);
        };
        for (const auto &choose : choices) {
            choose();
            const Qt::CursorShape shape = f.grid.cursor().shape();
            show(false);
            QCOMPARE(f.grid.cursor().shape(), Qt::ForbiddenCursor);
            f.drag({f.at(1, 1), f.at(2, 1)});
            QVERIFY(f.map->snapshot() == before);
            show(true);
            QCOMPARE(f.grid.cursor().shape(), shape);
        }
    }

    void placesAnAnimationOncePerStroke()
    {
        F f;
        f.grid.setCurrentTileAnimation(f.animation);
        f.drag({f.at(2, 3), f.at(3, 3), f.at(9, 9)});
        f.move(f.at(4, 4));
        QCOMPARE(f.grid.cursor().shape(), Qt::SizeAllCursor); // over what was placed just now
        QCOMPARE(f.map->animatedBlocks()->areas(), (QHash<QRect, QUuid>{{QRect(3, 3, 3, 2), f.animation->id()}}));
        QCOMPARE(f.object(5, 4), (TileData{5, false, false, false, 0, true}));
        f.move(f.at(15, 10));
        QVERIFY(!f.grid.removeAnimation());
        f.move(f.at(5, 4));
        QCOMPARE(f.grid.pointer().highlight, QRect(3, 3, 3, 2));
        f.drag({f.at(5, 4), f.at(12, 4)}); // what is there already is not placed again
        QVERIFY(f.grid.removeAnimation() && f.map->animatedBlocks()->list().isEmpty());
        QCOMPARE(f.steps(), "Place Animation|Remove Animation");
        f.stack.setIndex(0);
        QVERIFY(f.map->animatedBlocks()->list().isEmpty() && !f.object(5, 4).used);
    }

    void selectsTheCellsUnderTheBand()
    {
        for (const auto &[from, to, cells] : {std::tuple(F::at(5, 4), F::at(2, 3), QRect(2, 3, 4, 2)),
                                              {F::at(5, 4), F::at(5, 4) + QPoint(1, 1), {5, 4, 1, 1}},
                                              {QPoint(-90, -90), F::at(1, 1), {0, 0, 2, 2}}}) {
            F f;
            f.press(from, Qt::LeftButton, Qt::ShiftModifier); // with any tool
            f.move(f.at(8, 8));
            f.move(to);
            f.release(to);
            QCOMPARE(f.grid.mode(), Select);
            QCOMPARE(f.grid.selection(), cells);
            f.grid.copySelection();
            QCOMPARE(f.grid.mode(), Draw);
            QVERIFY(f.grid.selection() == cells && f.grid.pasteArea() == cells);
            f.grid.setMode(Draw);
            QVERIFY(f.grid.selection().isEmpty());
        }
    }

    void pastesWhatIsOfTheSameTiles()
    {
        for (const bool own : {true, false}) {
            F f;
            MapAssets others;
            const MapAssets &source = own ? static_cast<const MapAssets &>(f) : others;
            source.map->setTile({4, 4}, {1, false, false, false, 0, true});
            source.map->setTile({5, 5}, {5, false, false, false, 0, true});
            const auto copy = [&source](const QRect &cells) {
                QApplication::clipboard()->setMimeData(source.map->tileLayer()->toMimeData(cells));
            };
            copy({4, 4, 3, 2});
            f.grid.setMode(Select);
            f.grid.setMode(Paste);
            QCOMPARE(f.grid.mode(), own ? Paste : Select);
            f.move(f.at(19, 8));
            f.click(f.at(19, 8));
            QCOMPARE(f.tile(18, 7).index, own ? 1 : 0); // around the pointer; the last column lies outside
            QCOMPARE(f.tile(19, 8).index, own ? 5 : 0);
            copy({0, 0, 1, 1}); // in place of what was accepted
            f.click(f.at(10, 10));
            QCOMPARE(f.steps(), own ? "Paste" : "");
        }
    }

    /// Cut into tiles that are there, turned or not, and others, which take the place of what is blank and unused.
    void pastesPicturesAsTiles()
    {
        for (const int clear : {-1, 9}) {
            F f;
            const EditRecorder recorder(&f.project, [&f](const QUuid &) { return &f.stack; });
            f.map->setTileTransparencyIndex(clear);
            QImage seven = f.tiles->image(7);
            seven.setPixel(0, 0, 1);
            f.tiles->setTileImage(7, seven);
            for (const int blank : {14, 15})
                f.tiles->setTileImage(blank, plainImage({8, 8}, 0));
            f.map->setTile({0, 0}, {.index = 14, .used = true}); // which somebody wants to be blank
            // tile 7 turned, tile 5, new, the same turned, a colour of another group, tile 3 with its offset and a hole
            const int colours[] = {7, 5, 20, 20, 5, 35};
            const QHash<QPoint, int> others{{{7, 0}, 1}, {{16, 0}, 21}, {{31, 7}, 21}, {{32, 1}, 100}, {{40, 0}, -1}};
            const QImage picture = pictureOf({48, 8}, QImage::Format_ARGB32, [&](int i) {
                const int usual = colours[i % 48 / 8];
                const int index = others.value({i % 48, i / 48}, usual);
                return index < 0 && clear >= 0 ? 0 : f.palette->colour(index < 0 ? usual : index).rgba();
            });
            QApplication::clipboard()->setImage(picture);
            const TileSet::Snapshot before = f.tiles->snapshot();
            const Map::Snapshot mapBefore = f.map->snapshot();

            f.grid.setMode(Paste);
            QCOMPARE(f.grid.mode(), Draw); // unless somebody records it
            f.grid.setPastesPictures(true);
            f.grid.setMode(Paste);
            const int added = clear < 0 ? 1 : 2;
            for (const int row : {8, 9}) { // the second time the tiles are there
                f.move(f.at(13, row));
                f.click(f.at(13, row));
                QCOMPARE(f.tiles->count(), 16 + added);
                for (const auto &[column, tile] : {std::pair(10, 7), {11, 5}, {12, 15}, {13, 15}}) // around the pointer
                    QCOMPARE(f.tile(column, row).index, tile);
            }
            QCOMPARE(f.steps(), "Paste Picture|Paste Picture");
            const auto shown = [&] {
                return f.map->tileLayer()
                    ->render({10, 8, 6, 1}, 1, clear)
                    .convertToFormat(QImage::Format_ARGB32_Premultiplied);
            };
            const QImage pasted = shown();
            QImage wanted = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
            wanted.setPixel(32, 1, pasted.pixel(32, 1)); // which is lost
            QCOMPARE(pasted, wanted);
            f.stack.setIndex(0);
            QVERIFY(f.map->snapshot() == mapBefore);
            QCOMPARE(f.tiles->snapshot(), before);
            f.stack.redo();
            QCOMPARE(shown(), pasted);
            f.stack.undo();
            f.move(f.at(19, 8));
            f.click(f.at(19, 8)); // what lies beside the map brings no tiles
            QCOMPARE(f.tiles->count(), 16);
            QCOMPARE(f.tile(19, 8).index, 15);
        }
    }

    void pastesNoPictureWithoutRoom()
    {
        F f;
        const EditRecorder recorder(&f.project, [&f](const QUuid &) { return &f.stack; });
        f.grid.setPastesPictures(true);
        while (f.tiles->count() < 511)
            f.tiles->insertTile(1);
        for (int i = 0; i < 511; ++i)
            f.tiles->setTileImage(i, plainImage({8, 8}, 3));
        const QImage picture =
            pictureOf({16, 8}, QImage::Format_RGB32, [&f](int i) { return f.palette->colour(i == 0 ? 51 : 50).rgb(); });
        for (const int tiles : {2, 1}) {
            QApplication::clipboard()->setImage(picture.copy(0, 0, tiles * 8, 8));
            f.grid.setMode(Paste);
            QCOMPARE(f.grid.mode(), tiles == 1 ? Paste : Draw);
        }
        f.click(f.at(3, 3));
        QCOMPARE(f.tiles->count(), 512);
    }

    void picksAndReturnsToTheToolBefore()
    {
        F f;
        const TileData tile{3, true, false, true, 7, true};
        f.map->setTile({4, 2}, tile);
        QApplication::clipboard()->clear();
        QSignalSpy picked(&f.grid, &MapEditor::MapGrid::tilePicked);
        for (const ToolButton mode : {Select, Pick, Pick, Paste}) // which is refused
            f.grid.setMode(mode);
        f.click(f.at(4, 2), Qt::RightButton);
        QCOMPARE(f.grid.mode(), Pick);
        f.click(f.at(4, 2));
        QCOMPARE(f.grid.mode(), Select);
        f.grid.setMode(Draw);
        f.grid.setCurrentTileIndex(9);
        f.drag({f.at(2, 2), f.at(3, 2), f.at(4, 2)}, Qt::MiddleButton);
        QCOMPARE(picked, (Signals{{QVariant::fromValue(tile)}, {QVariant::fromValue(tile)}}));
        QCOMPARE(f.grid.mode(), Draw);
        QCOMPARE(f.stack.count(), 0);
    }

    void placesSpritesInsideTheMap()
    {
        F f;
        QSignalSpy clicked(&f.grid, &MapEditor::MapGrid::spriteClicked);
        f.grid.setCurrentSpriteAnimation(f.run);
        for (const auto &[pixel, snap, position] : {std::tuple(QPoint(33, 21), 1, QPoint(33, 21)),
                                                    {QPoint(99, 21), 2, QPoint(96, 16)},
                                                    {QPoint(159, 127), 1, QPoint(159, 127)}}) {
            f.grid.setSnapToSize(snap);
            f.click(f.pixel(pixel.x(), pixel.y()));
            QCOMPARE(f.grid.selectedSprite(), f.map->sprites().size() - 1);
            QCOMPARE(f.map->sprites().last(), f.animated(position));
        }
        f.click(f.pixel(160, 20)); // outside
        f.drag({f.pixel(40, 30), f.pixel(41, 30)}); // too short for a move
        QCOMPARE(clicked, (Signals{{0}}));
        f.grid.setCurrentSprite({}, -1);
        f.click(f.pixel(60, 100)); // beside them, with nothing to place
        QCOMPARE(f.grid.selectedSprite(), -1);
        f.grid.setCurrentSprite(f.bank->id(), 3);
        f.bank->deleteSprite(0); // so that number 3 is gone
        f.click(f.pixel(60, 100));
        QCOMPARE(f.map->sprites().size(), 3);
        QCOMPARE(f.steps(), "Place Sprite|Place Sprite|Place Sprite");
    }

    void movesTheTopmostSprite()
    {
        F f;
        QSignalSpy clicked(&f.grid, &MapEditor::MapGrid::spriteClicked);
        f.map->addSprite(f.sprite(1, {40, 40}));
        f.map->addSprite(f.sprite(2, {44, 44}));
        f.grid.setMode(PlaceSprite);
        f.grid.setSnapToSize(2);
        f.drag({f.pixel(46, 47), f.pixel(60, 60), f.pixel(97, 70)});
        QCOMPARE(f.map->sprites(), (QList{f.sprite(1, {40, 40}), f.sprite(2, {80, 64})})); // (95, 67) snapped
        f.press(f.pixel(45, 45));
        f.bank->deleteSprite(1); // and with it what is being dragged
        f.move(f.pixel(70, 70));
        f.release(f.pixel(70, 70));
        QCOMPARE(f.map->sprites(), QList{f.sprite(1, {80, 64})});
        QCOMPARE(f.steps(), "Move Sprite|Move Sprite"); // the bank's change is in the second
        QVERIFY(clicked.isEmpty());

        f.move(f.pixel(81, 65));
        f.grid.setSpriteVisibility(false);
        QVERIFY(!f.grid.deleteSprite()); // what is hidden is not under the pointer
        f.move(f.pixel(82, 65));
        f.grid.setSpriteVisibility(true);
        QVERIFY(!f.grid.deleteSprite());
        f.move(f.pixel(81, 65));
        QVERIFY(f.grid.deleteSprite());
    }
};

QUENMORA_TEST_MAIN(TestMapTools)
#include "tst_maptools.moc"
