// The main window with a project as large as games make them: building it, and opening the project until
// its map is painted. scripts/startup.sh measures what the whole program takes.

#include "app/mainwindow.h"
#include "largeproject.h"
#include "level.h"

#include <QApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>

namespace {

/// The file of a project whose map is open.
QString projectFile(const QTemporaryDir &folder)
{
    const QString file = folder.filePath("bench.quenmora");
    ProjectStore store;
    Project *project = store.newProject("new");
    LargeProject::fill(*project);
    project->setOpenDocuments({project->maps().first()->id().toString()});
    if (!store.saveAs(file))
        qFatal("cannot save the benchmark project");
    return file;
}

void buildWindow(benchmark::State &state)
{
    for ([[maybe_unused]] const auto iteration : state) {
        MainWindow window;
        QCoreApplication::processEvents();
    }
}

void openProject(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString file = projectFile(folder);
    MainWindow window;
    QCoreApplication::processEvents();
    for ([[maybe_unused]] const auto iteration : state) {
        window.projectController()->openProject(file);
        window.repaint();
        QCoreApplication::processEvents();
        if (window.views().tabs->mapEditors().size() != 1)
            qFatal("the map is not shown");
        state.PauseTiming();
        state.counters["MiB"] = memory("VmRSS:");
        window.projectController()->close();
        state.ResumeTiming();
    }
}

BENCHMARK(buildWindow)->Unit(benchmark::kMillisecond);
BENCHMARK(openProject)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir home;
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    Update::UpdateChecker::setFeedAddress({}); // no start here asks a server
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    std::printf("peak memory: %.0f MiB\n", memory("VmHWM:"));
    return 0;
}
