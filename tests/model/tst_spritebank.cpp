#include "model/palette.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "support/testmain.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// A sprite of one value, but for one pixel.
QImage plainSprite(int value, QPoint mark = {}, int marked = -1)
{
    QImage sprite(16, 16, QImage::Format_Indexed8);
    sprite.fill(value);
    if (marked >= 0)
        sprite.scanLine(mark.y())[mark.x()] = uchar(marked);
    return sprite;
}

/// The palette indices of a picture, row by row. (QImage itself compares colours.)
QByteArray indices(const QImage &image)
{
    QByteArray pixels;
    for (int y = 0; y < image.height(); ++y)
        pixels.append(reinterpret_cast<const char *>(image.constScanLine(y)), image.width());
    return pixels;
}

/// Makes sprites 0, 1, 2 … of one colour each.
void fillSprites(SpriteBank &bank, const QList<int> &values)
{
    while (bank.count() < values.size())
        bank.addSprite();
    for (int i = 0; i < values.size(); ++i)
        bank.setImage(i, plainSprite(values[i]));
}

/// The value of the first pixel of each sprite.
QList<int> firstPixels(const SpriteBank &bank)
{
    QList<int> values;
    for (int i = 0; i < bank.count(); ++i)
        values.append(bank.image().pixelIndex(0, i * 16));
    return values;
}

/// Writes down every signal of a bank about its sprites, in order, as "name arguments".
class SignalLog
{
public:
    explicit SignalLog(SpriteBank &bank)
    {
        const auto note = [this](const QString &text) { lines.append(text); };
        QObject::connect(&bank, &SpriteBank::imageChanged, &m_context,
                         [note](int index) { note(QStringLiteral("image %1").arg(index)); });
        QObject::connect(&bank, &SpriteBank::countChanged, &m_context, [note] { note(QStringLiteral("count")); });
        QObject::connect(&bank, &SpriteBank::spriteSwapped, &m_context,
                         [note](int a, int b) { note(QStringLiteral("swapped %1 %2").arg(a).arg(b)); });
        QObject::connect(&bank, &SpriteBank::spriteMoved, &m_context,
                         [note](int a, int b) { note(QStringLiteral("moved %1 %2").arg(a).arg(b)); });
        QObject::connect(&bank, &SpriteBank::spriteDeleted, &m_context,
                         [note](int index) { note(QStringLiteral("deleted %1").arg(index)); });
        QObject::connect(&bank, &SpriteBank::animationsChanged, &m_context,
                         [note] { note(QStringLiteral("animations")); });
        QObject::connect(&bank, &SpriteBank::restored, &m_context, [note] { note(QStringLiteral("restored")); });
    }

    QStringList lines;

private:
    QObject m_context;
};

bool writeFile(const QString &name, const QByteArray &content)
{
    QFile file(name);
    return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
}

QByteArray readFile(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

} // namespace

class TestSpriteBank : public QObject
{
    Q_OBJECT

private slots:
    void editsSprites_data();
    void editsSprites();
    void ignoresSpritesOutsideTheBank();
    void followsThePalette();
    void orientsSprites();
    void rendersPixels_data();
    void rendersPixels();
    void takesAnyPictureAsStrip_data();
    void takesAnyPictureAsStrip();
    void writesRawSprites();
    void appendsRawSprites();
    void refusesUnreadableFiles();
    void importsPicturesInNearestColours();
    void slicesPicturesIntoSpritesAndColours();
    void keepsAnimationsInOrder();
    void restoresSnapshots();

private:
    QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    QTemporaryDir m_folder;
};

void TestSpriteBank::editsSprites_data()
{
    using Edit = std::function<void(SpriteBank &)>;
    QTest::addColumn<QList<int>>("before");
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QList<int>>("after");
    QTest::addColumn<QStringList>("emitted");
    const QList<int> abc{1, 2, 3};

    QTest::newRow("move up") << abc << Edit([](SpriteBank &bank) { bank.moveSprite(0, 2); }) << QList<int>{2, 3, 1}
                             << QStringList{"image 0", "swapped 0 1", "image 1",  "swapped 1 2",
                                            "image 2", "swapped 2 0", "moved 0 2"};
    QTest::newRow("move down") << abc << Edit([](SpriteBank &bank) { bank.moveSprite(2, 0); }) << QList<int>{3, 1, 2}
                               << QStringList{"image 2", "swapped 2 1", "image 1",  "swapped 1 0",
                                              "image 0", "swapped 0 2", "moved 2 0"};
    QTest::newRow("move to itself") << abc << Edit([](SpriteBank &bank) { bank.moveSprite(1, 1); }) << abc
                                    << QStringList{};
    QTest::newRow("delete") << abc << Edit([](SpriteBank &bank) { bank.deleteSprite(1); }) << QList<int>{1, 3}
                            << QStringList{"deleted 1", "count"};
    QTest::newRow("delete the only one") << QList<int>{7} << Edit([](SpriteBank &bank) { bank.deleteSprite(0); })
                                         << QList<int>{0} << QStringList{};
    QTest::newRow("clear") << abc << Edit([](SpriteBank &bank) { bank.clearSprite(1); }) << QList<int>{1, 0, 3}
                           << QStringList{"image 1"};
    QTest::newRow("copy") << abc << Edit([](SpriteBank &bank) { bank.copySprite(0, 2); }) << QList<int>{1, 2, 1}
                          << QStringList{"image 2", "image 0"};
    QTest::newRow("add") << abc << Edit([](SpriteBank &bank) { bank.addSprite(); }) << QList<int>{1, 2, 3, 0}
                         << QStringList{"count"};
    QTest::newRow("add silently") << abc << Edit([](SpriteBank &bank) { bank.addSprite(false); })
                                  << QList<int>{1, 2, 3, 0} << QStringList{};
}

void TestSpriteBank::editsSprites()
{
    QFETCH(QList<int>, before);
    QFETCH(std::function<void(SpriteBank &)>, edit);
    SpriteBank bank(Quenmora::EightBit);
    fillSprites(bank, before);
    SignalLog log(bank);
    edit(bank);
    QTEST(firstPixels(bank), "after");
    QTEST(log.lines, "emitted");
}

void TestSpriteBank::ignoresSpritesOutsideTheBank()
{
    SpriteBank bank(Quenmora::EightBit);
    QCOMPARE(firstPixels(bank), QList<int>{0}); // a new bank
    fillSprites(bank, {1, 2});
    const QByteArray before = indices(bank.image());
    SignalLog log(bank);
    for (const int outside : {-1, 2, INT_MIN, INT_MAX}) {
        bank.setImage(outside, plainSprite(9));
        bank.deleteSprite(outside);
        bank.clearSprite(outside);
        bank.copySprite(outside, 0);
        bank.copySprite(0, outside);
        bank.moveSprite(outside, 0);
        bank.moveSprite(0, outside);
        QCOMPARE(indices(bank.spriteImage(outside, true, false, true)), QByteArray(256, 0));
        QVERIFY(bank.renderSprite(outside, 0, false, false, false).isNull());
    }
    bank.setImage(0, QImage());
    QCOMPARE(indices(bank.image()), before);
    QCOMPARE(log.lines, QStringList{});
}

void TestSpriteBank::followsThePalette()
{
    Palette first;
    Palette second;
    second.loadStandardNext();
    SpriteBank bank(Quenmora::EightBit);
    bank.setPalette(&first);
    first.setColour(5, Qt::red, false);
    QCOMPARE(bank.image().color(5), qRgb(255, 0, 0));

    bank.setPalette(&second);
    first.setColour(6, Qt::red, false);
    bank.addSprite();
    QCOMPARE(bank.image().colorTable(), second.colourTable());
    QCOMPARE(bank.spriteImage(1, false, false, false).colorTable(), second.colourTable());
    QCOMPARE(bank.paletteId(), second.id());
}

void TestSpriteBank::orientsSprites()
{
    Palette palette;
    palette.setColour(9, Qt::white, false);
    SpriteBank bank(Quenmora::EightBit);
    bank.setPalette(&palette);
    bank.addSprite();
    bank.setImage(1, plainSprite(227, {1, 0}, 9));

    // turned clockwise, column 1 of the top row is row 1 of the right column; then it is mirrored
    QCOMPARE(indices(bank.spriteImage(1, true, false, true)), indices(plainSprite(227, {0, 1}, 9)));
    QCOMPARE(indices(bank.spriteImage(1, false, true, false)), indices(plainSprite(227, {1, 15}, 9)));
    QImage rendered(16, 16, QImage::Format_ARGB32);
    rendered.fill(Qt::transparent);
    rendered.setPixelColor(0, 1, Qt::white);
    QCOMPARE(bank.renderSprite(1, 0, true, false, true), rendered);
}

void TestSpriteBank::rendersPixels_data()
{
    QTest::addColumn<Quenmora::Sprite>("depth");
    QTest::addColumn<int>("pixel");
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("entry"); // −1: clear

    const auto row = [](Quenmora::Sprite depth, int pixel, int offset, int entry) {
        QTest::addRow("%d bits, pixel %d, offset %d", depth ? 8 : 4, pixel, offset)
            << depth << pixel << offset << entry;
    };
    row(Quenmora::FourBit, 3, 0, -1);
    row(Quenmora::FourBit, 19, 4, -1);
    row(Quenmora::FourBit, 5, 2, 0x25);
    row(Quenmora::FourBit, 0xF5, 2, 0x25);
    row(Quenmora::FourBit, 5, 0x12, 0x25);
    row(Quenmora::EightBit, 3, 0, 3);
    row(Quenmora::EightBit, 227, 0, -1);
    row(Quenmora::EightBit, 0x45, 2, 0x45);
}

void TestSpriteBank::rendersPixels()
{
    QFETCH(Quenmora::Sprite, depth);
    QFETCH(int, pixel);
    QFETCH(int, offset);
    QFETCH(int, entry);
    Palette palette;
    palette.loadStandardNext();
    // the palette's own transparent entry has no part in how sprites are drawn
    palette.setTransparencyIndex(0x25);
    SpriteBank bank(depth);
    bank.setImage(0, plainSprite(pixel));
    QCOMPARE(bank.renderSprite(0, offset, false, false, false).pixel(8, 8), 0U); // no colours yet
    bank.setPalette(&palette);
    const QRgb expected = entry < 0 ? 0 : palette.colourTable().at(entry);
    QCOMPARE(bank.renderSprite(0, offset, false, false, false).pixel(8, 8), expected);
}

void TestSpriteBank::takesAnyPictureAsStrip_data()
{
    QTest::addColumn<QImage>("picture");
    QTest::addColumn<QList<int>>("sprites");

    QImage strip(16, 40, QImage::Format_Indexed8);
    strip.fill(200);
    QTest::newRow("two and a half sprites") << strip << QList<int>{200, 200};
    QTest::newRow("wide") << strip.copy(0, 0, 64, 16) << QList<int>{200};
    QTest::newRow("smaller than a sprite") << strip.copy(0, 0, 3, 3) << QList<int>{200};
    QTest::newRow("null") << QImage() << QList<int>{1, 2};
    QImage grey(16, 16, QImage::Format_Grayscale8);
    grey.fill(77);
    QTest::newRow("grey values are indices") << grey << QList<int>{77};
    QImage mono(16, 16, QImage::Format_Mono);
    mono.fill(1);
    QTest::newRow("monochrome") << mono << QList<int>{1};
    QImage colour(16, 32, QImage::Format_RGB32);
    colour.fill(QColor(255, 255, 0));
    QTest::newRow("true colour") << colour << QList<int>{0xFC + 1, 0xFC + 1};
}

void TestSpriteBank::takesAnyPictureAsStrip()
{
    QFETCH(QImage, picture);
    Palette palette;
    palette.loadStandardNext();
    palette.setColour(0xFC, Qt::black, false);
    palette.setColour(0xFD, Qt::yellow, false);
    SpriteBank bank(Quenmora::EightBit);
    fillSprites(bank, {1, 2});
    bank.setPalette(&palette);
    bank.setWholeImage(picture);
    QTEST(firstPixels(bank), "sprites");
    QCOMPARE(bank.image().size(), QSize(16, 16 * bank.count()));
    QCOMPARE(bank.image().format(), QImage::Format_Indexed8);
    QCOMPARE(bank.image().colorTable(), palette.colourTable());
}

void TestSpriteBank::writesRawSprites()
{
    for (const auto depth : {Quenmora::FourBit, Quenmora::EightBit}) {
        SpriteBank bank(depth);
        fillSprites(bank, {0x0A, 0xFF});
        bank.addSprite();
        bank.setImage(2, plainSprite(0, {15, 1}, 0xB));
        QVERIFY(bank.exportSpr(path("out.spr")));

        QByteArray expected = QByteArray(256, '\x0A') + QByteArray(256, '\xFF') + QByteArray(256, '\0');
        expected[512 + 31] = '\x0B';
        QCOMPARE(readFile(path("out.spr")), expected);

        SpriteBank copy(depth);
        QVERIFY(copy.importSpr(path("out.spr")));
        copy.deleteSprite(0);
        QCOMPARE(indices(copy.image()), indices(bank.image()));
    }
}

void TestSpriteBank::appendsRawSprites()
{
    QVERIFY(writeFile(path("in.spr"), QByteArray(256, '\x11') + QByteArray(256, '\xEE') + QByteArray(88, 'x')));
    SpriteBank bank(Quenmora::EightBit);
    SignalLog log(bank);
    QVERIFY(bank.importSpr(path("in.spr")));
    QCOMPARE(firstPixels(bank), (QList<int>{0, 0x11, 0xEE}));
    QCOMPARE(log.lines, (QStringList{"count", "image 1", "count", "image 2"}));

    log.lines.clear();
    for (const QByteArray &tooShort : {QByteArray(), QByteArray(255, 'x')}) {
        QVERIFY(writeFile(path("short.spr"), tooShort));
        QVERIFY(bank.importSpr(path("short.spr")));
    }
    QCOMPARE(bank.count(), 3);
    QCOMPARE(log.lines, QStringList{});
}

void TestSpriteBank::refusesUnreadableFiles()
{
    QVERIFY(writeFile(path("nonsense"), "this is no picture"));
    QFile huge(path("huge.spr")); // a sparse file: more sprites than a bank may hold
    QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize(qint64(SpriteBank::MaxCount) * 256));

    Palette palette;
    SpriteBank bank(Quenmora::EightBit);
    bank.setPalette(&palette);
    SignalLog log(bank);
    QVERIFY(!bank.importSpr(huge.fileName()));
    for (const QString &file : {path("missing/x"), m_folder.path()}) {
        QVERIFY(!bank.importSpr(file));
        QVERIFY(!bank.exportSpr(file));
    }
    for (const QString &file : {path("missing"), m_folder.path(), path("nonsense")}) {
        QTest::ignoreMessage(QtInfoMsg, "Failed to load image");
        QCOMPARE(bank.importImageFile(file), -1);
        QTest::ignoreMessage(QtInfoMsg, "Failed to load image");
        QCOMPARE(bank.importSlicedImage(file), -1);
    }
    QCOMPARE(bank.count(), 1);
    QCOMPARE(log.lines, QStringList{});
}

void TestSpriteBank::importsPicturesInNearestColours()
{
    QImage picture(40, 20, QImage::Format_RGB32);
    picture.fill(Qt::white);
    for (int y = 0; y < 20; ++y) {
        for (int x = 16; x < 40; ++x)
            picture.setPixelColor(x, y, QColor(250, 10, 0));
    }
    QVERIFY(picture.save(path("picture.png")));

    SpriteBank bank(Quenmora::EightBit);
    QTest::ignoreMessage(QtInfoMsg, "Could not remap colours");
    QCOMPARE(bank.importImageFile(path("picture.png")), -1); // no palette yet

    Palette palette;
    palette.setColour(7, Qt::white, false);
    palette.setColour(9, QColor(219, 0, 0), false);
    bank.setPalette(&palette);
    SignalLog log(bank);
    QCOMPARE(bank.importImageFile(path("picture.png")), 3);
    QCOMPARE(firstPixels(bank), (QList<int>{0, 7, 9}));
    QCOMPARE(log.lines, (QStringList{"image 1", "image 2", "count"}));

    bank.importImage(0, picture);
    QCOMPARE(firstPixels(bank), (QList<int>{7, 7, 9}));
    QCOMPARE(log.lines.last(), QStringLiteral("image 0"));
}

void TestSpriteBank::slicesPicturesIntoSpritesAndColours()
{
    QImage picture(48, 16, QImage::Format_RGB32);
    picture.fill(Qt::red);
    for (int y = 0; y < 16; ++y) {
        for (int x = 32; x < 48; ++x)
            picture.setPixelColor(x, y, Qt::blue);
    }
    QVERIFY(picture.save(path("sheet.png")));

    Palette palette;
    palette.fill(Qt::white, false);
    SpriteBank bank(Quenmora::EightBit);
    bank.setPalette(&palette);
    SignalLog log(bank);
    QCOMPARE(bank.importSlicedImage(path("sheet.png")), 2); // the second red square is the first again
    QCOMPARE(firstPixels(bank), (QList<int>{0, 1}));
    QCOMPARE(log.lines, (QStringList{"image 0", "count", "image 1"}));
    QCOMPARE(bank.image().color(0), qRgb(255, 0, 0));
    QCOMPARE(bank.image().color(1), qRgb(0, 0, 255));
    QCOMPARE(palette.colour(2), QColor(Qt::black));
}

void TestSpriteBank::keepsAnimationsInOrder()
{
    SpriteBank bank(Quenmora::EightBit);
    fillSprites(bank, {1, 2, 3});
    SignalLog log(bank);
    const auto id = QUuid::createUuid();
    const QPointer<SpriteAnim> first = bank.addAnimation(id);
    const QPointer<SpriteAnim> second = bank.newAnimation();
    const QPointer<SpriteAnim> twin = bank.addAnimation(id);
    QCOMPARE(log.lines, (QStringList{"animations", "animations", "animations"}));
    QCOMPARE(bank.animations(), (QList<QPointer<SpriteAnim>>{first, second, twin}));
    QCOMPARE(bank.animation(id), first);
    QVERIFY(twin->id() != id);
    QCOMPARE(first->parent(), &bank);

    first->frame(0)->setIndex(0, 0, 2);
    bank.deleteSprite(1);
    QCOMPARE(first->frame(0)->cell(0, 0).index, 1);

    bank.deleteAnimation(id);
    bank.deleteAnimation(id);
    QVERIFY(!first);
    QCOMPARE(bank.animations(), (QList<QPointer<SpriteAnim>>{second, twin}));
    QCOMPARE(log.lines.count("animations"), 4);
}

void TestSpriteBank::restoresSnapshots()
{
    Palette palette;
    SpriteBank bank(Quenmora::EightBit);
    bank.setPalette(&palette);
    fillSprites(bank, {1, 2});
    const auto kept = bank.newAnimation();
    const auto lost = bank.newAnimation();
    kept->setDelay(5);
    const SpriteBank::State before = bank.snapshot();
    QVERIFY(before == bank.snapshot());

    kept->setDelay(9);
    bank.deleteAnimation(lost->id());
    const auto later = bank.newAnimation();
    later->setDelay(3);
    bank.deleteSprite(0);
    palette.setColour(1, Qt::red, false);
    QVERIFY(!(before == bank.snapshot()));

    SignalLog log(bank);
    bank.restore(before);
    QCOMPARE(firstPixels(bank), (QList<int>{1, 2}));
    QCOMPARE(kept->delay(), 5);
    QCOMPARE(later->delay(), 3);
    QCOMPARE(bank.animations().size(), 2);
    QCOMPARE(bank.image().color(1), qRgb(255, 0, 0));
    QCOMPARE(log.lines, (QStringList{"count", "restored"}));
}

QUENMORA_TEST_MAIN(TestSpriteBank)

#include "tst_spritebank.moc"
