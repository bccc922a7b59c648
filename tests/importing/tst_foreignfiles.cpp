#include "importing/addition.h"
#include "importing/filekind.h"
#include "importing/preview.h"
#include "model/image.h"
#include "model/nextcolour.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "support/asepritebuilder.h"
#include "support/damage.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QTest>

using namespace Importing;
using Options = QMap<QString, QString>;

namespace {

/// The bytes of colours: red, green, blue, alpha. These are the machine's.
const QByteArray Black("\x00\x00\x00\xFF", 4);
const QByteArray Red("\xFF\x00\x00\xFF", 4);
const QByteArray Grey("\xDB\xDB\xDB\xFF", 4); // level 6, which quantises to 7
const QByteArray Blue("\x00\x00\x49\xFF", 4); // level 2
constexpr quint16 RedWord = 0xE000;
constexpr quint16 GreyWord = 0xDB00;
constexpr quint16 BlueWord = 0x0100;

/// A row of cells as their numbers.
QString cellsOf(const SpriteAnim &animation)
{
    QStringList frames;
    for (int i = 0; i < animation.frameCount(); ++i) {
        QStringList numbers;
        for (const auto &row : animation.frame(i)->cells()) {
            for (const AnimationFrame::Cell &cell : row)
                numbers.append(QString::number(cell.index));
        }
        frames.append(numbers.join(u' '));
    }
    return frames.join(QStringLiteral(" | "));
}

} // namespace

/// What becomes of files of other programs: their colours, frames, tags and sizes.
class TestForeignFiles : public QObject
{
    Q_OBJECT

    TemporaryFolder m_path;

    /// What is made of a file that is recognised as one of these kinds, in a project.
    IncomingAssets prepared(const Project &project, const QString &name, const QByteArray &bytes, const QString &kind,
                            const Options &options = {}, const QUuid &palette = {})
    {
        const auto file = ImportFile::open(m_path(name, bytes));
        if (!file)
            qFatal("%s", qPrintable(file.reason()));
        const QList<Guess> guesses = recognise(*file);
        if (std::none_of(guesses.cbegin(), guesses.cend(), [&kind](const Guess &guess) { return guess.kind == kind; }))
            qFatal("%s is no %s", qPrintable(name), qPrintable(kind));
        const auto incoming =
            prepare(project, *file, {.kind = kind, .options = options, .name = "Name", .palette = palette});
        if (!incoming)
            qWarning("%s", qPrintable(incoming.reason()));
        return incoming ? *incoming : IncomingAssets{.remarks = {incoming.reason()}};
    }

    /// Three frames of 24 × 16 pixels: a pixel of the frame's index at the right edge of a red square.
    static AsepriteBuilder walk(int bits)
    {
        AsepriteBuilder builder;
        builder.width = 24;
        builder.height = 16;
        builder.bits = bits;
        builder.clearIndex = 2;
        const QList<QByteArray> colours{Black, Red, QByteArray(4, '\x11'), Grey, Blue};
        for (int frame = 0; frame < 3; ++frame) {
            builder.frame(frame == 1 ? 200 : 100);
            if (frame == 0) {
                builder.palette(colours);
                builder.layer("one");
                builder.tags({AsepriteBuilder::tag(0, 1, 0, 0, "run"), AsepriteBuilder::tag(0, 2, 1, 0, "back"),
                              AsepriteBuilder::tag(0, 2, 2, 3, "swing"), AsepriteBuilder::tag(2, 2, 0, 0, "stand")});
            }
            QByteArray pixels;
            for (int i = 0; i < 16 * 16; ++i) {
                const int index = i == 16 * 16 - 1 ? (frame == 2 ? 4 : 3) : 1;
                pixels += bits == 8 ? QByteArray(1, char(index)) : colours[index];
            }
            builder.raw(0, {8, 0}, {16, 16}, pixels);
        }
        return builder;
    }

private slots:
    void framesBecomeSprites_data()
    {
        QTest::addColumn<int>("bits");
        QTest::addColumn<Options>("options");
        QTest::addColumn<int>("clear");
        QTest::newRow("indices") << 8 << Options() << 2;
        QTest::newRow("indices in four bits") << 8 << Options{{"depth", "4"}} << 2;
        QTest::newRow("colours") << 32 << Options() << -1;
        QTest::newRow("colours in four bits") << 32 << Options{{"depth", "4"}} << -1;
    }

    void framesBecomeSprites()
    {
        QFETCH(int, bits);
        QFETCH(Options, options);
        QFETCH(int, clear);
        Project project;
        const IncomingAssets incoming =
            prepared(project, "walk.aseprite", walk(bits).bytes(), "aseprite-sprites", options);
        QVERIFY(incoming.sprites && incoming.palette);
        QCOMPARE(incoming.remarks, QStringList(QString::fromUtf8("“swing” is repeated for ever")));
        const ImportChoices choices{.kind = "aseprite-sprites", .name = "Hero"};
        // three sprites, and four animations of up to six frames of 2 × 1 sprites below them
        const QImage preview = previewOf(project, incoming, choices);
        QCOMPARE(preview.size(), QSize(6 * 40, 16 + 4 * 24));
        QCOMPARE(preview.pixel(3 * 40 + 16 + 7, 16 + 2 * 24 + 8 + 15), 0xFF000049); // of the last frame
        const auto added = addTo(project, incoming, choices, {});
        QVERIFY(added);
        const auto bank = project.spriteBank(added->sprites);
        const auto palette = project.palette(added->palette);
        QCOMPARE(bank->palette(), palette);
        QCOMPARE(bank->depth(), options.isEmpty() ? Quenmora::EightBit : Quenmora::FourBit);
        QCOMPARE(bank->count(), 3); // the first frame, and the right half of the last one
        if (clear >= 0) {
            QCOMPARE(bank->clearPixels().pixel(), clear);
            QCOMPARE(palette->rawColour(1), RedWord);
            QCOMPARE(palette->rawColour(3), GreyWord);
            QCOMPARE(palette->rawColour(4), BlueWord);
        }
        QCOMPARE(palette->transparencyIndex(), bank->clearPixels().pixel());

        // what is seen is the frame, in its colours
        const QImage first = bank->renderSprite(0, 0, false, false, false);
        QCOMPARE(qAlpha(first.pixel(7, 0)), 0);
        QCOMPARE(first.pixel(8, 15), 0xFFFF0000);
        const QImage second = bank->renderSprite(1, 0, false, false, false);
        QCOMPARE(second.pixel(7, 15), 0xFFDBDBDB);
        QCOMPARE(qAlpha(second.pixel(8, 15)), 0);
        QCOMPARE(bank->renderSprite(2, 0, false, false, false).pixel(7, 15), 0xFF000049);

        QStringList animations;
        for (const auto &animation : bank->animations())
            animations.append(QStringLiteral("%1 %2x%3 @%4: %5")
                                  .arg(animation->name())
                                  .arg(animation->size().width())
                                  .arg(animation->size().height())
                                  .arg(animation->delay())
                                  .arg(cellsOf(*animation)));
        QCOMPARE(animations,
                 (QStringList{"run 2x1 @5: 0 1 | 0 1 | 0 1", "back 2x1 @5: 0 2 | 0 1 | 0 1 | 0 1",
                              "swing 2x1 @5: 0 1 | 0 1 | 0 1 | 0 2 | 0 1 | 0 1", "stand 2x1 @0: 0 2"}));
    }

    /// No opaque colour becomes clear, whatever the palette: with one of the project, with all indices in use, and
    /// with more colours than there is room for.
    void opaqueStaysOpaque_data()
    {
        QTest::addColumn<bool>("isGiven");
        QTest::addColumn<int>("colours");
        QTest::addColumn<Options>("options");
        QTest::addColumn<bool>("isLossy");
        QTest::newRow("a palette of the project") << true << 4 << Options() << true;
        QTest::newRow("all indices") << false << 256 << Options() << true;
        QTest::newRow("the usual clear index in use") << false << 240 << Options() << false;
        QTest::newRow("too many for four bits") << false << 40 << Options{{"depth", "4"}} << true;
        QTest::newRow("dithered") << false << 40 << Options{{"depth", "4"}, {"dithering", "diffusion"}} << true;
    }

    void opaqueStaysOpaque()
    {
        QFETCH(bool, isGiven);
        QFETCH(int, colours);
        QFETCH(Options, options);
        QFETCH(bool, isLossy);
        Project project;
        const auto own = project.createPalette(CreateAction::Blank, "Own");
        own->setRawColour(0, NextColour::compose(3, 0, 0, false));
        own->setRawColour(9, GreyWord);
        own->setTransparencyIndex(0); // which would be exact
        AsepriteBuilder builder;
        builder.width = 16;
        builder.height = 16;
        builder.frame(100);
        QList<QByteArray> palette;
        QByteArray pixels;
        for (int i = 0; i < 256; ++i) {
            const int level = i < colours ? i : 0;
            constexpr int components[] = {0, 36, 73, 109, 146, 182, 219, 255};
            palette.append(QByteArray()
                               .append(char(components[level & 7]))
                               .append(char(components[level >> 3 & 7]))
                               .append(char(components[level >> 6]))
                               .append('\xFF'));
            pixels.append(char(i % colours));
        }
        builder.palette(palette);
        AsepriteBuilder::Layer background;
        background.flags = 1 | 8; // which has no clear pixels
        builder.layer("back", background);
        builder.raw(0, {}, {16, 16}, pixels);
        const IncomingAssets incoming =
            prepared(project, "all.ase", builder.bytes(), "aseprite-sprites", options, isGiven ? own->id() : QUuid());
        QVERIFY(incoming.sprites);
        QCOMPARE(!incoming.remarks.filter("mean error").isEmpty(), isLossy);
        const auto added =
            addTo(project, incoming,
                  {.kind = "aseprite-sprites", .name = "Hero", .palette = isGiven ? own->id() : QUuid()}, {});
        const auto bank = project.spriteBank(added->sprites);
        const QImage sprite = bank->renderSprite(0, 0, false, false, false);
        for (int i = 0; i < 256; ++i) {
            QVERIFY2(qAlpha(sprite.pixel(i % 16, i / 16)) == 255, qPrintable(QString::number(i)));
            const QRgb exact =
                qRgb(NextColour::componentOf(i % colours & 7), NextColour::componentOf(i % colours >> 3 & 7),
                     NextColour::componentOf(i % colours >> 6));
            QVERIFY(isLossy || sprite.pixel(i % 16, i / 16) == exact);
        }
        QCOMPARE(own->rawColour(9), GreyWord);
        QCOMPARE(project.palettes().size(), isGiven ? 1 : 2);
    }

    void joinsABank()
    {
        Project project;
        const auto palette = project.createPalette(CreateAction::Blank, "Own");
        palette->setRawColour(5, RedWord);
        const auto bank = project.createSpriteBank(Quenmora::FourBit, "Bank", palette->id());
        bank->changeTransparency(7);
        const ImportChoices choices{.kind = "aseprite-sprites", .target = bank->id()};
        const auto file = ImportFile::open(m_path("walk.ase", walk(8).bytes()));
        const auto incoming = prepare(project, *file, choices);
        QVERIFY(incoming && !incoming->remarks.filter("animations are left out").isEmpty());
        QVERIFY(addTo(project, *incoming, choices, {}));
        QCOMPARE(bank->count(), 1 + 3);
        QCOMPARE(bank->spriteImage(1, false, false, false).pixelIndex(0, 0), 7); // clear
        QCOMPARE(bank->spriteImage(1, false, false, false).pixelIndex(8, 0), 5);
        QCOMPARE(project.palettes().size(), 1);
        QVERIFY(bank->animations().isEmpty());
    }

    void becomesTilesOrAnImage()
    {
        Project project;
        const IncomingAssets tiles = prepared(project, "walk.ase", walk(8).bytes(), "aseprite-tiles");
        QCOMPARE(tiles.map->rows.size(), 2);
        QCOMPARE(tiles.map->rows[0].size(), 3);
        QCOMPARE(tiles.tiles->tiles.size(), 3); // clear, red, and with a grey corner
        QVERIFY(!prepared(project, "walk.ase", walk(8).bytes(), "aseprite-tiles", {{"frames", "all"}}).map);
        const IncomingAssets image = prepared(project, "walk.ase", walk(8).bytes(), "aseprite-image");
        QCOMPARE(image.image->mode, Quenmora::LoRes_128x96);
        QCOMPARE(int(uchar(image.image->pixels[40 * 128 + 52])), 2); // 24 × 16 in the middle
        QCOMPARE(int(uchar(image.image->pixels[40 * 128 + 60])), 1);
        QCOMPARE(int(uchar(image.image->pixels[55 * 128 + 75])), 3);
        QCOMPARE(int(uchar(image.image->pixels[55 * 128 + 76])), 2);
        QCOMPARE(image.palette->words.mid(0, 2), (QList<quint16>{0, RedWord}));
        QCOMPARE(image.remarks, QStringList("Frames that are left out: 2"));
    }

    void coloursBecomeAPalette()
    {
        Project project;
        const QByteArray text =
            "GIMP Palette\nName: Four\n#\n255 0 0 red\n219 219 219\n0 0 72 near\n10 120 200 other\n";
        const IncomingAssets incoming = prepared(project, "four.gpl", text, "colours", {{"first", "253"}});
        QCOMPARE(incoming.palette->first, 253);
        QCOMPARE(incoming.palette->words, (QList<quint16>{RedWord, GreyWord, BlueWord}));
        QCOMPARE(incoming.remarks, QStringList("Colours for which there is no room: 1"));
        QCOMPARE(prepared(project, "four.gpl", text, "colours").remarks,
                 QStringList("Colours that the Next does not have, and that become the nearest ones: 1 of 4"));
    }

    void aPictureBecomesAnImage()
    {
        Project project;
        QImage picture(256, 192, QImage::Format_ARGB32);
        picture.fill(0xFFDBDBDB);
        picture.setPixel(3, 0, 0);
        picture.setPixel(4, 0, 0xFFFF0000);
        picture.setPixel(64 + 5, 48, 0xFFFF0000); // in the middle
        QVERIFY(picture.save(m_path("title.png")));
        const QByteArray bytes = readFile(m_path("title.png"));
        const IncomingAssets own = prepared(project, "title.png", bytes, "picture-image");
        QCOMPARE(own.image->mode, Quenmora::Layer2_256x192);
        QCOMPARE(own.remarks, QStringList());
        const auto added = addTo(project, own, {.kind = "picture-image", .name = "Title"}, {});
        const QImage image = project.image(added->image)->image();
        QCOMPARE(image.pixelIndex(3, 0), project.palette(added->palette)->transparencyIndex());
        QCOMPARE(image.pixel(4, 0), 0xFFFF0000);
        QCOMPARE(image.pixel(5, 0), 0xFFDBDBDB);
        const IncomingAssets small =
            prepared(project, "title.png", bytes, "picture-image", {{"mode", "lores"}}, added->palette);
        QVERIFY(!small.palette);
        QCOMPARE(small.image->pixels.indexOf(small.image->pixels[5]), 5);
        QCOMPARE(project.palette(added->palette)->rawColour(uchar(small.image->pixels[5])), RedWord);
        QCOMPARE(small.remarks,
                 QStringList(QString::fromUtf8("The picture has 256 × 192 pixels, and what does not fit "
                                               "is cut off")));
        QCOMPARE(prepared(project, "title.png", bytes, "picture-image", {{"mode", "lores"}, {"scale", "true"}})
                     .remarks.size(),
                 1);
    }

    /// A damaged file becomes assets, or a message.
    void takesDamagedFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("indices") << "walk.ase" << walk(8).bytes();
        QTest::newRow("colours") << "walk.ase" << walk(32).bytes();
    }

    void takesDamagedFiles()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        std::minstd_rand random(7);
        DamagedFiles files(500);
        while (files.next()) {
            const auto file = ImportFile::open(m_path(name, damaged(bytes, random)));
            if (!file)
                continue; // empty
            for (const Guess &guess : recognise(*file)) {
                const ImportChoices choices{.kind = guess.kind, .options = guess.options, .name = "Name"};
                Project project;
                const auto incoming = prepare(project, *file, choices);
                QVERIFY2(incoming || !incoming.reason().isEmpty(), qPrintable(guess.kind));
                if (!incoming)
                    continue;
                (void)previewOf(project, *incoming, choices);
                QVERIFY(addTo(project, *incoming, choices, {}) || incoming->numbers || incoming->cycles);
            }
        }
    }
};

QUENMORA_TEST_MAIN(TestForeignFiles)
#include "tst_foreignfiles.moc"
