// The map editor while its animations play: what a tick of 20 ms costs, the screen included. The map is
// 2000 × 2000 cells, every one used, on a full screen.

#include "editors/map/mapanimator.h"
#include "editors/map/mapeditorview.h"
#include "editors/map/mapgrid.h"
#include "editors/map/mappreferences.h"
#include "level.h"
#include "model/mapobjects.h"

#include <benchmark/benchmark.h>

#include <QApplication>

namespace {

/// A map editor in which animated blocks of 4 × 4 cells are placed, one in every 8 × 8 cells of the screen.
class Editor
{
public:
    Editor(int zoom, bool placeBlocks)
    {
        m_level.scatter();
        m_blocks.setTileSet(m_level.map.tileSet());
        const QPointer<TileAnimation> animation = m_blocks.createBoundTileAnimation(QStringLiteral("Water"));
        animation->setSize({4, 4});
        animation->setDelay(1);
        for (int frame = 0; frame < 8; ++frame) {
            animation->addFrame();
            for (int cell = 0; cell < 16; ++cell)
                animation->frame(frame)->setIndex(cell / 4, cell % 4, frame * 16 + cell);
        }
        m_level.map.objectLayer()->setVisible(true);
        view.applyPreferences({.checkerBoard = false, .overlayGrid = false, .defaultZoom = zoom});
        view.resize(Screen);
        view.show();
        QApplication::processEvents();
        const QRect shown = view.grid()->viewport().visibleCells();
        for (int y = 0; placeBlocks && y + 4 <= shown.bottom(); y += 8) {
            for (int x = 0; x + 4 <= shown.right(); x += 8)
                m_level.map.placeAnimation(animation, {x, y});
        }
        view.grid()->repaint();
    }

private:
    Level m_level{{2000, 2000}};
    MapObjects m_blocks;

public:
    MapEditor::View view{&m_level.map};
};

/// Zoom, whether there is something to play.
void BM_Tick(benchmark::State &state)
{
    Editor editor(int(state.range(0)), state.range(1) != 0);
    for (auto _ : state) {
        editor.view.animator()->tick();
        QApplication::processEvents();
    }
}
BENCHMARK(BM_Tick)->ArgsProduct({{1, 4}, {0, 1}})->MeasureProcessCPUTime()->Unit(benchmark::kMicrosecond);

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
