#include "editors/canvas/canvas.h"
#include "editors/canvas/spritelist.h"
#include "editors/canvas/tilepickergrid.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "editors/map/paintbar.h"
#include "editors/map/paintdesk.h"
#include "editors/map/spritepropertiespopover.h"
#include "editors/map/terrainmarks.h"
#include "support/windowscene.h"
#include "ui/focusring.h"
#include "ui/keycursor.h"
#include "ui/keymark.h"

#include <optional>

using namespace Quenmora::Ui;

class TestWithoutMouse : public QObject, protected WindowScene
{
    Q_OBJECT

private slots:
    void init()
    {
        openWindow();
        m_window->resize(1400, 900);
        // with a map of 120 × 90 empty cells, larger than any view of it
        controller()->newProject("Game");
        const auto palette = project().createPalette(CreateAction::DefaultNext, "Colours");
        const auto tiles = project().createTileSet("Tiles", palette->id(), 20);
        for (int i = 0; i < tiles->count(); ++i)
            tiles->setTileImage(i, plainImage({8, 8}, i % 16));
        project().createBlockList("Blocks", tiles->id())->createBoundTileAnimation("Torch")->addFrame();
        project().createSpriteBank(Quenmora::EightBit, "Hero", palette->id());
        project().createMap("Level", tiles->id(), {120, 90});
        activateWindow();
        documents().setActiveMap(project().maps().first()->id());
        grid().clearFocus();
        grid().setFocus(Qt::TabFocusReason);
    }

    void cleanup() { m_window.reset(); }

    void paintsAMap()
    {
        grid().setCurrentTileIndex(3);
        const QUndoStack &stack = *documents().undoStackFor(map().id());
        key(Qt::Key_Down, Qt::ControlModifier); // from the corner to 0, 1
        hold(Qt::Key_Space);
        for (int i = 0; i < 3; ++i)
            key(Qt::Key_Right, Qt::ControlModifier);
        QTest::keyRelease(&grid(), Qt::Key_Space, Qt::ControlModifier);
        QCOMPARE(rowOf(1, 5), QList<int>({3, 3, 3, 3, -1}));
        QCOMPARE(stack.count(), 1);
        key(Qt::Key_Space, Qt::ShiftModifier); // the right button clears
        QCOMPARE(rowOf(1, 5), QList<int>({3, 3, 3, -1, -1}));
        QCOMPARE(stack.count(), 2);

        key(Qt::Key_Left, Qt::ControlModifier);
        grid().setCurrentTileIndex(0);
        key(Qt::Key_Return);
        QCOMPARE(grid().currentTileIndex(), 3);
        QCOMPARE(views().tilePicker->findChild<TilePickerGrid *>()->selectedIndex(), 3);

        key(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
        key(Qt::Key_PageDown, Qt::ShiftModifier);
        QCOMPARE(grid().mode(), Select);
        QCOMPARE(grid().selection(), QRect(2, 1, 1, 10));

        // far from what is in view, and with a selection by Space that is larger than the view
        key(Qt::Key_Home, Qt::ControlModifier);
        hold(Qt::Key_Space);
        key(Qt::Key_End, Qt::ControlModifier);
        QTest::keyRelease(&grid(), Qt::Key_Space);
        QCOMPARE(grid().selection(), QRect(QPoint(0, 0), map().size()));
        QVERIFY(grid().viewport().visibleCells().contains({119, 89}));
        QVERIFY(mark()->isVisible());
        QMouseEvent move(QEvent::MouseMove, QPointF(50, 50), grid().mapToGlobal(QPointF(50, 50)), Qt::NoButton, {}, {});
        QApplication::sendEvent(&grid(), &move);
        QVERIFY(!mark()->isVisible());
    }

    void placesASpriteToTheCell()
    {
        map().setSpriteLayerVisible(true);
        grid().setCurrentSprite(project().spriteBanks().first()->id(), 0);
        key(Qt::Key_PageDown);
        key(Qt::Key_Right, Qt::ControlModifier);
        key(Qt::Key_Space);
        QCOMPARE(map().sprites().size(), 1);
        hold(Qt::Key_Space);
        key(Qt::Key_Right, Qt::ControlModifier);
        QTest::keyRelease(&grid(), Qt::Key_Space);
        QCOMPARE(map().sprites().size(), 1);
        QCOMPARE(QPoint(map().sprites().first().x, map().sprites().first().y), QPoint(16, 64));
        key(Qt::Key_Space); // a click opens its properties
        QVERIFY(page<MapEditor::View>()->popover()->isVisible());
    }

    void drawsATile()
    {
        Canvas &canvas = *views().tileEditor->canvas();
        canvas.setFocus(Qt::TabFocusReason);
        views().tileEditor->setTileIndex(2);
        canvas.setInk(5);
        canvas.setPaper(6);
        const QUndoStack &stack = *documents().undoStackFor(project().tileSets().first()->id());
        canvas.setMode(Line);
        QTest::keyPress(&canvas, Qt::Key_Space);
        QTest::keyClick(&canvas, Qt::Key_PageDown);
        QTest::keyRelease(&canvas, Qt::Key_Space);
        for (int y = 0; y < 8; ++y)
            QCOMPARE(canvas.image().pixelIndex(0, y), 5);
        QCOMPARE(stack.count(), 1);
        canvas.setMode(Draw);
        QTest::keyClick(&canvas, Qt::Key_Space, Qt::ShiftModifier);
        QCOMPARE(canvas.image().pixelIndex(0, 7), 6);
        QTest::keyClick(&canvas, Qt::Key_Return);
        QCOMPARE(canvas.ink(), 6);
        QTest::keyClick(&canvas, Qt::Key_Up, Qt::ControlModifier);
        QTest::keyClick(&canvas, Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(canvas.paper(), 5);
        QTest::keyClick(&canvas, Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(canvas.selection(), QRect(0, 6, 2, 1));
        QTest::keyClick(&canvas, Qt::Key_Right); // arrows by themselves do what they did: the selection moves
        QCOMPARE(canvas.selection(), QRect(1, 6, 2, 1));
    }

    void isNotThereByItself()
    {
        MapEditor::MapGrid plain;
        plain.setMap(&map());
        plain.setCurrentTileIndex(3);
        Canvas canvas({8, 8});
        canvas.bindPalette(project().palettes().first());
        for (QWidget *widget : std::initializer_list<QWidget *>{&plain, &canvas}) {
            widget->show();
            widget->setFocus(Qt::TabFocusReason);
            QTest::keyClick(widget, Qt::Key_Right, Qt::ControlModifier);
            QTest::keyClick(widget, Qt::Key_Space);
            QVERIFY(!CellTable::of(widget));
        }
        QCOMPARE(rowOf(0, 2), QList<int>({-1, -1}));
        QCOMPARE(canvas.image().pixelIndex(1, 0), 0);
    }

    void movesInThePickers()
    {
        auto &picker = *views().tilePicker->findChild<TilePickerGrid *>();
        TileSet &tiles = *project().tileSets().first();
        picker.setFocus();
        picker.setSelectedIndex(1);
        const int second = tiles.image(1).pixelIndex(0, 0);
        QTest::keyClick(&picker, Qt::Key_Right, Qt::AltModifier);
        QCOMPARE(tiles.image(2).pixelIndex(0, 0), second);
        QCOMPARE(picker.selectedIndex(), 2);
        QSignalSpy picked(&picker, &TilePickerGrid::tilesPicked);
        QTest::keyClick(&picker, Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(picked.last().first().value<QList<QList<int>>>(), QList<QList<int>>({{2, 3}}));
        QTest::keyClick(&picker, Qt::Key_End);
        QCOMPARE(picker.selectedIndex(), tiles.count() - 1);
        QCOMPARE(CellTable::of(&picker)->text(CellTable::of(&picker)->current()), "Tile 19, palette offset 0");

        documents().setActiveSpriteEditor(project().spriteBanks().first()->id());
        auto &list = *views().spriteEditor->findChild<SpriteEditor::SpriteList *>();
        list.setFocus();
        QTest::keyClick(&list, Qt::Key_Insert);
        QCOMPARE(project().spriteBanks().first()->count(), 2);
    }

    void marksTerrains()
    {
        MapEditor::TerrainMarks marks;
        marks.resize(500, 300);
        marks.MapEditor::TerrainMarks::show(project().tileSets().first(), {"Hill", false, {}});
        marks.QWidget::show();
        for (int i = 0; i < 4; ++i) // to the middle of the second tile
            QTest::keyClick(&marks, Qt::Key_Right, Qt::ControlModifier);
        QTest::keyClick(&marks, Qt::Key_Down, Qt::ControlModifier);
        QTest::keyClick(&marks, Qt::Key_Space);
        QTest::keyClick(&marks, Qt::Key_Up, Qt::ControlModifier);
        QTest::keyClick(&marks, Qt::Key_Space);
        QVERIFY(marks.terrain().find(1) && marks.terrain().find(1)->marks == Terrain::North);
        QTest::keyClick(&marks, Qt::Key_Down, Qt::ControlModifier);
        QTest::keyClick(&marks, Qt::Key_Space, Qt::ShiftModifier);
        QVERIFY(!marks.terrain().find(1));
    }

    /// Where the menus' entries have no keys of their own, which act on what is chosen.
    void opensContextMenus()
    {
        const auto entriesOf = [](QWidget *widget, QPoint where) {
            QContextMenuEvent event(QContextMenuEvent::Keyboard, where, widget->mapToGlobal(where));
            QApplication::sendEvent(widget, &event);
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            QList<QAction *> entries = menu ? menu->actions() : QList<QAction *>();
            if (menu)
                QMetaObject::invokeMethod(menu, &QWidget::close, Qt::QueuedConnection);
            return entries;
        };
        for (const auto reason : {Qt::TabFocusReason, Qt::MouseFocusReason}) {
            grid().clearFocus();
            grid().setFocus(reason);
            QVERIFY(!entriesOf(&grid(), {20, 20}).isEmpty());
            QCoreApplication::processEvents();
        }
        // that of the tab in front, although another one is in the middle of the bar
        documents().setActiveSpriteEditor(project().spriteBanks().first()->id());
        documents().setActiveBlockEditor(project().blockSets().first()->id());
        DocumentTabView &tabs = *m_window->views().tabs;
        const QPointer<QWidget> front = tabs.widget(tabs.count() - 1);
        tabs.setCurrentWidget(front);
        entriesOf(tabs.tabBar(), tabs.tabBar()->rect().center()).first()->trigger();
        QVERIFY(tabs.indexOf(front) < 0);
        QCoreApplication::processEvents();

        documents().setActiveMap(map().id());
        TileMap::TileData cell{3};
        cell.used = true; // nothing is no stamp
        map().setTile({0, 0}, cell);
        page<MapEditor::View>()->paintDesk()->pickStamp(Stamp::of(*map().tileLayer(), {0, 0, 2, 1}));
        auto *bar = page<MapEditor::View>()->findChild<MapEditor::PaintBar *>();
        QToolButton *stamp = nullptr;
        QTRY_VERIFY((stamp = qobject_cast<QToolButton *>(bar->widgetForAction(bar->actions().last()))));
        QVERIFY(stamp->focusPolicy() & Qt::TabFocus);
        stamp->setFocus(Qt::TabFocusReason);
        QCOMPARE(entriesOf(stamp, stamp->rect().center()).size(), 2);
        QCoreApplication::processEvents();
        QTest::keyClick(stamp, Qt::Key_Space);
        QCOMPARE(m_window->focusWidget(), &grid()); // to paint with it
    }

    void takesTheChosenSpriteAgain()
    {
        auto *list = views().mapSprites->findChild<QListView *>("sprites");
        views().mapSprites->raise();
        list->setCurrentIndex(list->model()->index(0, 0));
        grid().setMode(Draw);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(grid().mode(), PlaceSprite);
    }

    void tellsWhereTheKeyboardIs()
    {
        QStringList told;
        Canvas &canvas = *views().tileEditor->canvas();
        for (const QWidget *widget : std::initializer_list<const QWidget *>{&grid(), &canvas}) {
            CellTable *cells = CellTable::of(widget);
            connect(cells, &CellTable::told, this, [cells, &told](QPoint cell) { told.append(cells->text(cell)); });
        }
        map().setTile({1, 0}, {7, true, false, true, 2, true});
        key(Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(told.last(), "Column 1, row 0, tile 7, rotated, mirrored, palette offset 2");
        grid().setCurrentTileIndex(4);
        key(Qt::Key_Space);
        QCOMPARE(told.last(), "Column 1, row 0, tile 4");
        canvas.setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
        QCOMPARE(told.last(), QStringLiteral("Column 0, row 0, colour 0, %1").arg(colour(0)));

        QAccessibleInterface *table = QAccessible::queryAccessibleInterface(&grid());
        QCOMPARE(table->role(), QAccessible::Table);
        QCOMPARE(QAccessible::queryAccessibleInterface(&canvas)->role(), QAccessible::Table);
        QCOMPARE(table->text(QAccessible::Value), "Column 1, row 0, tile 4");
        QCOMPARE(table->childCount(), 120 * 90);
        QCOMPARE(table->tableInterface()->cellAt(2, 100)->text(QAccessible::Name), "Column 100, row 2, empty");
        const QRect place = grid().viewport().rectOfCells({3, 2, 1, 1});
        const QPoint centre = grid().mapToGlobal(place.center());
        QAccessibleInterface *cell = table->childAt(centre.x(), centre.y());
        QCOMPARE(table->indexOfChild(cell), 2 * 120 + 3);
        QCOMPARE(cell->rect(), QRect(grid().mapToGlobal(place.topLeft()), place.size()));
        const QAccessible::Id first = QAccessible::uniqueId(table->child(0));
        for (int i = 0; i < table->childCount(); ++i)
            QVERIFY(table->child(i));
        QVERIFY(!QAccessible::accessibleInterface(first)); // it was given up for others
        cell = table->child(5);
        cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(rowOf(0, 6), QList<int>({-1, 4, -1, -1, -1, 4}));
    }

    void showsWhereTheKeyboardIs()
    {
        const auto ring = [this] { return m_window->findChild<FocusRing *>()->frame(); };
        auto &picker = *views().tilePicker->findChild<TilePickerGrid *>();
        picker.setFocus(Qt::MouseFocusReason);
        QVERIFY(!ring());
        grid().setFocus();
        picker.setFocus(Qt::TabFocusReason);
        QVERIFY(ring());
        const QRect seen(picker.mapTo(&*m_window, QPoint(0, 0)), picker.visibleRegion().boundingRect().size());
        QVERIFY(ring()->geometry().contains(seen));
    }

    void goesFromPaneToPane()
    {
        // in the order of the View menu, without the docks that are behind others
        for (const QWidget *pane :
             std::initializer_list<QWidget *>{views().project, views().tileEditor, views().tilePicker,
                                              views().mapObjects, views().mapToolBar, views().tabs, views().project}) {
            QTest::keyClick(&*m_window, Qt::Key_F6);
            QVERIFY2(pane->isAncestorOf(QApplication::focusWidget()), qPrintable(pane->objectName()));
        }
        QTest::keyClick(&*m_window, Qt::Key_F6, Qt::ShiftModifier);
        QVERIFY(tabs()->isAncestorOf(QApplication::focusWidget()));
        // docks that are behind others
        views().tileEditor->raise();
        documents().setActiveSpriteEditor(project().spriteBanks().first()->id());
        documents().setActivePalette(project().palettes().first()->id());
        views().palette->findChild<QAbstractButton *>()->setFocus();
        for (const QDockWidget *dock :
             std::initializer_list<const QDockWidget *>{views().tileEditor, views().spriteEditor, views().palette}) {
            QTest::keyClick(&*m_window, Qt::Key_F6, Qt::ControlModifier);
            QVERIFY2(dock->isAncestorOf(QApplication::focusWidget()), qPrintable(dock->objectName()));
            QVERIFY2(!dock->visibleRegion().isEmpty(), qPrintable(dock->objectName()));
        }
    }

private:
    [[nodiscard]] Map &map() { return *project().maps().first(); }
    [[nodiscard]] MapEditor::MapGrid &grid() { return *page<MapEditor::View>()->grid(); }
    [[nodiscard]] const QWidget *mark()
    {
        const auto children = grid().findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        const auto found = std::ranges::find_if(children, [](auto *child) { return dynamic_cast<KeyMark *>(child); });
        return found == children.end() ? nullptr : *found;
    }
    /// The tiles of the first cells of a row, -1 for an empty one.
    [[nodiscard]] QList<int> rowOf(int row, int count)
    {
        QList<int> tiles;
        for (int x = 0; x < count; ++x) {
            const TileMap::TileData cell = map().tileLayer()->cellAt({x, row});
            tiles.append(cell.used ? cell.index : -1);
        }
        return tiles;
    }
    [[nodiscard]] QString colour(int index)
    {
        return QColor(project().palettes().first()->colourTable().at(index)).name();
    }
    void key(Qt::Key code, Qt::KeyboardModifiers keys = {}) { QTest::keyClick(&grid(), code, keys); }
    void hold(Qt::Key code) { QTest::keyPress(&grid(), code); }
};

QUENMORA_TEST_MAIN(TestWithoutMouse)
#include "tst_withoutmouse.moc"
