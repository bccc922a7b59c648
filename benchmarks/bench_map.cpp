// Maps: making, editing, rendering, exporting and comparing them. Sizes are in cells; the large map is
// 2000 × 2000, every cell used; the largest that the program offers is 9999 × 9999.

#include "level.h"

#include <benchmark/benchmark.h>

#include <QPainter>

#include <memory>

namespace {

void BM_Create(benchmark::State &state)
{
    const int side = int(state.range(0));
    const double before = memory("VmRSS:");
    double used = 0;
    for (auto _ : state) {
        Level level({side, side});
        used = memory("VmRSS:") - before;
        benchmark::DoNotOptimize(level.map.size());
    }
    state.counters["MiB"] = used;
}
BENCHMARK(BM_Create)->Arg(40)->Arg(9999)->Unit(benchmark::kMillisecond);

/// What reading a project does for many small placements of a large animation.
void BM_Restamp(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        Level level(QSize(1000, 1000));
        TileAnimation &animation = *level.blocks().createBoundTileAnimation(QStringLiteral("Large"));
        animation.setSize({250, 250});
        animation.addFrame();
        for (int i = 0; i < 5000; ++i)
            level.map.animatedBlocks()->add(QRect(i % 100 * 5, i / 100 * 5, 1, 1), animation.id());
        state.ResumeTiming();
        level.map.restampAnimations({&level.blocks()});
    }
}
BENCHMARK(BM_Restamp)->Unit(benchmark::kMillisecond);

/// Strokes of a pen: each cell next to the one before, over all of the map.
void BM_SetCell(benchmark::State &state)
{
    const QSize size(int(state.range(0)), int(state.range(1)));
    LargeLevel level(size);
    QPoint at;
    int index = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(level.map.setTile(at, {++index & 511, false, false, false, 0, true}));
        at.rx() += 1;
        if (at.x() == size.width())
            at = {0, (at.y() + 1) % size.height()};
    }
}
BENCHMARK(BM_SetCell)->Args({40, 32})->Args({2000, 2000});

/// Cells of a map that is on the screen, so that its picture follows.
void BM_SetShownCell(benchmark::State &state)
{
    const QSize size(int(state.range(0)), int(state.range(1)));
    LargeLevel level(size);
    QImage screen(Screen, QImage::Format_RGB32);
    QPainter painter(&screen);
    level.map.paintLayers(painter, {}, screenAt({0, 0}, 8), 8, -1);
    int index = 0;
    for (auto _ : state) {
        ++index;
        benchmark::DoNotOptimize(
            level.map.setTile({index % 40, index / 40 % 32}, {index & 511, false, false, false, 0, true}));
    }
}
BENCHMARK(BM_SetShownCell)->Args({40, 32})->Args({2000, 2000});

void BM_Fill(benchmark::State &state)
{
    const QSize size(int(state.range(0)), int(state.range(1)));
    Level level(size);
    const QRect area = QRect({0, 0}, size).adjusted(1, 1, -1, -1);
    int index = 0;
    for (auto _ : state)
        level.map.setTiles(area, ++index & 511, false, false, false, true);
    state.SetItemsProcessed(int64_t(state.iterations()) * area.width() * area.height());
}
BENCHMARK(BM_Fill)->Args({40, 32})->Args({2000, 2000})->Unit(benchmark::kMicrosecond);

/// A place that was not looked at before, each time.
void BM_RenderScreenFirst(benchmark::State &state)
{
    const int zoom = int(state.range(0));
    LargeLevel level;
    int step = 0;
    for (auto _ : state) {
        state.PauseTiming();
        level.map.tileLayer()->restore(level.map.tileLayer()->rows());
        step = (step + 331) % 1700;
        state.ResumeTiming();
        const QImage image = level.map.tileLayer()->render(screenAt({step, step}, zoom * 8), zoom, -1);
        benchmark::DoNotOptimize(image.constBits());
    }
}
BENCHMARK(BM_RenderScreenFirst)->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);

void BM_RenderScreenAgain(benchmark::State &state)
{
    const int zoom = int(state.range(0));
    LargeLevel level;
    for (auto _ : state) {
        const QImage image = level.map.tileLayer()->render(screenAt({700, 700}, zoom * 8), zoom, 0);
        benchmark::DoNotOptimize(image.constBits());
    }
}
BENCHMARK(BM_RenderScreenAgain)->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);

/// A full screen as the map editor paints it: cell size in pixels, transparency index.
void BM_PaintScreen(benchmark::State &state)
{
    const int cellSize = int(state.range(0));
    LargeLevel level;
    QImage screen(Screen, QImage::Format_RGB32);
    QPainter painter(&screen);
    level.map.paintLayers(painter, {}, screenAt({3, 5}, cellSize), cellSize, int(state.range(1)));
    for (auto _ : state)
        level.map.paintLayers(painter, {}, screenAt({3, 5}, cellSize), cellSize, int(state.range(1)));
}
BENCHMARK(BM_PaintScreen)->ArgsProduct({{1, 3, 8, 12, 32, 64}, {-1, 3}})->Unit(benchmark::kMillisecond);

/// The same with animations all over the screen, which advance before every paint.
void BM_PaintScreenAnimated(benchmark::State &state)
{
    const int cellSize = int(state.range(0));
    LargeLevel level;
    const QRect cells = screenAt({3, 5}, cellSize);
    level.placeAnimations(cells);
    QImage screen(Screen, QImage::Format_RGB32);
    QPainter painter(&screen);
    int frame = 0;
    for (auto _ : state) {
        level.showFrame(++frame);
        level.map.paintLayers(painter, {}, cells, cellSize, int(state.range(1)));
    }
}
BENCHMARK(BM_PaintScreenAnimated)->ArgsProduct({{8, 32}, {-1, 3}})->Unit(benchmark::kMillisecond);

/// Every screen of the largest map, one after the other; bounded memory is the point.
void BM_ScrollOverLargest(benchmark::State &state)
{
    Level level({9999, 9999});
    QImage screen(Screen, QImage::Format_RGB32);
    QPainter painter(&screen);
    const QRect first = screenAt({0, 0}, 8);
    for (auto _ : state) {
        for (int y = 0; y < 9999; y += first.height()) {
            for (int x = 0; x < 9999; x += first.width())
                level.map.paintLayers(painter, {}, first.translated(x, y), 8, -1);
        }
    }
    state.counters["MiB"] = memory("VmRSS:");
}
BENCHMARK(BM_ScrollOverLargest)->Iterations(1)->Unit(benchmark::kMillisecond);

void BM_ToNextData(benchmark::State &state)
{
    LargeLevel level;
    qsizetype size = 0;
    for (auto _ : state)
        size = level.map.tileLayer()->toNextData().size();
    state.SetBytesProcessed(int64_t(state.iterations()) * size);
}
BENCHMARK(BM_ToNextData)->Unit(benchmark::kMillisecond);

void BM_Serialise(benchmark::State &state)
{
    LargeLevel level;
    qsizetype size = 0;
    for (auto _ : state)
        size = level.map.tileLayer()->serialise(level.map.tileLayer()->bounds()).size();
    state.SetBytesProcessed(int64_t(state.iterations()) * size);
}
BENCHMARK(BM_Serialise)->Unit(benchmark::kMillisecond);

void BM_FromData(benchmark::State &state)
{
    LargeLevel level;
    const QByteArray data = level.map.tileLayer()->serialise(level.map.tileLayer()->bounds());
    for (auto _ : state)
        benchmark::DoNotOptimize(std::unique_ptr<TileMap>(TileMap::fromData(data))->size());
    state.SetBytesProcessed(int64_t(state.iterations()) * data.size());
}
BENCHMARK(BM_FromData)->Unit(benchmark::kMillisecond);

/// One edit as undo sees it: snapshot, ten cells in ten rows, snapshot, comparison.
void BM_Edit(benchmark::State &state)
{
    const int side = int(state.range(0));
    LargeLevel level({side, side});
    int index = 0;
    for (auto _ : state) {
        ++index;
        const Map::Snapshot before = level.map.snapshot();
        for (int i = 0; i < 10; ++i)
            level.map.setTile({side / 2 + i, (index * 10 + i) % side}, {index & 511, false, false, false, 17, true});
        benchmark::DoNotOptimize(before == level.map.snapshot());
    }
}
BENCHMARK(BM_Edit)->Arg(40)->Arg(2000)->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    std::printf("peak memory: %.0f MiB\n", memory("VmHWM:"));
    return 0;
}
