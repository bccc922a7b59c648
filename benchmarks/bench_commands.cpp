// Finding among as many entries as a large project gives the palette of commands, for each letter that is typed.
#include "app/commands/commandsearch.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int Assets = 4500;
constexpr int Tiles = 512;

QList<CommandSearch::Item> manyItems()
{
    QList<CommandSearch::Item> items;
    for (int i = 0; i < Assets; ++i)
        items.append({QStringLiteral("Level %1 of the lower caves").arg(i), QStringLiteral("Map"), i % 3 != 0});
    for (int i = 0; i < Tiles; ++i)
        items.append({QStringLiteral("Tile %1").arg(i + 1), QStringLiteral("Cave tiles"), true, true});
    return items;
}

void findAmongMany(benchmark::State &state, const char *query)
{
    const CommandSearch search(manyItems());
    const QString letters = QString::fromLatin1(query);
    for (auto _ : state)
        benchmark::DoNotOptimize(search.find(letters));
}

void prepareMany(benchmark::State &state)
{
    const QList<CommandSearch::Item> items = manyItems();
    for (auto _ : state)
        benchmark::DoNotOptimize(CommandSearch(items));
}

} // namespace

BENCHMARK(prepareMany)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(findAmongMany, all, "")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(findAmongMany, first_letter, "l")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(findAmongMany, initials, "l4otlc")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(findAmongMany, scattered, "vlwe 4")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(findAmongMany, tiles, "tile 37")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(findAmongMany, nothing, "zzzz")->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
