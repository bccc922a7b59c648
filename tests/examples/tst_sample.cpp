#include "examples/sample.h"
#include "model/image.h"
#include "model/map.h"
#include "model/mapobjects.h"
#include "model/palette.h"
#include "model/project.h"
#include "model/spriteanim.h"
#include "model/spritebank.h"
#include "model/tileset.h"
#include "store/projectdocument.h"
#include "store/projectstore.h"
#include "store/zipfile.h"
#include "support/testmain.h"

#include <QJsonDocument>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

namespace {

QString exampleFile(const QString &name)
{
    return QFINDTESTDATA(name);
}

QImage picture(const QString &name)
{
    return QImage(exampleFile("pictures/" + name)).convertToFormat(QImage::Format_RGB32);
}

/// The map as an editor shows it, without its sprites.
QImage painted(const Map &map)
{
    QImage image(map.size() * Tile::Size, QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    map.paintLayers(painter, {0, 0}, QRect({0, 0}, map.size()), Tile::Size, -1);
    return image;
}

/// The attributes of the tile that a cell of the level shows.
int attributesAt(const Map &map, QPoint cell)
{
    return map.tileSet()->tile(map.tileLayer()->cellAt(cell).index)->attributes();
}

} // namespace

/// The sample project in the tree is worth opening, and made of the pictures beside it.
class TestSample : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void theLevelLooksLikeItsPicture();
    void tilesKnowWhatTheyAre_data();
    void tilesKnowWhatTheyAre();
    void blocksAndSpritesPlay();
    void placedSpritesExist();
    void theTitleFillsTheScreen();
    void theLevelIsInFrontWhenItOpens();
    void theFileIsMadeOfThePictures();
    void unusablePicturesAreRefused();

private:
    ProjectStore m_store;
    QPointer<Map> m_map;
    QPointer<SpriteBank> m_bank;
};

void TestSample::initTestCase()
{
    QVERIFY(m_store.load(exampleFile("sample.quenmora")));
    QCOMPARE(m_store.project()->maps().size(), 1);
    QCOMPARE(m_store.project()->spriteBanks().size(), 1);
    m_map = m_store.project()->maps().first();
    m_bank = m_store.project()->spriteBanks().first();
}

void TestSample::theLevelLooksLikeItsPicture()
{
    QImage expected = picture("level.png");
    // the first frames of water, torches, waterfall and lift stand in their own picture
    const QImage blocks = picture("blocks.png");
    QPainter painter(&expected);
    const QList<std::pair<QRect, QPoint>> placed{
        {{0, 0, 32, 16}, {176, 104}}, {{0, 0, 32, 16}, {208, 104}}, {{0, 16, 8, 16}, {48, 136}},
        {{0, 16, 8, 16}, {104, 136}}, {{0, 16, 8, 16}, {144, 136}}, {{0, 16, 8, 16}, {288, 136}},
        {{0, 16, 8, 16}, {384, 128}}, {{0, 16, 8, 16}, {440, 136}}, {{32, 16, 16, 40}, {208, 64}},
        {{0, 56, 24, 8}, {248, 48}},
    };
    for (const auto &[source, at] : placed)
        painter.drawImage(at, blocks, source);
    painter.end();

    QCOMPARE(m_map->animatedBlocks()->list().size(), placed.size());
    QCOMPARE(painted(*m_map), expected);
}

void TestSample::tilesKnowWhatTheyAre_data()
{
    QTest::addColumn<QPoint>("cell");
    QTest::addColumn<int>("attributes");
    QTest::newRow("sky") << QPoint(0, 0) << int(Tile::TA_NONE);
    QTest::newRow("earth") << QPoint(10, 15) << int(Tile::TA_SOLID);
    QTest::newRow("grass") << QPoint(10, 13) << int(Tile::TA_TOPSOLID);
    QTest::newRow("ladder") << QPoint(4, 18) << int(Tile::TA_LADDER);
    QTest::newRow("head of the ladder") << QPoint(4, 13) << int(Tile::TA_LADDER | Tile::TA_TOPSOLID);
    QTest::newRow("coin") << QPoint(19, 5) << int(Tile::TA_COLLECTIBLE);
    QTest::newRow("spikes") << QPoint(44, 12) << int(Tile::TA_DEADLY);
    QTest::newRow("door") << QPoint(11, 12) << int(Tile::TA_DOOR);
}

void TestSample::tilesKnowWhatTheyAre()
{
    QFETCH(QPoint, cell);
    QFETCH(int, attributes);
    QCOMPARE(attributesAt(*m_map, cell), attributes);
}

void TestSample::blocksAndSpritesPlay()
{
    QCOMPARE(m_store.project()->blockSets().size(), 1);
    const auto blocks = m_store.project()->blockSets().first()->animations();
    QCOMPARE(blocks.size(), 4);
    QCOMPARE(blocks[0]->name(), "Water");
    QCOMPARE(blocks[0]->frameCount(), 4);
    QVERIFY(blocks[0]->delay() > 0);
    QVERIFY(blocks[0]->frame(0)->cells() != blocks[0]->frame(1)->cells());
    QCOMPARE(blocks[3]->type(), MapObjectType::HorizontalPlatform);

    const QImage sheet = picture("sprites.png");
    const auto loops = m_bank->animations();
    QCOMPARE(loops.size(), 7);
    QCOMPARE(loops[0]->name(), "Hero Walk");
    QCOMPARE(loops[0]->frameCount(), 4);
    for (int frame = 0; frame < 4; ++frame) {
        const QImage drawn = loops[0]->frameImage(frame, 0, false, false, false);
        QImage shown(drawn.size(), QImage::Format_RGB32);
        shown.fill(sheet.pixel(0, 0)); // the background
        QPainter(&shown).drawImage(0, 0, drawn);
        QCOMPARE(shown, sheet.copy((frame + 1) * 16, 0, 16, 16));
    }
}

void TestSample::placedSpritesExist()
{
    QVERIFY(m_map->sprites().size() >= 10);
    const QRect level({0, 0}, m_map->size() * Tile::Size);
    for (const Map::PlacedSprite &sprite : m_map->sprites()) {
        QCOMPARE(sprite.bank, m_bank->id());
        QVERIFY2(sprite.animation.isNull() || m_bank->animation(sprite.animation), qPrintable(sprite.name));
        QVERIFY2(sprite.sprite < m_bank->count(), qPrintable(sprite.name));
        QVERIFY2(level.contains(QRect(sprite.x, sprite.y, 16, 16)), qPrintable(sprite.name));
    }
}

void TestSample::theTitleFillsTheScreen()
{
    QCOMPARE(m_store.project()->images().size(), 1);
    const QPointer<Image> title = m_store.project()->images().first();
    QCOMPARE(title->image().size(), m_store.project()->screenSize());
    QCOMPARE(title->image().convertToFormat(QImage::Format_RGB32), picture("title.png"));
}

void TestSample::theLevelIsInFrontWhenItOpens()
{
    const QStringList documents = m_store.project()->openDocuments();
    QCOMPARE(documents.size(), 3);
    QCOMPARE(documents.last(), m_map->id().toString());
}

/// Fails when somebody changes a picture, or how the sample is made, and does not make it anew.
void TestSample::theFileIsMadeOfThePictures()
{
    Project project;
    QString error;
    QVERIFY2(buildSample(project, QDir(exampleFile("pictures")), error), qPrintable(error));
    ZipFile archive;
    QVERIFY(archive.openForReading(exampleFile("sample.quenmora")));
    const ProjectMembers members = serializeProject(project, true);
    for (auto member = members.cbegin(); member != members.cend(); ++member) {
        const QByteArray stored = archive.read(member.key());
        // versions of the compressing library make different bytes of the same picture
        if (member.key().endsWith(".png")) {
            QVERIFY2(!stored.isEmpty(), qPrintable(member.key()));
            QCOMPARE(QImage::fromData(stored), QImage::fromData(member.value()));
        } else {
            QCOMPARE(stored, member.value());
        }
    }
}

void TestSample::unusablePicturesAreRefused()
{
    const QTemporaryDir folder;
    Project project;
    QString error;
    QVERIFY(!buildSample(project, QDir(folder.path()), error));
    QVERIFY(error.contains("tiles.png"));
    QImage small(8, 8, QImage::Format_RGB32);
    small.fill(Qt::black);
    QVERIFY(small.save(folder.filePath("tiles.png")));
    QVERIFY(!buildSample(project, QDir(folder.path()), error));
    QVERIFY(error.contains("128 × 72"));
}

QUENMORA_TEST_MAIN(TestSample)
#include "tst_sample.moc"
