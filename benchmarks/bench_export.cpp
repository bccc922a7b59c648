// Exporting a project as a game's build does: the program as a whole process on the sample project, and the recipe of a
// project with a hundred maps, new and unchanged; and in the editor, until the dialog with that recipe is there.

#include "app/exportproject/exportprojectdialog.h"
#include "app/exportproject/recipetable.h"
#include "command/description.h"
#include "exportprogram.h"
#include "largeproject.h"
#include "nextdata/recipe.h"
#include "store/projectstore.h"

#include <QApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include <benchmark/benchmark.h>

using namespace NextData;

namespace {

constexpr int MapCount = 100;
constexpr QSize MapSize(256, 192);

/// A project file with its recipe, which exports every map.
struct Fixture
{
    Fixture()
    {
        ProjectStore store;
        Project &project = *store.newProject("maps");
        const QUuid palette = project.createPalette(CreateAction::DefaultNext, "Palette")->id();
        const auto tiles = project.createTileSet("Tiles", palette, LargeProject::TileCount);
        QList<RecipeOutput> outputs;
        for (int i = 0; i < MapCount; ++i) {
            const auto map = project.createMap(QString::number(i), tiles->id(), MapSize);
            for (int y = 0; y < MapSize.height(); ++y) {
                for (int x = 0; x < MapSize.width(); ++x) {
                    const uint terrain = LargeProject::hashed(x / 8 + i * MapSize.width(), y / 4) % 7;
                    const uint detail = LargeProject::hashed(x + i * MapSize.width(), y);
                    const int tile = int(terrain == 0 ? detail % LargeProject::TileCount : terrain * 16 + uint(x % 4));
                    map->setTile({x, y}, {tile, false, detail % 8 == 0, detail % 8 == 1, int(terrain), true});
                }
            }
            outputs.append({AssetKind::Map, map->id(), map->name(), "map-2byte", {}, map->name() + ".map"});
        }
        Recipe recipe;
        recipe.setOutputs(outputs);
        if (!store.saveAs(file()) || !recipe.save(Recipe::pathFor(file())).isEmpty())
            qFatal("cannot save the benchmark project");
    }

    [[nodiscard]] QString file() const { return folder.filePath("maps.quenmora"); }

    QTemporaryDir folder;
};

const Fixture &fixture()
{
    static const Fixture instance;
    return instance;
}

void runProgram(const QString &project, const QString &output)
{
    if (QProcess::execute(EXPORT_PROGRAM, {"--quiet", project, "--output", output}) != 0)
        qFatal("the program failed");
}

void sampleUnchanged(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString project = QDir(EXAMPLES_FOLDER).filePath("sample.quenmora");
    runProgram(project, folder.path());
    for ([[maybe_unused]] const auto iteration : state)
        runProgram(project, folder.path());
}

void hundredMapsNew(benchmark::State &state)
{
    const QString project = fixture().file();
    for ([[maybe_unused]] const auto iteration : state) {
        const QTemporaryDir folder;
        runProgram(project, folder.path());
    }
}

void hundredMapsUnchanged(benchmark::State &state)
{
    const QTemporaryDir folder;
    runProgram(fixture().file(), folder.path());
    for ([[maybe_unused]] const auto iteration : state)
        runProgram(fixture().file(), folder.path());
}

void describeHundredMaps(benchmark::State &state)
{
    ProjectStore store;
    store.newProject({});
    if (!store.load(fixture().file()))
        qFatal("cannot load the benchmark project");
    for ([[maybe_unused]] const auto iteration : state) {
        QByteArray text;
        QTextStream out(&text);
        describe(*store.project(), out);
        benchmark::DoNotOptimize(text);
    }
}

/// Until a person sees the table; with isWhole, until it tells of every output what exporting it would do.
void openDialog(benchmark::State &state, bool isWhole)
{
    ProjectStore store;
    store.newProject({});
    Recipe recipe;
    if (!store.load(fixture().file()) || !recipe.load(Recipe::pathFor(fixture().file())).isEmpty())
        qFatal("cannot load the benchmark project");
    for ([[maybe_unused]] const auto iteration : state) {
        ExportProjectDialog dialog;
        dialog.show(*store.project(), fixture().file(), recipe, false);
        do
            QCoreApplication::processEvents();
        while (isWhole && dialog.table()->isLooking());
    }
}

void openDialogOfHundredMaps(benchmark::State &state)
{
    openDialog(state, false);
}

void lookAtHundredMaps(benchmark::State &state)
{
    openDialog(state, true);
}

BENCHMARK(openDialogOfHundredMaps)->Unit(benchmark::kMillisecond);
BENCHMARK(lookAtHundredMaps)->Unit(benchmark::kMillisecond);
BENCHMARK(sampleUnchanged)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(hundredMapsNew)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(hundredMapsUnchanged)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(describeHundredMaps)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
