// A screen of 40 × 32 cells is painted twice, as quickly as possible with the usual tools and with all that there are.

#include "editors/map/paintdesk.h"
#include "support/mapfixture.h"
#include "support/testmain.h"

#include <QtWidgets>

using namespace Quenmora::Ui;

namespace {

constexpr QSize Screen(40, 32);

// Tiles, of which those of a house, a tree and a cloud lie beside each other in the set, in rows of 16.
enum { Sky = 1, Grass = 2, Earth = 3, Brick = 4, Water = 5, House = 16, Tree = 19, Cloud = 21, Across = 16 };
constexpr QSize HouseSize(3, 3);
constexpr QSize TreeSize(2, 3);
constexpr QSize CloudSize(3, 1);

const QList Houses{QPoint(3, 21), QPoint(12, 21), QPoint(21, 21), QPoint(34, 21)};
const QList Trees{QPoint(7, 21), QPoint(9, 21), QPoint(16, 21), QPoint(18, 21), QPoint(25, 21), QPoint(31, 21)};
const QList Clouds{QPoint(2, 2), QPoint(9, 4), QPoint(15, 1), QPoint(24, 3), QPoint(33, 2)};
const QList Platforms{QRect(4, 15, 7, 2), QRect(14, 12, 7, 2), QRect(24, 9, 7, 2), QRect(32, 14, 7, 2)};
const QRect Ground(0, 25, 40, 7);
const QRect Pond(27, 24, 3, 1); // into which the grass goes down

QList<QList<int>> block(int first, QSize size)
{
    QList<QList<int>> rows(size.height());
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            rows[y].append(first + y * Across + x);
    }
    return rows;
}

/// The tiles of the screen as they are to be.
QList<QList<int>> reference()
{
    QList<QList<int>> tiles(Screen.height(), QList<int>(Screen.width(), Sky));
    const auto put = [&tiles](QPoint at, const QList<QList<int>> &rows) {
        for (int y = 0; y < rows.size(); ++y) {
            for (int x = 0; x < rows[y].size(); ++x)
                tiles[at.y() + y][at.x() + x] = rows[y][x];
        }
    };
    const auto fill = [&put](const QRect &area, int tile) {
        put(area.topLeft(), QList<QList<int>>(area.height(), QList<int>(area.width(), tile)));
    };
    fill(Ground, Earth);
    fill(Ground.adjusted(0, -1, 0, -Ground.height()), Grass);
    fill(Pond, Water);
    for (const QRect &platform : Platforms)
        fill(platform, Brick);
    for (const QPoint at : Houses)
        put(at, block(House, HouseSize));
    for (const QPoint at : Trees)
        put(at, block(Tree, TreeSize));
    for (const QPoint at : Clouds)
        put(at, block(Cloud, CloudSize));
    return tiles;
}

/// Somebody who paints the screen, and whose clicks, drags and keys are counted.
class Painter
{
public:
    Painter()
    {
        for (int i = 16; i < 80; ++i)
            m_assets.tiles->insertTile(i);
        m_map = m_assets.project.createMap("Screen", m_assets.tiles->id(), Screen);
        m_view.emplace(m_map);
        m_view->setUndoStack(&m_assets.stack);
        m_view->grid()->setPaintsOnPress(true);
        m_view->offerMore(nullptr);
        m_view->resize(760, 700);
        m_view->show();
        m_view->grid()->setBaseSize(4);
    }

    int actions() const { return m_actions; }
    QList<QList<int>> tiles() const
    {
        QList<QList<int>> tiles(Screen.height());
        for (int y = 0; y < Screen.height(); ++y) {
            for (int x = 0; x < Screen.width(); ++x) {
                const TileMap::TileData cell = m_map->tileLayer()->cellAt({x, y});
                tiles[y].append(cell.used ? cell.index : -1);
            }
        }
        return tiles;
    }

    // Each of these is one action.
    void choose(int tile) { done().setTileIndex(tile); }
    void take(ToolButton tool) { done().toolPaletteClicked(tool); }
    void mark(const QList<QList<int>> &tiles) { done().paintDesk()->pickTiles(tiles); }
    void copy() { done().copy(); }
    void paste() { done().paste(); }
    void selectAll() { done().selectAll(); }
    void click(QPoint cell) { drag(cell, cell); }
    void drag(QPoint from, QPoint to)
    {
        MapEditor::MapGrid &grid = *done().grid();
        const auto at = [&grid](QPoint cell) { return grid.viewport().rectOfCells(QRect(cell, QSize(1, 1))).center(); };
        QTest::mouseMove(&grid, at(from));
        QTest::mousePress(&grid, Qt::LeftButton, {}, at(from));
        QTest::mouseMove(&grid, at(to));
        QTest::mouseRelease(&grid, Qt::LeftButton, {}, at(to));
    }
    void drag(const QRect &cells) { drag(cells.topLeft(), cells.bottomRight()); }
    /// Two: the menu and its entry.
    void fillSelection()
    {
        done();
        done().grid()->fillSelection();
    }

private:
    MapEditor::View &done()
    {
        ++m_actions;
        return *m_view;
    }

    MapAssets m_assets;
    QPointer<Map> m_map;
    std::optional<MapEditor::View> m_view;
    int m_actions = 0;
};

/// With tiles, strokes, selections that are filled, and copies.
void paintAsBefore(Painter &painter)
{
    const auto fillArea = [&painter](const QRect &area) {
        painter.take(Select);
        painter.drag(area);
        painter.fillSelection();
    };
    painter.choose(Sky);
    painter.selectAll();
    painter.fillSelection();
    painter.choose(Earth);
    fillArea(Ground);
    painter.take(Draw);
    painter.choose(Grass);
    painter.drag({0, 24}, {39, 24});
    painter.choose(Water);
    painter.drag(Pond);
    painter.choose(Brick);
    for (const QRect &platform : Platforms) {
        painter.drag(platform.topLeft(), platform.topRight());
        painter.drag(platform.bottomLeft(), platform.bottomRight());
    }
    for (const auto &[first, size, places] :
         {std::tuple(int(House), HouseSize, Houses), {Tree, TreeSize, Trees}, {Cloud, CloudSize, Clouds}}) {
        const QList<QList<int>> tiles = block(first, size);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x) {
                painter.choose(tiles[y][x]);
                painter.click(places.first() + QPoint(x, y));
            }
        }
        painter.take(Select);
        painter.drag(QRect(places.first(), size));
        painter.copy();
        painter.paste();
        for (const QPoint at : places.mid(1))
            painter.click(at + QPoint(size.width() / 2, size.height() / 2));
        painter.take(Draw);
    }
}

/// With the bucket, rectangles and stamps as well.
void paintWithAll(Painter &painter)
{
    painter.choose(Sky);
    painter.take(Fill);
    painter.click({20, 5});
    painter.take(RectangleFill);
    painter.choose(Earth);
    painter.drag(Ground);
    painter.choose(Grass);
    painter.drag({0, 24}, {39, 24});
    painter.choose(Water);
    painter.drag(Pond);
    painter.choose(Brick);
    for (const QRect &platform : Platforms)
        painter.drag(platform);
    painter.take(Draw);
    for (const auto &[first, size, places] : {std::tuple(int(House), HouseSize, Houses), {Cloud, CloudSize, Clouds}}) {
        painter.mark(block(first, size));
        for (const QPoint at : places)
            painter.click(at + QPoint(size.width() / 2, size.height() / 2));
    }
    painter.mark(block(Tree, TreeSize));
    const QPoint middle(TreeSize.width() / 2, TreeSize.height() / 2);
    painter.drag(Trees[0] + middle, Trees[1] + middle); // two beside each other
    painter.drag(Trees[2] + middle, Trees[3] + middle);
    painter.click(Trees[4] + middle);
    painter.click(Trees[5] + middle);
}

} // namespace

class TestMapScreen : public QObject
{
    Q_OBJECT

private slots:
    void takesHalfTheActions()
    {
        const QList<QList<int>> wanted = reference();
        int actions[2];
        int way = 0;
        for (const auto paint : {paintAsBefore, paintWithAll}) {
            Painter painter;
            paint(painter);
            const QList<QList<int>> painted = painter.tiles();
            for (int y = 0; y < Screen.height(); ++y)
                QCOMPARE(painted[y], wanted[y]);
            actions[way++] = painter.actions();
        }
        qInfo("%d actions before, %d now", actions[0], actions[1]);
        QVERIFY(2 * actions[1] <= actions[0]);
    }
};

QUENMORA_TEST_MAIN(TestMapScreen)
#include "tst_mapscreen.moc"
