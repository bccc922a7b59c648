// Pictures as files on their way into a project: time and memory of whole processes, which this program starts for each
// measurement. Peaks are in MiB; "least" is that of a process that does nothing else.
#include "app/imports/pictureimport.h"
#include "app/imports/spriteimport.h"
#include "level.h"
#include "model/imageslicer.h"
#include "model/picturefile.h"
#include "model/project.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <random>

namespace {

enum Content { Repeated, Distinct, Photo };

/// Tiles of 16 colours, 300 of them or each one new, or noisy gradients without any tiles.
QImage picture(Content content, int side)
{
    constexpr int Tiles = 300;
    constexpr int Colours = 16;
    std::minstd_rand random;
    if (content == Photo) {
        QImage image(side, side, QImage::Format_RGB32);
        for (int y = 0; y < side; ++y) {
            auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
            for (int x = 0; x < side; ++x)
                line[x] = qRgb(200 * x / side + int(random() % 48), 200 * y / side + int(random() % 48), 90);
        }
        return image;
    }
    QImage image(side, side, QImage::Format_Indexed8);
    QList<QRgb> colours(Colours);
    for (int i = 0; i < Colours; ++i)
        colours[i] = qRgb(i % 4 * 64, i / 4 * 64, 128);
    image.setColorTable(colours);
    std::vector<uchar> tiles(Tiles * 64);
    for (uchar &pixel : tiles)
        pixel = uchar(random() % Colours);
    for (int y = 0; y < side; y += 8) {
        for (int x = 0; x < side; x += 8) {
            const uint tile = random() % Tiles;
            for (int row = 0; row < 8; ++row) {
                uchar *to = image.scanLine(y + row) + x;
                for (int column = 0; column < 8; ++column)
                    to[column] =
                        content == Distinct ? uchar(random() % Colours) : tiles[tile * 64 + size_t(row * 8 + column)];
            }
        }
    }
    return image;
}

/// What a process of its own does, and then says.
int work(const QString &task, const QString &file)
{
    const double least = memory("VmHWM:");
    QElapsedTimer timer;
    timer.start();
    int made = 0;
    if (task == "cut") {
        ImageSlicer slicer(PictureFile::read(file).image);
        made = slicer.sliceTiles();
    } else if (task == "map") {
        Project project;
        const QPointer<Map> map = importPicture(project, file, nullptr).map;
        made = map ? map->size().width() : 0;
    } else if (task == "sprites") {
        Project project;
        const SpriteBank *bank = importSpritePicture(project, {file, "Sprites", Quenmora::EightBit, {}}, nullptr);
        made = bank ? bank->count() : 0;
    }
    std::printf("%lld %f %f %d\n", timer.elapsed(), least, memory("VmHWM:"), made);
    return 0;
}

void import(benchmark::State &state, const char *task, Content content)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("picture.png");
    if (!picture(content, int(state.range(0))).save(file))
        qFatal("cannot write the picture");
    for ([[maybe_unused]] const auto iteration : state) {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {task, file});
        process.waitForFinished(-1);
        const QList<QByteArray> said = process.readAllStandardOutput().trimmed().split(' ');
        if (said.size() != 4)
            qFatal("the process failed");
        state.SetIterationTime(said[0].toDouble() / 1000);
        state.counters["least"] = said[1].toDouble();
        state.counters["peak"] = said[2].toDouble();
        state.counters["made"] = said[3].toDouble();
    }
}

#define MEASURE(task, content)                                                                                         \
    BENCHMARK_CAPTURE(import, task##content, #task, content)                                                           \
        ->Arg(4096)                                                                                                    \
        ->Arg(8192)                                                                                                    \
        ->Iterations(1)                                                                                                \
        ->UseManualTime()                                                                                              \
        ->Unit(benchmark::kMillisecond)
MEASURE(cut, Repeated);
MEASURE(cut, Distinct);
MEASURE(cut, Photo);
MEASURE(map, Repeated);
MEASURE(map, Photo);
MEASURE(sprites, Repeated);
MEASURE(sprites, Photo);

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // the banks do not suffice for so many colours: that is logged, and is of no interest here
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    if (argc == 3 && qstrcmp(argv[1], "cut") == 0)
        return work(QString::fromUtf8(argv[1]), QString::fromUtf8(argv[2])); // nor is what a window takes
    const QApplication application(argc, argv);
    if (argc == 3)
        return work(QString::fromUtf8(argv[1]), QString::fromUtf8(argv[2]));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
