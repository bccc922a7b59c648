#include "model/palette.h"

#include "model/colourclock.h"
#include "model/colourcycle.h"
#include "model/project.h"
#include "model/projectextras.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QtTest>

#include <utility>

/// Palettes, ranges of theirs whose colours go round, and the clock by which they do.
class TestPalette : public QObject
{
    Q_OBJECT

private slots:
    void readsWords()
    {
        const std::tuple<int, QRgb, bool> words[] = {
            {0xe381, qRgb(255, 0, 255), true},
            {0x2901, qRgb(37, 73, 110), false}, // levels 1, 2, 3
            {0x977e, qRgb(146, 183, 219), false}, // levels 4, 5, 6, and bits that mean nothing
        };
        for (const auto &[word, colour, priority] : words) {
            Palette palette;
            palette.storeRawColour(7, quint16(word));
            QVERIFY(palette.colour(7) == QColor(colour) && palette.priority(7) == priority);
            palette.setTransparencyIndex(7);
            QVERIFY(palette.colours().at(7).rgba() == (colour & RGB_MASK) && palette.colourTable().at(7) == colour);
        }
    }

    void quantises()
    {
        // both sides of every threshold between levels, then of the last steps of the snap grid
        QList<std::tuple<int, int, int>> cases{{8, 0, 0}, {9, 16, 0}, {219, 224, 7}, {247, 240, 7}, {248, 255, 7}};
        for (int level = 0; level < 7; ++level) {
            const int last = 24 + 32 * level;
            cases << std::tuple(last, last - 8, level) << std::tuple(last + 1, last + 8, level + 1);
        }
        for (const auto &[component, snapped, level] : std::as_const(cases)) {
            QCOMPARE(Palette::snapColour(QColor(component, 0, 255, 12)), QColor(snapped, 0, 255));
            QCOMPARE(Palette::snapColour(QColor(0, component, component)), QColor(0, snapped, snapped));
            Palette palette;
            palette.setColour(0, QColor(component, component, component), true);
            QCOMPARE(palette.rawColour(0), quint16(level << 13 | level << 10 | level >> 1 << 8 | 0x80 | (level & 1)));
        }
    }

    void announcesChangesAndEdits()
    {
        Palette palette;
        SignalLog log(palette);
        palette.loadStandardNext();
        palette.setName("untitled");
        // the signal carries the snapped colour, not the expanded one (219 would be 255)
        palette.setColour(3, QColor(219, 219, 219, 9), true);
        palette.setColour(3, QColor(255, 255, 255), true);
        palette.setTransparencyIndex(5);
        for (int i = 0; i < 2; ++i)
            palette.setRawColour(5, 0xe0fe);
        QCOMPARE(log.take(),
                 QStringList(
                     {"colourChanged 3 #ffe0e0e0 true", "colourEdited 3 0301 ff81", "colourChanged 5 #00ff0000 true"}));
        for (int i = 2; i < 256; ++i)
            palette.storeRawColour(i, 0x1c00);
        palette.fill(QColor(0, 255, 0), false);
        QCOMPARE(log.take(),
                 QStringList({"colourChanged 0 #ff00ff00 false", "colourEdited 0 0000 1c00",
                              "colourChanged 1 #ff00ff00 false", "colourEdited 1 0101 1c00"}));
    }

    void findsNearest()
    {
        Palette palette;
        for (const auto &[index, word] : {std::pair(5, 0xff01), {9, 0xff01}, {200, 0xff01}, {2, 0x2000}, {20, 0x4000}})
            palette.storeRawColour(index, quint16(word)); // white, and red 37 and 73
        QCOMPARE(palette.nearestIndex(Qt::white), 5);
        QCOMPARE(palette.nearestIndex(QColor(55, 0, 0)), 2); // halfway
        // an opaque colour never equals the transparent entry, which still wins by distance
        palette.setTransparencyIndex(5);
        QCOMPARE(palette.nearestIndex(Qt::white), 9);
        QCOMPARE(palette.nearestIndex(QColor(250, 240, 251)), 5);
        QCOMPARE(palette.nearestIndex(QColor(255, 255, 255, 0)), 5);
    }

    void keepsItsFiles()
    {
        const TemporaryFolder path;
        Palette palette;
        palette.loadStandardNext();
        palette.storeRawColour(1, 0xe3ff); // bits that mean nothing are kept
        QVERIFY(palette.exportData(path("A.NPL", QByteArray(9999, 'x'))));
        const QByteArray bytes = readFile(path("A.NPL"));
        QVERIFY(bytes.startsWith(QByteArray::fromHex("0000e3ff020103010400")) && bytes.size() == 513);
        Palette read;
        SignalLog log(read);
        QVERIFY(read.importData(path("A.NPL")) && log.take().isEmpty());
        for (const auto &[name, size] :
             {std::pair("a.pal", 0), {"a.pal", 511}, {"a.pal", 513}, {"a.npl", 512}, {"a.npl", 514}})
            QVERIFY(!read.importData(path(name, QByteArray(size, 'x'))));
        QVERIFY(!read.importData(path()) && !read.importData(path("missing.pal")));
        QVERIFY(read.exportData(path("b.npl")) && readFile(path("b.npl")) == bytes);

        QVERIFY(!palette.exportData(path()));
        // bytes fail when they leave the buffer
        QVERIFY(!QFile::exists("/dev/full") || !palette.exportData("/dev/full"));
        palette.setName("../out");
        QVERIFY(!palette.exportToDirectory(path()));
    }

    void coloursGoRound()
    {
        // whether backwards, the frame, and what entries 9 to 14 show, of which 10 to 13 go round
        const std::tuple<bool, qint64, QList<int>> cases[] = {
            {false, 0, {9, 10, 11, 12, 13, 14}},
            {false, 2, {9, 10, 11, 12, 13, 14}}, // before a step
            {false, 3, {9, 13, 10, 11, 12, 14}},
            {true, 3, {9, 11, 12, 13, 10, 14}},
            {true, 3 * 6, {9, 12, 13, 10, 11, 14}}, // a round and two steps
            {false, 3 * 4'000'000'001, {9, 13, 10, 11, 12, 14}}, // hours
        };
        for (const auto &[backwards, frame, shown] : cases) {
            const auto entries = ColourCycles::shownEntries({{10, 13, 3, backwards}, {20, 21, 255, false}}, frame);
            QCOMPARE(QList<int>(&entries[9], &entries[15]), shown);
        }
    }

    void onlyWhatCanBeIsTakenFromAFile()
    {
        ProjectExtras extras;
        const QUuid palette = QUuid::createUuid();
        const auto item = [](int first, int last, QJsonValue frames) {
            return QJsonObject{{"first", first}, {"last", last}, {"frames", frames}, {"backwards", first == 0}};
        };
        extras.setSection("colourCycles",
                          QJsonObject{{palette.toString(QUuid::WithoutBraces),
                                       QJsonArray{item(200, 255, 1), item(0, 1, 255), item(1, 5, 3), item(7, 7, 3),
                                                  item(9, 8, 3), item(-1, 4, 3), item(90, 256, 3), item(90, 99, 0),
                                                  item(90, 99, 256), item(90, 99, "3"), 17, QJsonArray()}}});
        const ColourCycles::List sound{{0, 1, 255, true}, {200, 255, 1, false}};
        QCOMPARE(ColourCycles::of(extras, palette), sound);
        QCOMPARE(ColourCycles::of(extras, QUuid::createUuid()), ColourCycles::List());
        ColourCycles::set(extras, palette, ColourCycles::of(extras, palette));
        QCOMPARE(ColourCycles::of(extras, palette), sound);
        ColourCycles::set(extras, palette, {});
        QVERIFY(extras.sections().isEmpty());
    }

    void theClockRunsOnlyWhenThereIsSomethingToShow()
    {
        Project project;
        const QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, "Water");
        const QPointer<Palette> other = project.createPalette(CreateAction::DefaultNext, "Other");
        QSignalSpy shown(palette, &Palette::shownColoursChanged);
        QSignalSpy otherShown(other, &Palette::shownColoursChanged);
        QSignalSpy changed(palette, &Palette::colourChanged);
        ColourClock clock;
        clock.setProject(&project);
        clock.setRunning(true);
        QVERIFY(!clock.isTicking());
        ColourCycles::set(*project.extras(), palette->id(), {{1, 4, 6}, {8, 9, 4}});
        QVERIFY(clock.isTicking());
        for (const int frames : {4, 1, 1}) // of which the second makes no step
            clock.advance(frames);
        QCOMPARE(shown.size(), 2);
        QCOMPARE(palette->shownColour(2), palette->colour(1));
        QCOMPARE(palette->shownColour(1), palette->colour(4));
        palette->setTransparencyIndex(3);
        QCOMPARE(palette->shownColour(3).alpha(), 0); // which is no matter of colours

        clock.setPaused(true);
        QVERIFY(!clock.isTicking());
        QCOMPARE(shown.size(), 2);
        clock.setPaused(false);
        QVERIFY(clock.isTicking());
        clock.setRunning(false);
        QVERIFY(!clock.isTicking());
        QCOMPARE(palette->shownColourTable(), palette->colourTable());
        clock.setRunning(true);
        clock.advance(6);
        ColourCycles::set(*project.extras(), palette->id(), {});
        QVERIFY(!clock.isTicking());
        QCOMPARE(palette->shownColourTable(), palette->colourTable());
        QVERIFY(changed.isEmpty() && otherShown.isEmpty());
    }
};

QUENMORA_TEST_MAIN(TestPalette)
#include "tst_palette.moc"
