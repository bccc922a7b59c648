#include "model/palette.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QTemporaryDir>
#include <QTest>

namespace {

/// A sprite of one value, but for one pixel.
QImage plainSprite(int value, QPoint mark = {}, int marked = -1)
{
    QImage sprite = plainImage({16, 16}, value);
    if (marked >= 0)
        sprite.setPixel(mark, uint(marked));
    return sprite;
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

void listen(SignalLog &log, SpriteBank &bank)
{
    log.listen(bank, &SpriteBank::imageChanged, "image");
    log.listen(bank, &SpriteBank::countChanged, "count");
    log.listen(bank, &SpriteBank::spriteSwapped, "swapped");
    log.listen(bank, &SpriteBank::spriteMoved, "moved");
    log.listen(bank, &SpriteBank::spriteDeleted, "deleted");
    log.listen(bank, &SpriteBank::animationsChanged, "animations");
    log.listen(bank, &SpriteBank::restored, "restored");
}

} // namespace

class TestSpriteBank : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void editsSprites_data();
    void editsSprites();
    void ignoresSpritesOutsideTheBank();
    void rendersPixels();
    void takesAnyPictureAsStrip();
    void appendsRawSprites();
    void refusesUnreadableFiles();
    void importsPictures();
    void keepsAnimations();
    void restoresSnapshots();

private:
    [[nodiscard]] QString path(const char *name) const { return m_folder.filePath(QString::fromLatin1(name)); }

    QTemporaryDir m_folder;
    Palette m_palette;
};

void TestSpriteBank::init()
{
    m_palette.loadStandardNext();
}

void TestSpriteBank::editsSprites_data()
{
    using Edit = std::function<void(SpriteBank &)>;
    QTest::addColumn<QList<int>>("after"); // of sprites 1, 2, 3
    QTest::addColumn<QString>("emitted");
    QTest::addColumn<Edit>("edit");
    const auto row = [](const char *name, const QList<int> &after, const char *emitted, const Edit &edit) {
        QTest::newRow(name) << after << emitted << edit;
    };
    row("move up", {2, 3, 1}, "image 0;swapped 0 1;image 1;swapped 1 2;image 2;swapped 2 0;moved 0 2",
        [](SpriteBank &bank) { bank.moveSprite(0, 2); });
    row("move down", {3, 1, 2}, "image 2;swapped 2 1;image 1;swapped 1 0;image 0;swapped 0 2;moved 2 0",
        [](SpriteBank &bank) { bank.moveSprite(2, 0); });
    row("move to itself", {1, 2, 3}, "", [](SpriteBank &bank) { bank.moveSprite(1, 1); });
    row("delete", {1, 3}, "deleted 1;count", [](SpriteBank &bank) { bank.deleteSprite(1); });
    row("delete all", {0}, "deleted 0;count;deleted 0;count", [](SpriteBank &bank) {
        for (int i = 0; i < 3; ++i)
            bank.deleteSprite(0);
    });
    row("clear", {1, 0, 3}, "image 1", [](SpriteBank &bank) { bank.clearSprite(1); });
    row("copy", {1, 2, 1}, "image 2;image 0", [](SpriteBank &bank) { bank.copySprite(0, 2); });
    row("add", {1, 2, 3, 0}, "count", [](SpriteBank &bank) { bank.addSprite(); });
    row("add silently", {1, 2, 3, 0}, "", [](SpriteBank &bank) { bank.addSprite(false); });
}

void TestSpriteBank::editsSprites()
{
    QFETCH(const std::function<void(SpriteBank &)>, edit);
    SpriteBank bank(Quenmora::EightBit);
    QCOMPARE(indices(bank.image()), QByteArray(256, '\0'));
    fillSprites(bank, {1, 2, 3});
    SignalLog log;
    listen(log, bank);
    edit(bank);
    QTEST(firstPixels(bank), "after");
    QTEST(log.take().join(';'), "emitted");
}

void TestSpriteBank::ignoresSpritesOutsideTheBank()
{
    SpriteBank bank(Quenmora::EightBit);
    fillSprites(bank, {1, 2});
    const QByteArray before = indices(bank.image());
    SignalLog log;
    listen(log, bank);
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
    QCOMPARE(log.take(), QStringList());
}

void TestSpriteBank::rendersPixels()
{
    m_palette.setTransparencyIndex(0x25); // has no part in how sprites are drawn
    const std::tuple<Quenmora::Sprite, int, int, int> cases[] = {
        // depth, pixel, palette offset, palette entry or −1 for clear
        {Quenmora::FourBit, 3, 0, -1},      {Quenmora::FourBit, 19, 4, -1},     {Quenmora::FourBit, 5, 2, 0x25},
        {Quenmora::FourBit, 0xF5, 2, 0x25}, {Quenmora::FourBit, 5, 0x12, 0x25}, {Quenmora::EightBit, 3, 0, 3},
        {Quenmora::EightBit, 227, 0, -1},   {Quenmora::EightBit, 0x45, 2, 0x45}};
    for (const auto &[depth, pixel, offset, entry] : cases) {
        Palette former;
        SpriteBank bank(depth);
        bank.setPalette(&former);
        bank.setPalette(&m_palette);
        former.setColour(6, Qt::red, false);
        QCOMPARE(bank.image().colorTable(), m_palette.colourTable());
        bank.addSprite();
        bank.setImage(1, plainSprite(227, {1, 0}, pixel));
        // turned clockwise, column 1 of the top row is row 1 of the right column; then it is mirrored
        QCOMPARE(indices(bank.spriteImage(1, true, false, true)), indices(plainSprite(227, {0, 1}, pixel)));
        QImage expected(16, 16, QImage::Format_ARGB32);
        expected.fill(Qt::transparent);
        expected.setPixel(0, 1, entry < 0 ? 0 : m_palette.colourTable().at(entry));
        QCOMPARE(bank.renderSprite(1, offset, true, false, true), expected);
        m_palette.setColour(200, QColor(pixel, 0, 0), false);
        QCOMPARE(bank.image().colorTable(), m_palette.colourTable());
    }
}

void TestSpriteBank::takesAnyPictureAsStrip()
{
    const auto filled = [](QImage::Format format, int height, uint pixel) {
        QImage image(16, height, format);
        image.fill(pixel);
        return image;
    };
    const std::pair<QImage, QList<int>> pictures[] = {
        {plainImage({16, 40}, 200), {200, 200}}, // two and a half sprites
        {plainImage({64, 16}, 200), {200}}, // wide
        {plainImage({3, 3}, 200), {200}}, // smaller than a sprite
        {QImage(), {1, 2}},
        {filled(QImage::Format_Grayscale8, 16, 77), {77}}, // grey values are indices
        {filled(QImage::Format_Mono, 16, 1), {1}},
        {filled(QImage::Format_RGB32, 32, 0xFFFFFFFF), {255, 255}},
    };
    for (const auto &[picture, sprites] : pictures) {
        SpriteBank bank(Quenmora::EightBit);
        fillSprites(bank, {1, 2});
        bank.setPalette(&m_palette);
        bank.setWholeImage(picture);
        QCOMPARE(firstPixels(bank), sprites);
        QCOMPARE(bank.image().size(), QSize(16, 16 * bank.count()));
        QCOMPARE(bank.image().colorTable(), m_palette.colourTable());
    }
}

void TestSpriteBank::appendsRawSprites()
{
    QVERIFY(writeFile(path("in.spr"), QByteArray(256, '\x0A') + QByteArray(256, '\xEE') + QByteArray(88, 'x')));
    SpriteBank bank(Quenmora::FourBit);
    SignalLog log;
    listen(log, bank);
    QVERIFY(bank.importSpr(path("in.spr")));
    QCOMPARE(log.take(), QStringList({"count", "image 1", "count", "image 2"}));
    QVERIFY(bank.exportSpr(path("out.spr")));
    QCOMPARE(readFile(path("out.spr")), QByteArray(256, '\0') + QByteArray(256, '\x0A') + QByteArray(256, '\xEE'));
    for (const int tooShort : {0, 255}) {
        QVERIFY(writeFile(path("short.spr"), QByteArray(tooShort, 'x')));
        QVERIFY(bank.importSpr(path("short.spr")));
    }
    QCOMPARE(log.take(), QStringList());
}

void TestSpriteBank::refusesUnreadableFiles()
{
    QVERIFY(writeFile(path("nonsense"), "this is no picture"));
    QFile huge(path("huge.spr")); // a sparse file: more sprites than a bank may hold
    QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize(qint64(SpriteBank::MaxCount) * 256));
    SpriteBank bank(Quenmora::EightBit);
    bank.setPalette(&m_palette);
    SignalLog log;
    listen(log, bank);
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
    QCOMPARE(log.take(), QStringList());
}

void TestSpriteBank::importsPictures()
{
    QImage picture(56, 20, QImage::Format_RGB32); // two white sprites, a red one, and what is too narrow for a fourth
    picture.fill(Qt::white);
    for (int i = 0; i < 24 * 20; ++i)
        picture.setPixelColor(32 + i % 24, i / 24, QColor(250, 10, 0));
    QVERIFY(picture.save(path("picture.png")));

    SpriteBank bank(Quenmora::EightBit);
    QTest::ignoreMessage(QtInfoMsg, "Could not remap colours");
    QCOMPARE(bank.importImageFile(path("picture.png")), -1); // no palette yet
    Palette palette;
    palette.setColour(7, Qt::white, false);
    palette.setColour(9, QColor(219, 0, 0), false);
    bank.setPalette(&palette);
    SignalLog log;
    listen(log, bank);
    QCOMPARE(bank.importImageFile(path("picture.png")), 4);
    QCOMPARE(firstPixels(bank), (QList<int>{0, 7, 7, 9}));
    QCOMPARE(log.take(), QStringList({"image 1", "image 2", "image 3", "count"}));
    bank.importImage(0, picture);
    QCOMPARE(firstPixels(bank), (QList<int>{7, 7, 7, 9}));
    QCOMPARE(log.take(), QStringList("image 0"));

    // with a palette of its own, and the second white sprite recognised as the first
    SpriteBank sliced(Quenmora::EightBit);
    sliced.setPalette(&m_palette);
    listen(log, sliced);
    QCOMPARE(sliced.importSlicedImage(path("picture.png")), 2);
    QCOMPARE(firstPixels(sliced), (QList<int>{0, 1}));
    QCOMPARE(log.take(), QStringList({"image 0", "count", "image 1"}));
    QCOMPARE(sliced.image().color(0), qRgb(255, 255, 255));
    QCOMPARE(sliced.image().color(1), qRgb(255, 0, 0)); // red 255 and green 16, as the palette holds them
    QCOMPARE(m_palette.colour(2), QColor(Qt::black));
}

void TestSpriteBank::keepsAnimations()
{
    SpriteBank bank(Quenmora::EightBit);
    fillSprites(bank, {1, 2, 3});
    SignalLog log;
    log.listen(bank, &SpriteBank::animationsChanged, "animations");
    const auto id = QUuid::createUuid();
    const QPointer<SpriteAnim> first = bank.addAnimation(id);
    const QPointer<SpriteAnim> twin = bank.addAnimation(id);
    QVERIFY(bank.animation(id) == first && twin->id() != id);
    first->frame(0)->setIndex(0, 0, 2);
    bank.deleteSprite(1);
    QCOMPARE(first->frame(0)->cell(0, 0).index, 1);
    bank.addSprite(false);
    bank.moveSprite(0, 2); // 0 1 2 become 2 0 1
    QCOMPARE(first->frame(0)->cell(0, 0).index, 0);
    bank.moveSprite(2, 0);
    QCOMPARE(first->frame(0)->cell(0, 0).index, 1);
    bank.moveSprite(1, 2);
    QCOMPARE(first->frame(0)->cell(0, 0).index, 2);
    bank.deleteAnimation(id);
    bank.deleteAnimation(id);
    QVERIFY(!first);
    QCOMPARE(bank.animations(), QList<QPointer<SpriteAnim>>{twin});
    QCOMPARE(log.take(), QStringList(3, "animations"));
}

void TestSpriteBank::restoresSnapshots()
{
    SpriteBank bank(Quenmora::EightBit);
    bank.setPalette(&m_palette);
    fillSprites(bank, {1, 2});
    const auto kept = bank.newAnimation();
    const auto lost = bank.newAnimation();
    kept->setDelay(5);
    const SpriteBank::State before = bank.snapshot();
    kept->setDelay(9);
    QVERIFY(!(before == bank.snapshot()));
    bank.deleteAnimation(lost->id());
    const auto later = bank.newAnimation();
    later->setDelay(3);
    bank.deleteSprite(0);
    m_palette.setColour(1, Qt::red, false);

    SignalLog log;
    listen(log, bank);
    bank.restore(before);
    QCOMPARE(firstPixels(bank), (QList<int>{1, 2}));
    QVERIFY(kept->delay() == 5 && later->delay() == 3 && bank.animations().size() == 2);
    QCOMPARE(bank.image().color(1), qRgb(255, 0, 0)); // colours are the palette's, not the snapshot's
    QCOMPARE(log.take(), QStringList({"count", "restored"}));
}

QUENMORA_TEST_MAIN(TestSpriteBank)
#include "tst_spritebank.moc"
