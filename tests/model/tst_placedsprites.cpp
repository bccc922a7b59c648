#include "model/placedsprites.h"

#include "model/palette.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "support/testmain.h"

#include <QPainter>
#include <QTest>

#include <cstring>
#include <memory>

class TestPlacedSprites : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void coversWhatTheBankHas();
    void ignoresWhatIsNotThere();
    void paintsInOrderAndInside();
    void playsAnimations();

private:
    [[nodiscard]] Map::PlacedSprite spriteAt(int x, int y, int index) const;

    Palette m_palette;
    std::unique_ptr<SpriteBank> m_bank;
    PlacedSprites::Banks m_banks;
};

/// Sprites 0 to 3, each in the one colour of that palette index.
void TestPlacedSprites::init()
{
    m_palette.loadStandardNext();
    m_bank = std::make_unique<SpriteBank>(Quenmora::EightBit);
    m_bank->setPalette(&m_palette);
    QImage image(16, 64, QImage::Format_Indexed8);
    for (int y = 0; y < 64; ++y)
        std::memset(image.scanLine(y), y / 16, 16);
    image.setColorTable(m_palette.colourTable());
    m_bank->setWholeImage(image);
    m_banks = {nullptr, m_bank.get()};
}

Map::PlacedSprite TestPlacedSprites::spriteAt(int x, int y, int index) const
{
    Map::PlacedSprite sprite;
    sprite.bank = m_bank->id();
    sprite.sprite = index;
    sprite.x = x;
    sprite.y = y;
    return sprite;
}

void TestPlacedSprites::coversWhatTheBankHas()
{
    const Map::PlacedSprite single = spriteAt(5, 6, 3);
    QCOMPARE(PlacedSprites::area(single, m_banks), QRect(5, 6, 16, 16));

    const QPointer<SpriteAnim> animation = m_bank->newAnimation();
    animation->setSize({3, 1});
    Map::PlacedSprite animated = single;
    animated.animation = animation->id();
    QCOMPARE(PlacedSprites::area(animated, m_banks), QRect(5, 6, 48, 16));
    animated.rotate = true;
    QCOMPARE(PlacedSprites::area(animated, m_banks), QRect(5, 6, 16, 48));
    QCOMPARE(PlacedSprites::picture(animated, m_banks, 0).size(), QSize(16, 48));

    const QList<Map::PlacedSprite> sprites{single, animated};
    QCOMPARE(PlacedSprites::indexAt({6, 7}, sprites, m_banks), 1);
    QCOMPARE(PlacedSprites::indexAt({5, 54}, sprites, m_banks), -1);
    QCOMPARE(PlacedSprites::indexAt({5, 21}, {single}, m_banks), 0);
}

void TestPlacedSprites::ignoresWhatIsNotThere()
{
    Map::PlacedSprite lostBank = spriteAt(0, 0, 0);
    lostBank.bank = QUuid::createUuid();
    Map::PlacedSprite lostAnimation = spriteAt(0, 0, 0);
    lostAnimation.animation = QUuid::createUuid();
    const QList<Map::PlacedSprite> lost{spriteAt(0, 0, 4), spriteAt(0, 0, -1), spriteAt(INT_MAX, INT_MIN, 0), lostBank,
                                        lostAnimation};
    QImage screen(40, 40, QImage::Format_RGB32);
    screen.fill(Qt::white);
    const QImage before = screen;
    {
        QPainter painter(&screen);
        PlacedSprites::paint(painter, {0, 0}, QRect(0, 0, 5, 5), 8, lost, m_banks, 0);
    }
    QCOMPARE(screen, before);
    for (const Map::PlacedSprite &sprite : lost)
        QVERIFY(PlacedSprites::area(sprite, m_banks).isEmpty());
    QCOMPARE(PlacedSprites::indexAt({0, 0}, lost, m_banks), -1);
}

void TestPlacedSprites::paintsInOrderAndInside()
{
    // the view shows cells 2 to 5 and 1 to 3 at twice their size, from (10, 20) on
    QImage screen(100, 100, QImage::Format_RGB32);
    screen.fill(Qt::white);
    {
        QPainter painter(&screen);
        PlacedSprites::paint(painter, {10, 20}, QRect(2, 1, 4, 3), 16,
                             {spriteAt(20, 12, 1), spriteAt(24, 12, 2), spriteAt(44, 20, 3), spriteAt(48, 0, 1)},
                             m_banks, 0);
    }
    const QList<QRgb> colours = m_palette.colourTable();
    QCOMPARE(screen.pixel(17, 28), qRgb(255, 255, 255));
    QCOMPARE(screen.pixel(18, 28), colours[1]);
    QCOMPARE(screen.pixel(25, 28), colours[1]);
    QCOMPARE(screen.pixel(26, 28), colours[2]); // above the first
    QCOMPARE(screen.pixel(57, 59), colours[2]);
    QCOMPARE(screen.pixel(58, 59), qRgb(255, 255, 255));
    QCOMPARE(screen.pixel(66, 44), colours[3]);
    QCOMPARE(screen.pixel(73, 67), colours[3]);
    QCOMPARE(screen.pixel(74, 50), qRgb(255, 255, 255)); // cut off at the edge of the view
    QCOMPARE(screen.pixel(73, 68), qRgb(255, 255, 255));
}

void TestPlacedSprites::playsAnimations()
{
    const QPointer<SpriteAnim> animation = m_bank->newAnimation();
    animation->addFrame();
    animation->frame(0)->setIndex(0, 0, 1);
    animation->frame(1)->setIndex(0, 0, 2);
    animation->setDelay(5);
    Map::PlacedSprite sprite = spriteAt(0, 0, 0);
    sprite.animation = animation->id();
    const QList<QRgb> colours = m_palette.colourTable();
    QCOMPARE(PlacedSprites::picture(sprite, m_banks, 4).pixel(8, 8), colours[1]);
    QCOMPARE(PlacedSprites::picture(sprite, m_banks, 5).pixel(8, 8), colours[2]);
    QCOMPARE(PlacedSprites::picture(sprite, m_banks, 10).pixel(8, 8), colours[1]);
}

QUENMORA_TEST_MAIN(TestPlacedSprites)
#include "tst_placedsprites.moc"
