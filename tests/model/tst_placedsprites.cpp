#include "model/placedsprites.h"

#include "model/palette.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "support/modeltools.h"
#include "support/testmain.h"

#include <QPainter>
#include <QTest>

/// Sprites 0 to 3, each in the one colour of that palette index, placed on maps.
class TestPlacedSprites : public QObject
{
    Q_OBJECT

    [[nodiscard]] Map::PlacedSprite spriteAt(int x, int y, int index) const
    {
        return {.bank = m_bank.id(), .sprite = index, .x = x, .y = y};
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

    Palette m_palette;
    SpriteBank m_bank{Quenmora::EightBit};
    const PlacedSprites::Banks m_banks{nullptr, &m_bank};

private slots:
    void initTestCase()
    {
        m_palette.loadStandardNext();
        m_bank.setPalette(&m_palette);
        m_bank.setWholeImage(pictureOf({16, 64}, QImage::Format_Indexed8, [](int i) { return i / 256; }));
    }

    void coversWhatTheBankHas()
    {
        const Map::PlacedSprite single = spriteAt(5, 6, 3);
        QCOMPARE(PlacedSprites::area(single, m_banks), QRect(5, 6, 16, 16));
        const QPointer<SpriteAnim> animation = m_bank.newAnimation();
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

QUENMORA_TEST_MAIN(TestPlacedSprites)
#include "tst_placedsprites.moc"
