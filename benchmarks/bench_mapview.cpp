// The map editor while its animations play: what a tick of 20 ms costs, the screen included. The map is
// 2000 × 2000 cells, every one used, on a full screen.

#include "editors/map/mapanimator.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "editors/map/mappreferences.h"
#include "level.h"
#include "model/colourcycle.h"

#include <benchmark/benchmark.h>

#include <QApplication>

namespace {

/// A large level on a full screen.
struct Shown
{
    LargeLevel level;
    MapEditor::View view{&level.map};

    explicit Shown(int zoom)
    {
        view.applyPreferences({.checkerBoard = false, .overlayGrid = false, .defaultZoom = zoom});
        view.resize(Screen);
        view.show();
        QApplication::processEvents();
    }
};

/// Zoom, whether there is something to play.
void BM_Tick(benchmark::State &state)
{
    Shown shown(int(state.range(0)));
    if (state.range(1))
        shown.level.placeAnimations(shown.view.grid()->viewport().visibleCells());
    shown.view.grid()->repaint();
    for (auto _ : state) {
        shown.view.animator()->tick();
        QApplication::processEvents();
    }
}
BENCHMARK(BM_Tick)->ArgsProduct({{1, 4}, {0, 1}})->MeasureProcessCPUTime()->Unit(benchmark::kMicrosecond);

/// Zoom: a step of colours that go round, a hundred entries of the palette, with the screen that it repaints.
void BM_ColourStep(benchmark::State &state)
{
    Shown shown(int(state.range(0)));
    qint64 frame = 0;
    for (auto _ : state) {
        shown.level.map.tileSet()->palette()->showEntries(ColourCycles::shownEntries({{100, 199, 5}}, frame += 5));
        QApplication::processEvents();
    }
}
BENCHMARK(BM_ColourStep)->Arg(1)->Arg(4)->MeasureProcessCPUTime()->Unit(benchmark::kMicrosecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
