// The map editor's grid on a full screen: painting, strokes and undo. The large map is 2000 × 2000 cells, every
// one used; the largest that the program offers is 9999 × 9999.

#include "editors/map/mapgrid.h"
#include "editors/map/mappreferences.h"
#include "level.h"
#include "model/overviewpicture.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QMouseEvent>
#include <QUndoStack>

namespace {

using MapEditor::MapGrid;

/// A square level on a full screen.
class Editor
{
public:
    explicit Editor(int zoom, int side = 2000) : level({side, side})
    {
        if (side <= 2000) // a larger one stays empty
            level.scatter();
        grid.resize(Screen);
        grid.setUndoStack(&stack);
        grid.applyPreferences({.overlayGrid = false, .defaultZoom = zoom});
        grid.setMap(&level.map);
        grid.setGridVisible(false);
        grid.setCurrentTileIndex(1);
    }

    void paint() { grid.render(&m_screen, {}, {}, QWidget::RenderFlags()); }

    void send(QEvent::Type type, QPoint point, Qt::MouseButton button)
    {
        const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
        QMouseEvent event(type, point, point, type == QEvent::MouseMove ? Qt::NoButton : button, buttons,
                          Qt::NoModifier);
        QApplication::sendEvent(&grid, &event);
    }

    /// Writes ten cells, each with a move of its own.
    void stroke(int index)
    {
        grid.setCurrentTileIndex(index & 511);
        const int cell = grid.viewport().cellSize;
        const QPoint start = grid.viewport().viewRect.topLeft() + QPoint(cell / 2, cell / 2 + index % 16 * cell);
        send(QEvent::MouseButtonPress, start, Qt::LeftButton);
        for (int i = 0; i < 10; ++i)
            send(QEvent::MouseMove, start + QPoint(i * cell, i % 2), Qt::LeftButton);
        send(QEvent::MouseButtonRelease, start, Qt::LeftButton);
    }

    Level level;
    QUndoStack stack;
    MapGrid grid;

private:
    QImage m_screen{Screen, QImage::Format_RGB32};
};

/// Zoom, grid lines.
void BM_Paint(benchmark::State &state)
{
    Editor editor(int(state.range(0)));
    if (state.range(1))
        editor.grid.setGridVisible(true);
    editor.paint();
    for (auto _ : state)
        editor.paint();
}
BENCHMARK(BM_Paint)->ArgsProduct({{1, 4}, {0, 1}})->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

/// Zoom, what shows through pixels of index 0: 0 black, 1 the checker board, 2 a tile.
void BM_PaintTransparent(benchmark::State &state)
{
    Editor editor(int(state.range(0)));
    editor.grid.setTransparencyIndex(0);
    editor.grid.setGridVisible(state.range(1) == 1);
    editor.grid.applyPreferences(
        {.checkerBoard = state.range(1) == 1, .overlayGrid = false, .defaultZoom = int(state.range(0))});
    editor.grid.setBackgroundTileIndex(state.range(1) == 2 ? 1 : -1);
    editor.paint();
    for (auto _ : state)
        editor.paint();
}
BENCHMARK(BM_PaintTransparent)
    ->ArgsProduct({{1, 4}, {0, 1, 2}})
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMillisecond);

void BM_PaintAfterSetCell(benchmark::State &state)
{
    Editor editor(int(state.range(0)));
    int index = 0;
    for (auto _ : state) {
        editor.level.map.setTile({10, 10}, {++index & 511, false, false, false, 0, true});
        editor.paint();
    }
}
BENCHMARK(BM_PaintAfterSetCell)->Arg(1)->Arg(4)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

/// Animated blocks, one in every 8 × 8 cells of the screen, and animated sprites, all with another frame each time.
void BM_PaintPlaying(benchmark::State &state)
{
    Editor editor(int(state.range(0)));
    editor.level.placeAnimations(editor.grid.viewport().visibleCells());
    editor.level.placeSprites(editor.grid.viewport().visibleCells());
    editor.grid.setSpriteBanks({editor.level.bank()});
    int frame = 0;
    for (auto _ : state) {
        editor.level.showFrame(++frame);
        editor.grid.setSpriteTicks(frame);
        editor.paint();
    }
    state.counters["sprites"] = double(editor.level.map.sprites().size());
}
BENCHMARK(BM_PaintPlaying)->Arg(1)->Arg(4)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

/// Side of the map: a stroke of ten cells, the screen after each of them, undo and the screen again.
void BM_StrokeAndUndo(benchmark::State &state)
{
    Editor editor(4, int(state.range(0)));
    int index = 0;
    for (auto _ : state) {
        editor.stroke(++index);
        editor.stack.undo();
    }
}
BENCHMARK(BM_StrokeAndUndo)->Arg(40)->Arg(2000)->Arg(9999)->MeasureProcessCPUTime()->Unit(benchmark::kMicrosecond);

/// The same, with the screen painted after the stroke and after undoing it.
void BM_StrokeAndUndoShown(benchmark::State &state)
{
    Editor editor(int(state.range(1)), int(state.range(0)));
    int index = 0;
    for (auto _ : state) {
        editor.stroke(++index);
        editor.paint();
        editor.stack.undo();
        editor.paint();
    }
}
BENCHMARK(BM_StrokeAndUndoShown)
    ->ArgsProduct({{2000, 9999}, {1, 4}})
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMillisecond);

/// Side of the map: the bucket over all of it, undo step included. 0: every row of the map is one of its own, filled
/// with one tile and a stamp in turn; 1: the map is in columns that hang together at the bottom.
void BM_Bucket(benchmark::State &state)
{
    const int side = int(state.range(0));
    Editor editor(1, side);
    TileMap::Rows rows;
    for (int y = 0; y < side; ++y) {
        TileMap::Row row(side, TileMap::TileData{.index = 5, .used = true});
        for (int x = 1; x < side && y + 1 < side && state.range(1) == 1; x += 2)
            row[x].index = 6;
        rows.append(row);
    }
    editor.grid.offerMore();
    editor.grid.setMode(Quenmora::Ui::Fill);
    const QPoint at = editor.grid.viewport().viewRect.topLeft() + QPoint(1, 1);
    QList<TileMap::TileData> cells;
    for (int i = 0; i < 12; ++i)
        cells.append({.index = 20 + i, .used = true});
    bool stamp = false;
    for (auto _ : state) {
        state.PauseTiming();
        editor.stack.clear();
        editor.level.map.tileLayer()->restore(rows);
        if ((stamp = !stamp))
            editor.grid.setStamp({{4, 3}, cells});
        else
            editor.grid.setCurrentTileIndex(9);
        state.ResumeTiming();
        editor.send(QEvent::MouseButtonPress, at, Qt::LeftButton);
        editor.send(QEvent::MouseButtonRelease, at, Qt::LeftButton);
    }
    state.counters["steps"] = editor.stack.count();
}
BENCHMARK(BM_Bucket)->ArgsProduct({{2000}, {0, 1}})->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

/// Side of the map, zoom: a move with a stamp of 16 × 16 cells in hand and the button held, and the screen after it; at
/// every move it comes to another place.
void BM_StampMove(benchmark::State &state)
{
    Editor editor(int(state.range(1)), int(state.range(0)));
    editor.grid.offerMore();
    QList<TileMap::TileData> cells;
    for (int i = 0; i < 256; ++i)
        cells.append({.index = i, .mirror = i % 3 == 0, .used = true});
    editor.grid.setStamp({{16, 16}, cells});
    const QRect shown = editor.grid.viewport().viewRect;
    const int way = 16 * editor.grid.viewport().cellSize;
    const QPoint start = shown.center() - QPoint(way, way);
    editor.send(QEvent::MouseButtonPress, start, Qt::LeftButton);
    int step = 0;
    for (auto _ : state) {
        ++step;
        editor.send(QEvent::MouseMove, start + QPoint(step & 1 ? way : 0, step & 2 ? way : 0), Qt::LeftButton);
        editor.paint();
    }
    editor.send(QEvent::MouseButtonRelease, start, Qt::LeftButton);
}
BENCHMARK(BM_StampMove)->ArgsProduct({{2000, 9999}, {1, 4}})->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

/// Side of the map: its overview.
void BM_Overview(benchmark::State &state)
{
    Editor editor(4, int(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(overviewPicture(editor.level.map, {200, 200}));
}
BENCHMARK(BM_Overview)->Arg(40)->Arg(2000)->Arg(9999)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

/// Scrolls by one cell and paints, along the diagonal of a map of that side.
void BM_Scroll(benchmark::State &state)
{
    Editor editor(int(state.range(1)), int(state.range(0)));
    int step = 0;
    for (auto _ : state) {
        if (++step & 1)
            editor.grid.scrollRight();
        else
            editor.grid.scrollDown();
        editor.paint();
    }
}
BENCHMARK(BM_Scroll)->ArgsProduct({{2000, 9999}, {1, 4}})->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    std::printf("peak memory: %.0f MiB\n", memory("VmHWM:"));
    return 0;
}
