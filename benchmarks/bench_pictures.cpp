// Pictures that are reduced to what the machine shows: the time for a photograph of side × side pixels to 512 tiles,
// the root of the mean squared error in levels of the machine's colours, and what comes of serving tiles as they come.
#include "model/imageslicer.h"
#include "pictures/tilereduction.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>

namespace {

/// Soft shapes, shades and grain.
QImage photograph(int side)
{
    std::minstd_rand random;
    QImage image(side, side, QImage::Format_RGB32);
    const auto component = [](double value) { return int(std::clamp(value, 0.0, 255.0)); };
    for (int y = 0; y < side; ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < side; ++x) {
            const double u = double(x) / side;
            const double v = double(y) / side;
            const auto grain = [&random] { return double(random() % 33) - 16; };
            const double hill = 0.55 + 0.15 * std::sin(7 * u) + 0.05 * std::sin(31 * u);
            const double sun = std::exp(-40 * ((u - 0.7) * (u - 0.7) + (v - 0.25) * (v - 0.25)));
            line[x] = v < hill ? qRgb(component(90 + 120 * v + 160 * sun + grain()),
                                      component(150 + 60 * v + 90 * sun + grain()), component(230 - 90 * v + grain()))
                               : qRgb(component(120 - 90 * v + 90 * std::sin(60 * u * v) + grain()),
                                      component(160 - 100 * v + 70 * std::sin(45 * u) + grain()),
                                      component(90 + 80 * std::sin(20 * v) + grain()));
        }
    }
    return image;
}

void reduce(benchmark::State &state, Dithering dithering)
{
    const QImage image = photograph(int(state.range(0)));
    TileReduction reduction;
    for ([[maybe_unused]] const auto iteration : state)
        reduction = TileReduction::of(image, {.dithering = dithering});
    state.counters["tiles"] = double(reduction.tiles.size());
    state.counters["error"] = reduction.error;
}

/// The same figures for the slicer, which takes all tiles that there are.
void firstComeFirstServed(benchmark::State &state)
{
    const QImage image = photograph(int(state.range(0)));
    int tiles = 0;
    double sum = 0;
    for ([[maybe_unused]] const auto iteration : state) {
        ImageSlicer slicer(image);
        tiles = slicer.sliceTiles();
        sum = 0;
        const QList<QRgb> colours = slicer.bankColours();
        const QList<ImageSlicer::Placement> placements = slicer.placements();
        for (int cell = 0; cell < placements.size(); ++cell) {
            const auto [tile, orientation] = placements[cell];
            const QImage piece = slicer.pieceWithOffset(tile);
            if (orientation != 0)
                continue; // none of a photograph's is turned
            for (int i = 0; i < 64; ++i) {
                const QRgb wanted =
                    image.pixel(cell % slicer.size().width() * 8 + i % 8, cell / slicer.size().width() * 8 + i / 8);
                sum += NineBitColour::distance(NineBitColour::nearest(wanted),
                                               NineBitColour::nearest(colours[piece.pixelIndex(i % 8, i / 8)]));
            }
        }
    }
    state.counters["tiles"] = tiles;
    state.counters["error"] = std::sqrt(sum / (double(image.width()) * image.height()));
}

#define SIDES Arg(176)->Arg(512)->Arg(1024)->Arg(2048)->Unit(benchmark::kMillisecond)
BENCHMARK_CAPTURE(reduce, none, Dithering::None)->SIDES;
BENCHMARK_CAPTURE(reduce, ordered, Dithering::Ordered)->SIDES;
BENCHMARK_CAPTURE(reduce, diffusion, Dithering::Diffusion)->SIDES;
BENCHMARK(firstComeFirstServed)->SIDES;

} // namespace

BENCHMARK_MAIN();
