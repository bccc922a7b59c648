#include "model/palette.h"
#include "model/placedsprites.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QPainter>
#include <QTest>

namespace {

/// Makes sprites 0, 1, 2 … of one value each.
void fillSprites(SpriteBank &bank, const QList<int> &values)
{
    bank.setWholeImage(pictureOf({16, 16 * int(values.size())}, QImage::Format_Indexed8,
                                 [&values](int i) { return values[i / 256]; }));
}

/// The value of the first pixel of each sprite.
QList<int> firstPixels(const SpriteBank &bank)
{
    QList<int> values;
    for (int i = 0; i < bank.count(); ++i)
        values.append(bank.image().pixelIndex(0, i * 16));
    return values;
}

} // namespace

/// Sprites in their bank, and placed on maps.
class TestSpriteBank : public QObject
{
    Q_OBJECT

    const TemporaryFolder m_path;
    Palette m_palette;
    SpriteBank m_placed{Quenmora::EightBit}; ///< sprites 0 to 3, each in the one colour of that palette index
    const PlacedSprites::Banks m_banks{nullptr, &m_placed};

    [[nodiscard]] Map::PlacedSprite spriteAt(int x, int y, int index) const
    {
        return {.bank = m_placed.id(), .sprite = index, .x = x, .y = y};
    }
    /// What a view of these cells shows from (10, 20) on, white where nothing is painted.
    [[nodiscard]] QImage painted(const QRect &cells, const QList<Map::PlacedSprite> &sprites) const
    {
        QImage screen(100, 100, QImage::Format_RGB32);
        screen.fill(Qt::white);
        QPainter painter(&screen);
        PlacedSprites::paint(painter, {10, 20}, cells, 16, sprites, m_banks, 0);
        return screen;
    }

private slots:
    void init()
    {
        m_palette.loadStandardNext();
        m_placed.setPalette(&m_palette);
        fillSprites(m_placed, {0, 1, 2, 3});
    }

    void editsSprites()
    {
        // what a move over two places announces
        const auto moved = [](const QString &from, const QString &between, const QString &to) {
            return QString("imageChanged %1;spriteSwapped %1 %2;imageChanged %2;spriteSwapped %2 %3;imageChanged %3;"
                           "spriteSwapped %3 %1;spriteMoved %1 %3")
                .arg(from, between, to);
        };
        using Numbers = QList<int>;
        // the sprites, what an animation shows that showed 0, 1 and 2, and what is emitted
        const std::tuple<Numbers, Numbers, QString, std::function<void(SpriteBank &)>> edits[] = {
            {{2, 3, 1}, {2, 0, 1}, moved("0", "1", "2"), [](SpriteBank &bank) { bank.moveSprite(0, 2); }},
            {{3, 1, 2}, {1, 2, 0}, moved("2", "1", "0"), [](SpriteBank &bank) { bank.moveSprite(2, 0); }},
            {{1, 3}, {0, 0, 1}, "spriteDeleted 1;countChanged", [](SpriteBank &bank) { bank.deleteSprite(1); }},
            {{1, 0, 3}, {0, 1, 2}, "imageChanged 1", [](SpriteBank &bank) { bank.clearSprite(1); }},
            {{1, 2, 1}, {0, 1, 2}, "imageChanged 2;imageChanged 0", [](SpriteBank &bank) { bank.copySprite(0, 2); }},
            {{1, 2, 3, 0}, {0, 1, 2}, "countChanged", [](SpriteBank &bank) { bank.addSprite(); }},
            {{1, 2, 3, 0}, {0, 1, 2}, "", [](SpriteBank &bank) { bank.addSprite(false); }},
        };
        for (const auto &[after, shown, emitted, edit] : edits) {
            SpriteBank bank(Quenmora::EightBit);
            QCOMPARE(indices(bank.image()), QByteArray(256, '\0'));
            fillSprites(bank, {1, 2, 3});
            const QPointer<SpriteAnim> animation = bank.newAnimation();
            animation->setSize({3, 1});
            animation->frame(0)->setCells({{{0}, {1}, {2}}});
            SignalLog log(bank);
            edit(bank);
            QCOMPARE(firstPixels(bank), after);
            QCOMPARE(valuesOf(animation->frame(0)->cells().first(), &AnimationFrame::Cell::index), shown);
            QCOMPARE(log.take().join(';'), emitted);
        }
    }

    void ignoresSpritesOutsideAndKeepsOne()
    {
        SpriteBank bank(Quenmora::EightBit);
        fillSprites(bank, {1});
        SignalLog log(bank);
        for (const int outside : {-1, 1, INT_MIN, INT_MAX}) {
            for (const auto edit : {&SpriteBank::copySprite, &SpriteBank::moveSprite}) {
                (bank.*edit)(outside, 0);
                (bank.*edit)(0, outside);
            }
            for (const auto edit : {&SpriteBank::deleteSprite, &SpriteBank::clearSprite})
                (bank.*edit)(outside);
            bank.setImage(outside, plainImage({16, 16}, 9));
            QCOMPARE(indices(bank.spriteImage(outside, true, false, true)), QByteArray(256, 0));
            QVERIFY(bank.renderSprite(outside, 0, false, false, false).isNull());
        }
        bank.setImage(0, QImage());
        QCOMPARE(firstPixels(bank), QList<int>{1});
        bank.deleteSprite(0); // the only one is cleared
        QVERIFY(firstPixels(bank) == QList<int>{0} && log.take().isEmpty());
    }

    void rendersPixels()
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
            const auto withPixel = [value = pixel](int at) {
                return pictureOf({16, 16}, QImage::Format_Indexed8, [=](int i) { return i == at ? value : 227; });
            };
            bank.setImage(0, withPixel(1));
            // turned clockwise, column 1 of the top row is row 1 of the right column; then it is mirrored
            QCOMPARE(indices(bank.spriteImage(0, true, false, true)), indices(withPixel(16)));
            QImage expected(16, 16, QImage::Format_ARGB32);
            expected.fill(Qt::transparent);
            expected.setPixel(0, 1, entry < 0 ? 0 : m_palette.colourTable().at(entry));
            QCOMPARE(bank.renderSprite(0, offset, true, false, true), expected);
            m_palette.setColour(200, QColor(pixel, 0, 0), false);
            QCOMPARE(bank.image().colorTable(), m_palette.colourTable());
        }
    }

    void takesAnyPictureAsStrip()
    {
        const std::pair<QImage, QList<int>> pictures[] = {
            {plainImage({16, 40}, 200), {200, 200}}, // two and a half sprites
            {plainImage({3, 3}, 200), {200}}, // smaller than a sprite
            {QImage(), {1, 2}},
        };
        for (const auto &[picture, sprites] : pictures) {
            SpriteBank bank(Quenmora::EightBit);
            fillSprites(bank, {1, 2});
            bank.setPalette(&m_palette);
            bank.setWholeImage(picture);
            QVERIFY(firstPixels(bank) == sprites && bank.image().size() == QSize(16, 16 * bank.count()));
            QCOMPARE(bank.image().colorTable(), m_palette.colourTable());
        }
    }

    void readsRawSprites()
    {
        SpriteBank bank(Quenmora::FourBit);
        SignalLog log(bank);
        QVERIFY(bank.importSpr(m_path("in.spr", QByteArray(256, '\x0A') + QByteArray(256, '\xEE') + "rest")));
        QFile huge(m_path("huge.spr")); // a sparse file: more sprites than a bank may hold
        QVERIFY(huge.open(QIODevice::WriteOnly) && huge.resize(qint64(SpriteBank::MaxCount) * 256));
        QVERIFY(!bank.importSpr(huge.fileName()) && !bank.importSpr(m_path()) && !bank.exportSpr(m_path()));
        QCOMPARE(log.take(), QStringList({"countChanged", "imageChanged 1", "countChanged", "imageChanged 2"}));
        QCOMPARE(firstPixels(bank), QList<int>({0, 0x0A, 0xEE}));
    }

    void importsPictures()
    {
        // two white sprites, a red one, and what is too narrow for a fourth
        const QImage picture =
            pictureOf({56, 20}, QImage::Format_RGB32, [](int i) { return i % 56 < 32 ? 0xFFFFFFFF : 0xFFFA0A00; });
        const QString file = m_path("picture.png");
        QVERIFY(picture.save(file));
        SpriteBank bank(Quenmora::EightBit);
        QTest::ignoreMessage(QtInfoMsg, "Could not remap colours");
        QCOMPARE(bank.importImageFile(file), -1); // no palette yet
        Palette palette;
        palette.setColour(7, Qt::white, false);
        palette.setColour(9, QColor(219, 0, 0), false);
        bank.setPalette(&palette);
        SignalLog log(bank);
        QCOMPARE(bank.importImageFile(file), 4);
        QCOMPARE(firstPixels(bank), (QList<int>{0, 7, 7, 9}));
        for (int i = 0; i < 2; ++i)
            QTest::ignoreMessage(QtInfoMsg, "Failed to load image");
        QVERIFY(bank.importImageFile(m_path()) == -1 && bank.importSlicedImage(m_path()) == -1);
        // with a palette of its own, and the second white sprite recognised as the first
        QVERIFY(bank.importSlicedImage(file) == 2 && firstPixels(bank) == (QList<int>{0, 7, 7, 9, 1}));
        QCOMPARE(log.take().first(7),
                 QStringList({"imageChanged 1", "imageChanged 2", "imageChanged 3", "countChanged", "imageChanged 0",
                              "countChanged", "imageChanged 4"}));
        // red 255 and green 16, as the palette holds them
        QCOMPARE(bank.image().colorTable().first(3), QList<QRgb>({0xFFFFFFFF, 0xFFFF0000, 0xFF000000}));
    }

    void restoresAnimationsThatItHas()
    {
        SpriteBank bank(Quenmora::EightBit);
        bank.setPalette(&m_palette);
        fillSprites(bank, {1, 2});
        SignalLog log(bank);
        const QUuid id = QUuid::createUuid();
        const auto kept = bank.newAnimation();
        const auto lost = bank.addAnimation(id);
        const auto twin = bank.addAnimation(id);
        QVERIFY(bank.animation(id) == lost && twin->id() != id);
        kept->setDelay(5);
        const SpriteBank::State before = bank.snapshot();
        kept->setDelay(9);
        for (int i = 0; i < 2; ++i)
            bank.deleteAnimation(id);
        bank.newAnimation()->setDelay(3);
        QCOMPARE(log.take(), QStringList(5, "animationsChanged"));
        bank.deleteSprite(0);
        m_palette.setColour(1, Qt::red, false);
        log.take();
        bank.restore(before);
        QCOMPARE(log.take(), QStringList({"countChanged", "restored"}));
        QCOMPARE(firstPixels(bank) + valuesOf(bank.animations(), &Animation::delay), (QList<int>{1, 2, 5, 0, 3}));
        QCOMPARE(bank.image().color(1), qRgb(255, 0, 0)); // colours are the palette's, not the snapshot's
    }

    void coversWhatTheBankHas()
    {
        const Map::PlacedSprite single = spriteAt(5, 6, 3);
        QCOMPARE(PlacedSprites::area(single, m_banks), QRect(5, 6, 16, 16));
        const QPointer<SpriteAnim> animation = m_placed.newAnimation();
        animation->setSize({3, 1});
        Map::PlacedSprite animated = single;
        animated.animation = animation->id();
        animated.rotate = true;
        QCOMPARE(PlacedSprites::area(animated, m_banks), QRect(5, 6, 16, 48));
        QCOMPARE(PlacedSprites::picture(animated, m_banks, 0).size(), QSize(16, 48));
        animation->addFrame();
        animation->setDelay(5);
        QVERIFY(PlacedSprites::changesBetween(4, 5, animated, m_banks)
                && !PlacedSprites::changesBetween(5, 9, animated, m_banks));
        QCOMPARE(PlacedSprites::indexAt({6, 7}, {single, animated}, m_banks), 1);
        QCOMPARE(PlacedSprites::indexAt({5, 54}, {single, animated}, m_banks), -1);

        const QUuid none = QUuid::createUuid();
        Map::PlacedSprite noAnimation = single;
        noAnimation.animation = none;
        const QList<Map::PlacedSprite> lost{
            spriteAt(0, 0, 4), spriteAt(INT_MAX, INT_MIN, 0), {.bank = none}, noAnimation};
        QCOMPARE(PlacedSprites::area(lost.first(), m_banks), QRect());
        QCOMPARE(PlacedSprites::indexAt({0, 0}, lost, m_banks), -1);
        QCOMPARE(painted(QRect(0, 0, 5, 5), lost), painted({}, {}));
    }

    void paintsInOrderAndInside()
    {
        // cells 2 to 5 and 1 to 3 at twice their size
        const QImage screen = painted(
            QRect(2, 1, 4, 3), {spriteAt(20, 12, 1), spriteAt(24, 12, 2), spriteAt(44, 20, 3), spriteAt(48, 0, 1)});
        const std::tuple<int, int, int> pixels[] = {
            {17, 28, -1}, {18, 28, 1}, {25, 28, 1}, // beside the first sprite, and its edges
            {26, 28, 2},  {57, 59, 2}, {58, 59, -1}, // the second one lies above it
            {66, 44, 3},  {73, 67, 3}, {74, 50, -1}, {73, 68, -1}, // cut off at the edges of the view
        };
        for (const auto &[x, y, index] : pixels)
            QCOMPARE(screen.pixel(x, y), index < 0 ? qRgb(255, 255, 255) : m_palette.colourTable().at(index));
    }
};

QUENMORA_TEST_MAIN(TestSpriteBank)
#include "tst_spritebank.moc"
