// Painting and switching in the pixel editors, drawn offscreen at the size of a full screen.

#include "editors/canvas/canvas.h"
#include "editors/canvas/tilepickergrid.h"
#include "editors/canvas/tilewindow.h"
#include "model/palette.h"
#include "model/tileset.h"

#include <QApplication>
#include <QMouseEvent>

#include <benchmark/benchmark.h>

namespace {

constexpr QSize Screen(1920, 1080);

void render(QWidget &widget, QImage &screen)
{
    widget.render(&screen, {}, {}, QWidget::RenderFlags());
}

/// One pixel of a stroke on a 640 × 256 image, and the repaint that it causes; the argument is the zoom.
void strokeAndRepaint(benchmark::State &state)
{
    Palette palette;
    palette.loadStandardNext();
    Canvas canvas(QSize(640, 256));
    canvas.bindPalette(&palette);
    canvas.setZoomLevel(int(state.range(0)));
    canvas.resize(Screen);
    QImage screen(Screen, QImage::Format_ARGB32_Premultiplied);
    const auto send = [&canvas](QEvent::Type type, QPoint pixel) {
        const QPointF point = canvas.geometryInWidget().pointOf(pixel);
        QMouseEvent event(type, point, point, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&canvas, &event);
    };
    send(QEvent::MouseButtonPress, {0, 0});
    int step = 0;
    for (auto _ : state) {
        ++step;
        send(QEvent::MouseMove, {step % 20, step / 20 % 10});
        render(canvas, screen);
    }
}
BENCHMARK(strokeAndRepaint)->Arg(1)->Arg(3)->Arg(16)->Arg(64)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

/// A connected stroke across a 640 × 256 image with the largest brush, mirrored over both axes, and its repaint.
void brushAndRepaint(benchmark::State &state)
{
    Palette palette;
    palette.loadStandardNext();
    Canvas canvas(QSize(640, 256));
    canvas.bindPalette(&palette);
    PaintOptions options;
    options.connect = true;
    options.brush = {Brush::Round, Brush::MaximumSize};
    options.symmetry = {true, true};
    canvas.setPaintOptions(options);
    canvas.setZoomLevel(3);
    canvas.resize(Screen);
    QImage screen(Screen, QImage::Format_ARGB32_Premultiplied);
    const auto send = [&canvas](QEvent::Type type, QPoint pixel) {
        const QPointF point = canvas.geometryInWidget().pointOf(pixel);
        QMouseEvent event(type, point, point, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&canvas, &event);
    };
    send(QEvent::MouseButtonPress, {0, 0});
    int step = 0;
    for (auto _ : state) {
        ++step;
        send(QEvent::MouseMove, step % 2 == 0 ? QPoint(0, 0) : QPoint(639, step % 256));
        render(canvas, screen);
    }
}
BENCHMARK(brushAndRepaint)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

void switchTile(benchmark::State &state)
{
    Palette palette;
    palette.loadStandardNext();
    TileSet tiles(512);
    tiles.setPalette(&palette);
    TileWindow window;
    window.setTileSet(&tiles);
    window.setPalette(&palette);
    window.resize(400, 900);
    QImage screen(window.size(), QImage::Format_ARGB32_Premultiplied);
    int tile = 0;
    for (auto _ : state) {
        tile = tile % 512 + 1;
        window.setTileIndex(tile);
        render(*window.canvas(), screen);
    }
}
BENCHMARK(switchTile)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

/// A full screen of the tile picker; the argument is the magnification.
void paintPicker(benchmark::State &state)
{
    Palette palette;
    palette.loadStandardNext();
    TileSet tiles(512);
    tiles.setPalette(&palette);
    TilePickerGrid grid;
    grid.setTileSet(&tiles);
    grid.setMagnification(int(state.range(0)));
    grid.resize(Screen);
    QImage screen(Screen, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state)
        render(grid, screen);
}
BENCHMARK(paintPicker)->Arg(1)->Arg(4)->Arg(16)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
