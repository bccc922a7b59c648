// Raw forms for games, of a map of 2000 × 2000 cells in which every cell is used: as bytes, column by column, and as
// source text.

#include "level.h"

#include "model/project.h"
#include "nextdata/names.h"
#include "nextdata/output.h"

#include <benchmark/benchmark.h>

namespace {

using Options = QMap<QString, QString>;

void BM_Write(benchmark::State &state, const Options &options)
{
    LargeLevel level(QSize(2000, 2000));
    const Project project;
    const NextData::Source source(project, static_cast<const Map *>(&level.map));
    const NextData::Form &form = *NextData::findForm(QStringLiteral("map-2byte"));
    const auto values = NextData::OptionValues::parse(form.options, options);
    for (auto _ : state) {
        NextData::Names names;
        benchmark::DoNotOptimize(NextData::write(form, source, *values, QStringLiteral("level.map"), names));
    }
    state.SetItemsProcessed(state.iterations() * 2000 * 2000);
}
BENCHMARK_CAPTURE(BM_Write, bytes, Options())->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Write, columns, Options{{"order", "columns"}})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Write, screens, Options{{"screen-width", "40"}, {"screen-height", "32"}})
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Write, pages, Options{{"cut", "8k"}})->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(BM_Write, text, Options{{"text", "z80asm"}})->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
