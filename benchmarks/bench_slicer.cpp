// Slicing pictures into tiles, and mapping a photo onto a palette.
#include "model/imageslicer.h"
#include "model/nximage.h"
#include "model/palette.h"
#include "model/qtcompat.h"

#include <QTransform>
#include <QtGlobal>

#include <benchmark/benchmark.h>

#include <random>

namespace {

constexpr int Side = ImageSlicer::TileSide;

using Random = std::minstd_rand;

/// A tile of four of 64 colours that the snap grid holds.
QImage randomTile(Random &random)
{
    std::array<QRgb, 4> colours;
    for (QRgb &colour : colours)
        colour = qRgb(int(random() % 4) * 64, int(random() % 4) * 64, int(random() % 4) * 64);
    QImage tile(Side, Side, QImage::Format_RGB32);
    for (int y = 0; y < Side; ++y) {
        auto *line = reinterpret_cast<QRgb *>(tile.scanLine(y));
        for (int x = 0; x < Side; ++x)
            line[x] = colours[random() % colours.size()];
    }
    return tile;
}

void place(QImage &picture, const QImage &tile, int x, int y)
{
    for (int row = 0; row < Side; ++row)
        std::memcpy(reinterpret_cast<QRgb *>(picture.scanLine(y + row)) + x, tile.constScanLine(row),
                    Side * sizeof(QRgb));
}

/// A picture of 512 tiles, repeated in all orientations.
QImage repeatedTiles(const QSize &size)
{
    Random random(1);
    std::vector<QImage> tiles;
    for (int i = 0; i < 512; ++i) {
        const QImage tile = randomTile(random);
        for (int orientation = 0; orientation < 8; ++orientation) {
            const QImage turned = orientation & 4 ? tile.transformed(QTransform().rotate(90)) : tile;
            tiles.push_back(QtCompat::flipped(turned, orientation & 2, orientation & 1));
        }
    }
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); y += Side) {
        for (int x = 0; x < size.width(); x += Side)
            place(picture, tiles[random() % tiles.size()], x, y);
    }
    return picture;
}

/// A picture of one colour, the case in which all orientations of a tile are alike.
QImage plain(const QSize &size)
{
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::white);
    return picture;
}

/// A picture in which every tile is new.
QImage distinctTiles(const QSize &size)
{
    Random random(2);
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); y += Side) {
        for (int x = 0; x < size.width(); x += Side)
            place(picture, randomTile(random), x, y);
    }
    return picture;
}

/// Smooth gradients with some noise: thousands of colours, hardly two equal pixels side by side.
QImage photo(const QSize &size)
{
    Random random(3);
    const auto grained = [&random](int at, int length) { return 207 * at / length + int(random() % 48); };
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            line[x] =
                qRgb(grained(x, size.width()), grained(y, size.height()), grained(x + y, size.width() + size.height()));
        }
    }
    return picture;
}

void slice(benchmark::State &state, const QImage &picture)
{
    int pieces = 0;
    for (auto _ : state) {
        ImageSlicer slicer(picture);
        pieces = slicer.sliceTiles();
        benchmark::DoNotOptimize(pieces);
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * picture.width() * picture.height());
    state.counters["pieces"] = pieces;
}

void sliceRepeated(benchmark::State &state)
{
    slice(state, repeatedTiles(QSize(int(state.range(0)), int(state.range(1)))));
}
BENCHMARK(sliceRepeated)->Args({256, 192})->Args({1024, 1024})->Args({4096, 4096})->Unit(benchmark::kMillisecond);

void sliceDistinct(benchmark::State &state)
{
    slice(state, distinctTiles(QSize(int(state.range(0)), int(state.range(1)))));
}
BENCHMARK(sliceDistinct)->Args({4096, 4096})->Unit(benchmark::kMillisecond);

void slicePlain(benchmark::State &state)
{
    slice(state, plain(QSize(int(state.range(0)), int(state.range(1)))));
}
BENCHMARK(slicePlain)->Args({4096, 4096})->Unit(benchmark::kMillisecond);

void remapPhoto(benchmark::State &state)
{
    Palette palette;
    palette.loadStandardNext();
    const QImage picture = photo({640, 256});
    qsizetype colours = 0;
    for (auto _ : state) {
        NxImage image;
        image.setImage(picture);
        benchmark::DoNotOptimize(image.remap(&palette));
        colours = image.colours().size();
    }
    state.SetItemsProcessed(int64_t(state.iterations()) * picture.width() * picture.height());
    state.counters["colours"] = double(colours);
}
BENCHMARK(remapPhoto)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    // the banks do not suffice for so many colours: that is logged, and is of no interest here
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
