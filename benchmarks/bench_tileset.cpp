#include "model/animatedblocks.h"
#include "model/tileset.h"

#include <benchmark/benchmark.h>

#include <vector>

namespace {

constexpr int TileCount = 512;

/// One screen of 1920 × 1080 pixels in tiles: what a map view paints at zoom 1.
void renderScreenOfTiles(benchmark::State &state)
{
    constexpr int columns = 240;
    constexpr int rows = 135;
    const TileSet tiles(TileCount);
    const bool rotate = state.range(0) != 0;
    std::vector<uchar> screen(size_t(columns) * rows * Tile::Size * Tile::Size);
    for (auto _ : state) {
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                uchar *target = screen.data() + (row * columns * Tile::Size + column) * Tile::Size;
                tiles.renderTile((row + column) % TileCount, rotate, false, false, 3, target, columns * Tile::Size);
            }
        }
        benchmark::DoNotOptimize(screen.data());
    }
    state.SetItemsProcessed(state.iterations() * columns * rows);
}
BENCHMARK(renderScreenOfTiles)->ArgName("rotated")->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

void tileImages(benchmark::State &state)
{
    const TileSet tiles(TileCount);
    int i = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(tiles.tileImage(++i % TileCount, false, false, true, 3));
}
BENCHMARK(tileImages);

void snapshotTileSet(benchmark::State &state)
{
    const TileSet tiles(TileCount);
    for (auto _ : state)
        benchmark::DoNotOptimize(tiles.snapshot());
}
BENCHMARK(snapshotTileSet)->Unit(benchmark::kMicrosecond);

void restoreTileSet(benchmark::State &state)
{
    TileSet tiles(TileCount);
    const TileSet::Snapshot snapshot = tiles.snapshot();
    for (auto _ : state)
        tiles.restore(snapshot);
}
BENCHMARK(restoreTileSet)->Unit(benchmark::kMicrosecond);

/// The last of many placements, which is what a map view asks for when the pointer moves.
void findPlacement(benchmark::State &state)
{
    const int count = static_cast<int>(state.range(0));
    AnimatedBlocks placed;
    for (int i = 0; i < count; ++i)
        placed.add(QRect(i * 4, 0, 3, 3), QUuid::createUuid());
    for (auto _ : state)
        benchmark::DoNotOptimize(placed.areaAt(QPoint(count * 4 - 3, 1)));
}
BENCHMARK(findPlacement)->Arg(10)->Arg(200);

} // namespace

BENCHMARK_MAIN();
