// Ranges of palettes whose colours go round, and the clock by which they do.

#include "model/colourclock.h"
#include "model/colourcycle.h"
#include "model/project.h"
#include "model/projectextras.h"
#include "support/testmain.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

class TestColourCycle : public QObject
{
    Q_OBJECT

private slots:
    void coloursGoRound_data()
    {
        QTest::addColumn<bool>("backwards");
        QTest::addColumn<qint64>("frame");
        QTest::addColumn<QList<int>>("shown"); // by entries 9–14, of which 10–13 go round
        QTest::newRow("beginning") << false << qint64(0) << QList{9, 10, 11, 12, 13, 14};
        QTest::newRow("before a step") << false << qint64(2) << QList{9, 10, 11, 12, 13, 14};
        QTest::newRow("a step") << false << qint64(3) << QList{9, 13, 10, 11, 12, 14};
        QTest::newRow("a step backwards") << true << qint64(3) << QList{9, 11, 12, 13, 10, 14};
        QTest::newRow("a round and two steps") << true << qint64(3 * 6) << QList{9, 12, 13, 10, 11, 14};
        QTest::newRow("hours") << false << qint64(3) * 4'000'000'001 << QList{9, 13, 10, 11, 12, 14};
    }

    void coloursGoRound()
    {
        QFETCH(bool, backwards);
        QFETCH(qint64, frame);
        QFETCH(QList<int>, shown);
        const auto entries = ColourCycles::shownEntries({{10, 13, 3, backwards}, {20, 21, 255, false}}, frame);
        for (int i = 0; i < 6; ++i)
            QCOMPARE(entries[size_t(9 + i)], shown[i]);
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
        clock.advance(4);
        clock.advance(1); // no step
        clock.advance(1);
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

QUENMORA_TEST_MAIN(TestColourCycle)
#include "tst_colourcycle.moc"
