// Painting and switching in the pixel editors, drawn offscreen at the size of a full screen.

#include "editors/canvas/canvas.h"
#include "editors/canvas/previewwindow.h"
#include "editors/canvas/tilepickergrid.h"
#include "editors/canvas/tilewindow.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/tileanimation.h"
#include "model/tileset.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QMouseEvent>

#include <benchmark/benchmark.h>

namespace {

constexpr QSize Screen(1920, 1080);

void render(QWidget &widget, QImage &screen)
{
    widget.render(&screen, {}, {}, QWidget::RenderFlags());
}

void send(Canvas &canvas, QEvent::Type type, QPoint pixel)
{
    const QPointF point = canvas.geometryInWidget().pointOf(pixel);
    QMouseEvent event(type, point, point, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&canvas, &event);
}

/// The slowest way to paint: connected strokes with the largest brush, mirrored over both axes.
PaintOptions slowestOptions()
{
    PaintOptions options;
    options.connect = true;
    options.brush = {Brush::Round, Brush::MaximumSize};
    options.symmetry = {true, true};
    return options;
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
        send(m_canvas, QEvent::MouseButtonPress, {0, 0});
    }
    void moveTo(QPoint pixel)
    {
        send(m_canvas, QEvent::MouseMove, pixel);
        render(m_canvas, m_screen);
    }

private:
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

void brushAndRepaint(benchmark::State &state)
{
    Stroke stroke(3, slowestOptions());
    int step = 0;
    for (auto _ : state) {
        ++step;
        stroke.moveTo(step % 2 == 0 ? QPoint(0, 0) : QPoint(639, step % 256));
    }
}
BENCHMARK(brushAndRepaint)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

/// A move of such a stroke on a tile, with the repaint of the editor and of a preview that is told of every move:
/// repeated, on the map, or in its animation.
void strokeWithPreview(benchmark::State &state)
{
    Project project;
    const QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, QStringLiteral("Colours"));
    const QPointer<TileSet> tiles = project.createTileSet(QStringLiteral("Tiles"), palette->id(), 512);
    const QPointer<Map> map = project.createMap(QStringLiteral("Map"), tiles->id(), {2000, 2000});
    map->setTiles({1990, 1990, 10, 10}, 1, false, false, false, true); // where it takes long to find
    const QPointer<MapObjects> blocks = project.createBlockList(QStringLiteral("Blocks"), tiles->id());
    const QPointer<TileAnimation> water = blocks->createBoundTileAnimation(QStringLiteral("Water"));
    water->setSize({4, 4});
    for (int frame = 0; frame < 8; ++frame)
        water->addFrame()->setCells({4, AnimationFrame::Cells::value_type(4, {.index = 1})});

    TileWindow window;
    window.setMapInFront([map] { return map.data(); });
    window.setTileSet(tiles);
    window.setPalette(palette);
    window.setTileIndex(2);
    window.resize(600, 1000);
    window.show();
    Canvas &canvas = *window.canvas();
    canvas.setZoomLevel(64);
    canvas.setPaintOptions(slowestOptions());
    window.findChild<QAction *>(QStringLiteral("pixels.preview"))->setChecked(true);
    auto *preview = canvas.findChild<PreviewWindow *>();
    preview->findChild<QComboBox *>()->setCurrentIndex(int(state.range(0)));
    preview->resize(600, 600);
    QApplication::processEvents();
    send(canvas, QEvent::MouseButtonPress, {0, 0});
    int step = 0;
    for (auto _ : state) {
        canvas.setInk(++step % 16);
        send(canvas, QEvent::MouseMove, step % 2 == 0 ? QPoint(0, 0) : QPoint(7, step % 8));
        tiles->showPainted(1, canvas.drawnImage());
        QApplication::processEvents();
    }
    if (preview->image().isNull())
        state.SkipWithError("nothing is previewed");
}
BENCHMARK(strokeWithPreview)->DenseRange(0, 2)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

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
