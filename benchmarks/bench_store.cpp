// Saving, loading and fingerprinting a project as large as games make them. Beside the whole operations stand
// the parts that libraries do (archive, PNG, SHA-1), so that what is ours can be told apart.

#include "largeproject.h"
#include "level.h"
#include "model/tilemap.h"
#include "store/packedmember.h"
#include "store/pngmember.h"
#include "store/projectdocument.h"
#include "store/projectstore.h"
#include "store/zipfile.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <zlib.h>

#include <algorithm>
#include <ctime>
#include <vector>

namespace {

/// The project and its file, made once for all benchmarks.
struct Fixture
{
    Fixture()
    {
        LargeProject::fill(*store.newProject("new"));
        members = serializeProject(*store.project(), true);
        if (!store.saveAs(file()))
            qFatal("cannot save the benchmark project");
    }

    [[nodiscard]] QString file() const { return folder.filePath("bench.quenmora"); }
    [[nodiscard]] const TileMap &tileLayer() const { return *store.project()->maps().first()->tileLayer(); }

    QTemporaryDir folder;
    ProjectStore store;
    ProjectMembers members;
};

Fixture &fixture()
{
    static Fixture instance;
    return instance;
}

void saveProject(benchmark::State &state)
{
    Fixture &f = fixture();
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(f.store.save(false));
}

void loadProject(benchmark::State &state)
{
    const Fixture &f = fixture();
    ProjectStore store;
    for ([[maybe_unused]] const auto iteration : state) {
        store.newProject("loading...");
        benchmark::DoNotOptimize(store.load(f.file()));
    }
}

void fingerprint(benchmark::State &state)
{
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(fixture().store.fingerprint());
}

void serializeMembers(benchmark::State &state)
{
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(serializeProject(*fixture().store.project(), true));
}

void readMembers(benchmark::State &state)
{
    const Fixture &f = fixture();
    const MemberReader read = [&f](const QString &name) { return f.members.value(name); };
    for ([[maybe_unused]] const auto iteration : state) {
        Project project;
        QString error;
        benchmark::DoNotOptimize(readProject(project, read, error));
    }
}

void writeArchiveOnly(benchmark::State &state)
{
    const Fixture &f = fixture();
    for ([[maybe_unused]] const auto iteration : state) {
        ZipFile zip;
        bool written = zip.openForWriting(f.folder.filePath("archive.zip"));
        for (auto member = f.members.cbegin(); member != f.members.cend(); ++member)
            written = written && zip.write(member.key(), member.value());
        benchmark::DoNotOptimize(written && zip.close());
    }
}

void readArchiveOnly(benchmark::State &state)
{
    const Fixture &f = fixture();
    for ([[maybe_unused]] const auto iteration : state) {
        ZipFile zip;
        benchmark::DoNotOptimize(zip.openForReading(f.file()));
        for (auto member = f.members.cbegin(); member != f.members.cend(); ++member)
            benchmark::DoNotOptimize(zip.read(member.key()));
    }
}

void encodePicturesOnly(benchmark::State &state)
{
    const Project &project = *fixture().store.project();
    for ([[maybe_unused]] const auto iteration : state) {
        benchmark::DoNotOptimize(PngMember::encode(project.tileSets().first()->toStrip()));
        benchmark::DoNotOptimize(PngMember::encode(project.spriteBanks().first()->image()));
        benchmark::DoNotOptimize(PngMember::encode(project.scratchImage()));
        for (const QPointer<Image> &image : project.images())
            benchmark::DoNotOptimize(PngMember::encode(image->image()));
    }
}

void hashOnly(benchmark::State &state)
{
    const Fixture &f = fixture();
    for ([[maybe_unused]] const auto iteration : state) {
        QCryptographicHash hash(QCryptographicHash::Sha1);
        for (const QByteArray &member : f.members)
            hash.addData(member);
        benchmark::DoNotOptimize(hash.result());
    }
}

void writeTileLayer(benchmark::State &state)
{
    const TileMap &layer = fixture().tileLayer();
    qint64 bytes = 0;
    for ([[maybe_unused]] const auto iteration : state)
        bytes += layer.serialise(layer.bounds()).size();
    state.SetBytesProcessed(bytes);
}

void readTileLayer(benchmark::State &state)
{
    const TileMap &layer = fixture().tileLayer();
    const QByteArray data = layer.serialise(layer.bounds());
    for ([[maybe_unused]] const auto iteration : state) {
        const std::unique_ptr<TileMap> read(TileMap::fromData(data));
        benchmark::DoNotOptimize(read->size());
    }
    state.SetBytesProcessed(qint64(state.iterations()) * data.size());
}

/// A project with a level of so many cells along each side. QUENMORA_BENCH_FILE keeps its file.
class LevelProject
{
public:
    explicit LevelProject(int side)
    {
        Project *project = store.newProject("Level");
        const QUuid palette = project->createPalette(CreateAction::DefaultNext, "Palette")->id();
        const auto tiles = project->createTileSet("Tiles", palette, LargeProject::TileCount);
        for (int index = 0; index < tiles->count(); ++index)
            tiles->setTileImage(index, LargeProject::picture({8, 8}, uint(index)));
        map = project->createMap("Map", tiles->id(), {side, side});
        map->tileLayer()->restore(structures({side, side}));
        const QString kept = qEnvironmentVariable("QUENMORA_BENCH_FILE");
        store.setFileName(kept.isEmpty() ? folder.filePath("level.quenmora") : kept);
    }
    /// Paints some cells, other ones each time.
    void stroke()
    {
        const QSize size = map->size();
        for (int i = 0; i < 20; ++i)
            map->setTile({(m_strokes * 37 + i) % size.width(), (m_strokes * 101) % size.height()},
                         {.index = m_strokes % 512, .flip = true, .used = true});
        ++m_strokes;
    }

    QTemporaryDir folder;
    ProjectStore store;
    QPointer<Map> map;

private:
    int m_strokes = 1;
};

/// The size of the file beside what zlib makes of its large member, and the memory of what is kept beside the file.
void saveLevelFirst(benchmark::State &state)
{
    LevelProject level(int(state.range(0)));
    for ([[maybe_unused]] const auto iteration : state) {
        level.store.keptBlocks().clear();
        benchmark::DoNotOptimize(level.store.save(false));
    }
    const auto file = double(QFileInfo(level.store.fileName()).size());
    const QByteArray cells = level.map->tileLayer()->serialise(level.map->tileLayer()->bounds());
    QByteArray deflated(qsizetype(compressBound(uLong(cells.size()))), Qt::Uninitialized);
    auto size = uLongf(deflated.size());
    compress2(reinterpret_cast<Bytef *>(deflated.data()), &size, reinterpret_cast<const Bytef *>(cells.constData()),
              uLong(cells.size()), Z_BEST_COMPRESSION);
    state.counters["bytes"] = file;
    state.counters["to_zlib"] = file / double(size);
    state.counters["kept_to_file"] = double(level.store.keptBlocks().memory()) / file;
}

/// What saving took until now: zlib over the large member alone.
void zlibAlone(benchmark::State &state)
{
    const LevelProject level(int(state.range(0)));
    const QByteArray cells = level.map->tileLayer()->serialise(level.map->tileLayer()->bounds());
    QByteArray deflated(qsizetype(compressBound(uLong(cells.size()))), Qt::Uninitialized);
    for ([[maybe_unused]] const auto iteration : state) {
        auto size = uLongf(deflated.size());
        compress2(reinterpret_cast<Bytef *>(deflated.data()), &size, reinterpret_cast<const Bytef *>(cells.constData()),
                  uLong(cells.size()), Z_BEST_COMPRESSION);
    }
}

void saveLevelAfterStroke(benchmark::State &state)
{
    LevelProject level(int(state.range(0)));
    benchmark::DoNotOptimize(level.store.save(false));
    for ([[maybe_unused]] const auto iteration : state) {
        level.stroke();
        benchmark::DoNotOptimize(level.store.save(false));
    }
}

void loadLevel(benchmark::State &state)
{
    LevelProject level(int(state.range(0)));
    benchmark::DoNotOptimize(level.store.save(false));
    ProjectStore store;
    for ([[maybe_unused]] const auto iteration : state) {
        store.newProject("loading...");
        benchmark::DoNotOptimize(store.load(level.store.fileName()));
    }
}

void fingerprintLevel(benchmark::State &state)
{
    const LevelProject level(int(state.range(0)));
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(level.store.fingerprint());
    state.counters["peak_MiB"] = memory("VmHWM:");
}

void snapshotLevel(benchmark::State &state)
{
    const LevelProject level(int(state.range(0)));
    for ([[maybe_unused]] const auto iteration : state)
        benchmark::DoNotOptimize(snapshotOf(*level.store.project(), true));
}

/// The steps in which a copy is packed in between, one after the other: the longest and the one that one in a hundred
/// exceeds, in milliseconds of the processor.
void packLevelInSteps(benchmark::State &state)
{
    LevelProject level(int(state.range(0)));
    std::vector<double> steps;
    for ([[maybe_unused]] const auto iteration : state) {
        level.store.keptBlocks().clear();
        const ProjectSnapshot snapshot = snapshotOf(*level.store.project(), true);
        for (const ProjectMember &member : snapshot) {
            for (MemberPacker packer(member, level.store.keptBlocks()); !packer.atEnd();) {
                const std::clock_t start = std::clock();
                packer.step();
                steps.push_back(double(std::clock() - start) * 1000 / CLOCKS_PER_SEC);
            }
        }
    }
    std::sort(steps.begin(), steps.end());
    state.counters["steps"] = double(steps.size());
    state.counters["most_ms"] = steps[steps.size() * 99 / 100];
    state.counters["longest_ms"] = steps.back();
}

BENCHMARK(zlibAlone)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK(saveLevelFirst)->Arg(1000)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK(saveLevelAfterStroke)->Arg(1000)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK(loadLevel)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK(fingerprintLevel)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK(snapshotLevel)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK(packLevelInSteps)->Arg(2000)->Unit(benchmark::kMillisecond);
BENCHMARK(saveProject)->Unit(benchmark::kMillisecond);
BENCHMARK(writeArchiveOnly)->Unit(benchmark::kMillisecond);
BENCHMARK(serializeMembers)->Unit(benchmark::kMillisecond);
BENCHMARK(encodePicturesOnly)->Unit(benchmark::kMillisecond);
BENCHMARK(loadProject)->Unit(benchmark::kMillisecond);
BENCHMARK(readArchiveOnly)->Unit(benchmark::kMillisecond);
BENCHMARK(readMembers)->Unit(benchmark::kMillisecond);
BENCHMARK(fingerprint)->Unit(benchmark::kMillisecond);
BENCHMARK(hashOnly)->Unit(benchmark::kMillisecond);
BENCHMARK(writeTileLayer)->Unit(benchmark::kMillisecond);
BENCHMARK(readTileLayer)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
