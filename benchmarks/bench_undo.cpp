// Undo of edits, on maps of several sizes: the time and the memory of a step follow the edit, not the map.
#include "level.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "undo/editrecorder.h"
#include "undo/mapeditcommand.h"

#include <QUndoStack>

#include <benchmark/benchmark.h>

#include <malloc.h>

namespace {

constexpr int TileCount = 512;
constexpr int StrokeLength = 64;

/// A project with one square map whose cells are all in use.
class MapProject
{
public:
    explicit MapProject(int side)
    {
        const auto palette = m_project.createPalette(CreateAction::DefaultNext, QStringLiteral("Colours"));
        m_tileSet = m_project.createTileSet(QStringLiteral("Tiles"), palette->id(), TileCount);
        m_map = m_project.createMap(QStringLiteral("Level"), m_tileSet->id(), QSize(side, side));
        for (int row = 0; row < side; ++row)
            m_map->setTiles(QRect(0, row, side, 1), 1 + row % (TileCount - 2), false, false, false, true);
    }

    [[nodiscard]] Project &project() { return m_project; }
    [[nodiscard]] TileSet &tileSet() { return *m_tileSet; }
    [[nodiscard]] Map &map() { return *m_map; }

    /// Draws a line of StrokeLength cells, (dx, dy) apart, from the middle of the map, and makes the step for it.
    [[nodiscard]] MapEditCommand *stroke(int dx, int dy)
    {
        const Map::Snapshot before = m_map->snapshot();
        const QPoint middle = QRect(QPoint(), m_map->size()).center();
        m_tile = 1 + m_tile % (TileCount - 1);
        for (int step = 0; step < StrokeLength; ++step)
            m_map->setTile(middle + QPoint(step * dx, step * dy), {.index = m_tile, .rotate = true, .used = true});
        return new MapEditCommand(QStringLiteral("Draw"), m_map, before, m_map->snapshot());
    }

private:
    Project m_project;
    QPointer<TileSet> m_tileSet;
    QPointer<Map> m_map;
    int m_tile = 0;
};

qint64 bytesInUse()
{
    const auto info = mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
}

/// Draws a stroke and makes its undo step.
void recordStroke(benchmark::State &state)
{
    MapProject project(int(state.range(0)));
    constexpr int Steps = 100;
    QUndoStack stack;
    const qint64 before = bytesInUse();
    for (int step = 0; step < Steps; ++step)
        stack.push(project.stroke(1, 1));
    state.counters["bytes a step"] = double(bytesInUse() - before) / Steps;
    stack.clear();

    for (auto _ : state)
        delete project.stroke(1, 1);
}

/// Undoes and redoes a stroke: two steps an iteration.
void undoStroke(benchmark::State &state)
{
    MapProject project(int(state.range(0)));
    QUndoStack stack;
    stack.push(project.stroke(int(state.range(1)), int(state.range(2))));
    for (auto _ : state) {
        stack.undo();
        stack.redo();
    }
}

/// Undoes and redoes the filling of the whole map.
void undoFill(benchmark::State &state)
{
    MapProject project(int(state.range(0)));
    Map &map = project.map();
    QUndoStack stack;
    const Map::Snapshot before = map.snapshot();
    map.setTiles(QRect(QPoint(), map.size()), 7, true, false, false, true);
    stack.push(new MapEditCommand(QStringLiteral("Fill"), &map, before, map.snapshot()));
    for (auto _ : state) {
        stack.undo();
        stack.redo();
    }
}

/// Copies a tile and records it, in a project whose map uses the tile set.
void recordTileCopy(benchmark::State &state)
{
    MapProject project(int(state.range(0)));
    QUndoStack stack;
    stack.setUndoLimit(20);
    const EditRecorder recorder(&project.project(), [&stack](const QUuid &) { return &stack; });
    int tile = 0;
    for (auto _ : state) {
        tile = (tile + 1) % (TileCount - 1);
        project.tileSet().copyTile(tile, tile + 1);
    }
}

/// Undoes and redoes the deletion of a tile that some cells of the map show: two steps an iteration.
void undoTileDeletion(benchmark::State &state)
{
    MapProject project(int(state.range(0)));
    QUndoStack stack;
    const EditRecorder recorder(&project.project(), [&stack](const QUuid &) { return &stack; });
    const qint64 before = bytesInUse();
    project.tileSet().deleteTile(5);
    state.counters["bytes a step"] = double(bytesInUse() - before);
    for (auto _ : state) {
        stack.undo();
        stack.redo();
    }
}

/// Moves a tile past others, in a project whose map shows all of them.
void moveTile(benchmark::State &state)
{
    MapProject project(int(state.range(0)));
    project.map().tileLayer()->restore(structures(project.map().size()));
    QUndoStack stack;
    const EditRecorder recorder(&project.project(), [&stack](const QUuid &) { return &stack; });
    for (auto _ : state) {
        project.tileSet().moveTile(1, 1 + int(state.range(1)));
        state.PauseTiming();
        stack.undo();
        state.ResumeTiming();
    }
}

/// Inserts a tile in front of all others there.
void insertTile(benchmark::State &state)
{
    MapProject project(int(state.range(0)));
    project.map().tileLayer()->restore(structures(project.map().size()));
    QUndoStack stack;
    const EditRecorder recorder(&project.project(), [&stack](const QUuid &) { return &stack; });
    for (auto _ : state) {
        project.tileSet().insertTile(0);
        state.PauseTiming();
        stack.undo();
        state.ResumeTiming();
    }
}

/// Edits one frame of one of many animations: the work must not grow with the animations beside it.
void recordFrameEdit(benchmark::State &state)
{
    MapProject project(40);
    const auto blocks = project.project().createBlockList(QStringLiteral("Blocks"), project.tileSet().id());
    for (int count = 0; count < int(state.range(0)); ++count) {
        const auto animation = blocks->createBoundTileAnimation(QStringLiteral("Block"));
        animation->setSize({8, 8});
        for (int frame = 0; frame < 8; ++frame)
            animation->addFrame();
    }
    QUndoStack stack;
    const EditRecorder recorder(&project.project(), [&stack](const QUuid &) { return &stack; });
    const auto frame = blocks->animations().first()->frame(0);
    int tile = 0;
    for (auto _ : state)
        frame->setIndex(0, 0, ++tile % TileCount);
}

} // namespace

BENCHMARK(recordStroke)->Arg(200)->Arg(2000)->Arg(8000)->Unit(benchmark::kMicrosecond);
BENCHMARK(undoStroke)
    ->ArgNames({"side", "dx", "dy"})
    ->Args({200, 1, 0})
    ->Args({2000, 1, 0})
    ->Args({8000, 1, 0})
    ->Args({2000, 0, 1})
    ->Args({2000, 1, 1})
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(undoFill)->Arg(200)->Arg(2000)->Unit(benchmark::kMicrosecond);
BENCHMARK(recordTileCopy)->Arg(200)->Arg(2000)->Unit(benchmark::kMicrosecond);
BENCHMARK(undoTileDeletion)->Arg(200)->Arg(2000)->Unit(benchmark::kMicrosecond);
BENCHMARK(moveTile)->ArgsProduct({{2000}, {1, 500}})->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
BENCHMARK(insertTile)->Arg(2000)->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
BENCHMARK(recordFrameEdit)->Arg(1)->Arg(1000)->Unit(benchmark::kMicrosecond);

BENCHMARK_MAIN();
