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
#include "support/peakmemory.h"
#include "support/testmain.h"
#include "support/tiledfiles.h"

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

/// Its name, size and delay, and the numbers of each frame's only row.
QString textOf(const SpriteAnim &animation)
{
    QStringList frames;
    for (int i = 0; i < animation.frameCount(); ++i) {
        const auto row = animation.frame(i)->cells().constFirst();
        frames += QString("%1 %2").arg(row.constFirst().index).arg(row.constLast().index);
    }
    const QSize size = animation.size();
    return QString("%1 %2x%3 @%4: ").arg(animation.name()).arg(size.width()).arg(size.height()).arg(animation.delay())
        + frames.join(" | ");
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
    static QByteArray walk(int bits)
    {
        AsepriteBuilder builder({24, 16}, bits);
        builder.clearIndex = 2;
        const QList<QByteArray> colours{Black, Red, QByteArray(4, '\x11'), Grey, Blue};
        const auto pixels = [bits, &colours](int last) {
            const auto pixel = [bits, &colours](int i) { return bits == 8 ? QByteArray(1, char(i)) : colours[i]; };
            return pixel(1).repeated(16 * 16 - 1) + pixel(last);
        };
        return builder.frame(100)
            .palette(colours)
            .layer("one")
            .tags({AsepriteBuilder::tag(0, 1, 0, 0, "run"), AsepriteBuilder::tag(0, 2, 1, 0, "back"),
                   AsepriteBuilder::tag(0, 2, 2, 3, "swing"), AsepriteBuilder::tag(2, 2, 0, 0, "stand")})
            .raw(0, {8, 0}, {16, 16}, pixels(3))
            .frame(200)
            .raw(0, {8, 0}, {16, 16}, pixels(3))
            .frame(100)
            .raw(0, {8, 0}, {16, 16}, pixels(4))
            .bytes();
    }

private slots:
    void framesBecomeSprites_data()
    {
        addColumns<int, Options>("bits", "options");
        for (const int bits : {8, 32}) { // indices, and colours
            QTest::addRow("%d bits", bits) << bits << Options();
            QTest::addRow("%d bits in four", bits) << bits << Options{{"depth", "4"}};
        }
    }

    void framesBecomeSprites()
    {
        QFETCH(int, bits);
        QFETCH(Options, options);
        Project project;
        const IncomingAssets incoming = prepared(project, "walk.aseprite", walk(bits), "aseprite-sprites", options);
        QVERIFY(incoming.sprites && incoming.palette);
        QCOMPARE(incoming.remarks, QStringList("“swing” is repeated for ever"));
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
        if (bits == 8) { // which stay where they are
            QCOMPARE(bank->clearPixels().pixel(), 2);
            QCOMPARE((QList{palette->rawColour(1), palette->rawColour(3), palette->rawColour(4)}),
                     (QList{RedWord, GreyWord, BlueWord}));
        }
        QCOMPARE(palette->transparencyIndex(), bank->clearPixels().pixel());

        // what is seen is the frame, in its colours
        const auto seen = [&bank](int sprite, int x) {
            const QRgb pixel = bank->renderSprite(sprite, 0, false, false, false).pixel(x, 15);
            return qAlpha(pixel) ? pixel : 0;
        };
        QCOMPARE((QList{seen(0, 7), seen(0, 8), seen(1, 7), seen(1, 8), seen(2, 7)}),
                 (QList<QRgb>{0, 0xFFFF0000, 0xFFDBDBDB, 0, 0xFF000049}));
        QCOMPARE(valuesOf(bank->animations(), [](const auto &animation) { return textOf(*animation); }),
                 (QStringList{"run 2x1 @5: 0 1 | 0 1 | 0 1", "back 2x1 @5: 0 2 | 0 1 | 0 1 | 0 1",
                              "swing 2x1 @5: 0 1 | 0 1 | 0 1 | 0 2 | 0 1 | 0 1", "stand 2x1 @0: 0 2"}));
    }

    /// No opaque colour becomes clear, whatever the palette: with one of the project, with all indices in use, and
    /// with more colours than there is room for.
    void opaqueStaysOpaque_data()
    {
        addColumns<bool, int, Options, bool>("isGiven", "colours", "options", "isLossy");
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
        const auto exact = [colours](int i) {
            const int number = i % colours;
            return qRgb(NextColour::componentOf(number & 7), NextColour::componentOf(number >> 3 & 7),
                        NextColour::componentOf(number >> 6));
        };
        QList<QByteArray> palette;
        QByteArray pixels;
        for (int i = 0; i < 256; ++i) {
            const QColor colour(exact(i < colours ? i : 0));
            palette.append(QByteArray(1, char(colour.red())) + char(colour.green()) + char(colour.blue()) + '\xFF');
            pixels.append(char(i % colours));
        }
        const QByteArray file = AsepriteBuilder({16, 16})
                                    .frame()
                                    .palette(palette)
                                    .layer("back", {.flags = 1 | 8}) // which has no clear pixels
                                    .raw(0, {}, {16, 16}, pixels)
                                    .bytes();
        const QString kind = "aseprite-sprites";
        const QUuid given = isGiven ? own->id() : QUuid();
        const IncomingAssets incoming = prepared(project, "all.ase", file, kind, options, given);
        QVERIFY(incoming.sprites);
        QCOMPARE(!incoming.remarks.filter("mean error").isEmpty(), isLossy);
        const auto added = addTo(project, incoming, {.kind = kind, .name = "Hero", .palette = given}, {});
        const auto bank = project.spriteBank(added->sprites);
        const QImage sprite = bank->renderSprite(0, 0, false, false, false);
        for (int i = 0; i < 256; ++i) {
            QVERIFY2(qAlpha(sprite.pixel(i % 16, i / 16)) == 255, qPrintable(QString::number(i)));
            QVERIFY(isLossy || sprite.pixel(i % 16, i / 16) == exact(i));
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
        const auto file = ImportFile::open(m_path("walk.ase", walk(8)));
        const auto incoming = prepare(project, *file, choices);
        QVERIFY(incoming && !incoming->remarks.filter("animations are left out").isEmpty());
        QVERIFY(addTo(project, *incoming, choices, {}));
        QCOMPARE(bank->count(), 1 + 3);
        const QImage first = bank->spriteImage(1, false, false, false);
        QCOMPARE((QList{first.pixelIndex(0, 0), first.pixelIndex(8, 0)}), (QList{7, 5})); // the one is clear
        QCOMPARE(project.palettes().size(), 1);
        QVERIFY(bank->animations().isEmpty());
    }

    void becomesTilesOrAnImage()
    {
        Project project;
        const IncomingAssets tiles = prepared(project, "walk.ase", walk(8), "aseprite-tiles");
        QCOMPARE(valuesOf(tiles.map->rows, &TileMap::Row::size), (QList<qsizetype>{3, 3}));
        QCOMPARE(tiles.tiles->tiles.size(), 3); // clear, red, and with a grey corner
        QVERIFY(!prepared(project, "walk.ase", walk(8), "aseprite-tiles", {{"frames", "all"}}).map);
        const IncomingAssets image = prepared(project, "walk.ase", walk(8), "aseprite-image");
        QCOMPARE(image.image->mode, Quenmora::LoRes_128x96);
        const auto at = [&image](int x, int y) { return int(uchar(image.image->pixels[y * 128 + x])); };
        QCOMPARE((QList{at(52, 40), at(60, 40), at(75, 55), at(76, 55)}), (QList{2, 1, 3, 2})); // in the middle
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
        const QPointer<Palette> palette = project.palette(added->palette);
        QCOMPARE(image.pixelIndex(3, 0), palette->transparencyIndex());
        QCOMPARE((QList{image.pixel(4, 0), image.pixel(5, 0)}), (QList<QRgb>{0xFFFF0000, 0xFFDBDBDB}));
        Options options{{"mode", "lores"}};
        const IncomingAssets small = prepared(project, "title.png", bytes, "picture-image", options, palette->id());
        QVERIFY(!small.palette);
        QCOMPARE(small.image->pixels.indexOf(small.image->pixels[5]), 5);
        QCOMPARE(palette->rawColour(uchar(small.image->pixels[5])), RedWord);
        QCOMPARE(small.remarks, QStringList("The picture has 256 × 192 pixels, and what does not fit is cut off"));
        options.insert("scale", "true");
        QCOMPARE(prepared(project, "title.png", bytes, "picture-image", options).remarks.size(), 1);
    }

    /// A damaged file becomes assets, or a message; a second and 256 MiB are what any file may take.
    void takesDamagedFiles_data()
    {
        addColumns<QString, QByteArray>("name", "bytes");
        const auto add = [](const char *name, const QByteArray &bytes) {
            QTest::addRow("%s of %d bytes", name, int(bytes.size())) << name << bytes;
        };
        for (const int bits : {8, 16, 32})
            add("all.ase", AsepriteBuilder::sample(bits));
        add("walk.ase", walk(8));
        add("a.gpl", "GIMP Palette\nName: Caf\xc3\xa9\nColumns: 4\n# a comment\n  0  36 73\tBlue\n\n255 255 255\n");
        add("a.pal", "JASC-PAL\r\n0100\r\n2\r\n0 36 73\r\n255 255 255\r\n\r\n");
        add("a.hex", "002449\r\nFFffFF\r\n");
        add("a.act", noise(768) + QByteArray("\x00\x10\x00\x0f", 4));
        const QByteArray set =
            "<tileset firstgid='1' tilewidth='8' tileheight='8' spacing='1' margin='2' tilecount='4' "
            "columns='2'><image source='sheet.png' trans='090a03'/><tile id='1'><animation><frame "
            "tileid='3' duration='9'/></animation></tile></tileset>";
        const QByteArray jsonSet = "'tilesets':[{'firstgid':1, 'tilewidth':8, 'tileheight':8, 'columns':2, "
                                   "'image':'sheet.png', 'tiles':[{'id':1, 'animation':[{'tileid':3, "
                                   "'duration':9}]}]}], ";
        const QByteArray cells = QByteArray::fromHex("010000000000000002000080030000E00400000005000000");
        add("a.tmx",
            tmx(set + xmlLayer("1,0,2147483650,\r\n3758096387,4,5", "offsetx='8'")
                + xmlLayer(zlibStream(cells).toBase64(), {}, "encoding='base64' compression='zlib'")));
        add("a.tmx",
            tmx("<layer><data encoding='csv'><chunk x='-2' y='1' width='2' height='1'>1,2</chunk></data></layer>"
                "<objectgroup><object gid='1' x='8' y='8'/></objectgroup>"
                    + set,
                "infinite='1'"));
        add("a.tmj", tmj(jsonSet + jsonLayer("'data':[1,0,2147483650,3758096387,4,5]")));
        add("a.tmj",
            tmj(jsonSet
                + jsonLayer("'encoding':'base64', 'compression':'zstd', 'data':'" + Packing::zstd(cells).toBase64()
                            + '\'')));
    }

    void takesDamagedFiles()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QVERIFY(picture(19, 19, 9).save(m_path("sheet.png")));
        std::minstd_rand random(7);
        const PeakMemory memory;
        int taken = 0;
        DamagedFiles files(400);
        for (bool isWhole = true; isWhole || files.next(); isWhole = false) {
            const auto file = ImportFile::open(m_path(name, isWhole ? bytes : damaged(bytes, random)));
            if (!file)
                continue; // empty
            for (const Guess &guess : recognise(*file)) {
                const ImportChoices choices{.kind = guess.kind, .options = guess.options, .name = "Name"};
                Project project;
                const auto incoming = prepare(project, *file, choices);
                QVERIFY2(incoming || !incoming.reason().isEmpty(), qPrintable(guess.kind));
                if (!incoming)
                    continue;
                ++taken;
                (void)previewOf(project, *incoming, choices);
                const auto added = addTo(project, *incoming, choices, {});
                QVERIFY(added || !added.reason().isEmpty());
            }
            QVERIFY(taken > 0); // the whole file at least
        }
        if (memory.isKnown())
            QVERIFY2(memory.grown() < 256 << 20, qPrintable(QString::number(memory.grown())));
    }
};

QUENMORA_TEST_MAIN(TestForeignFiles)
#include "tst_foreignfiles.moc"
