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

/// A stroke on a 640 × 256 image that fills the screen, with the repaint that each move causes.
class Stroke
{
public:
    explicit Stroke(int zoom, const PaintOptions &options = {})
    {
        m_palette.loadStandardNext();
        m_canvas.bindPalette(&m_palette);
        m_canvas.setPaintOptions(options);
        m_canvas.setZoomLevel(zoom);
        m_canvas.resize(Screen);
        send(QEvent::MouseButtonPress, {0, 0});
    }
    void moveTo(QPoint pixel)
    {
        send(QEvent::MouseMove, pixel);
        render(m_canvas, m_screen);
    }

private:
    void send(QEvent::Type type, QPoint pixel)
    {
        const QPointF point = m_canvas.geometryInWidget().pointOf(pixel);
        QMouseEvent event(type, point, point, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&m_canvas, &event);
    }

    Palette m_palette;
    Canvas m_canvas{QSize(640, 256)};
    QImage m_screen{Screen, QImage::Format_ARGB32_Premultiplied};
};

/// One pixel of a stroke; the argument is the zoom.
void strokeAndRepaint(benchmark::State &state)
{
    Stroke stroke(int(state.range(0)));
    int step = 0;
    for (auto _ : state) {
        ++step;
        stroke.moveTo({step % 20, step / 20 % 10});
    }
}
BENCHMARK(strokeAndRepaint)->Arg(1)->Arg(3)->Arg(16)->Arg(64)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

/// A connected stroke across the image with the largest brush, mirrored over both axes.
void brushAndRepaint(benchmark::State &state)
{
    PaintOptions options;
    options.connect = true;
    options.brush = {Brush::Round, Brush::MaximumSize};
    options.symmetry = {true, true};
    Stroke stroke(3, options);
    int step = 0;
    for (auto _ : state) {
        ++step;
        stroke.moveTo(step % 2 == 0 ? QPoint(0, 0) : QPoint(639, step % 256));
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
