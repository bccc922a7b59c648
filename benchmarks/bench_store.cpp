// Saving, loading and fingerprinting a project as large as games make them. Beside the whole operations stand
// the parts that libraries do (archive, PNG, SHA-1), so that what is ours can be told apart.

#include "largeproject.h"
#include "model/tilemap.h"
#include "store/pngmember.h"
#include "store/projectdocument.h"
#include "store/projectstore.h"
#include "store/zipfile.h"

#include <QCryptographicHash>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

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
