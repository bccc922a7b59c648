#include "model/map.h"
#include "support/testmain.h"
#include "undo/mapeditcommand.h"

#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

#include <functional>
#include <memory>

class TestMapEditCommand : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void undoAndRedoPutTheMapBack_data();
    void undoAndRedoPutTheMapBack();
    void manyRandomEditsAreUndoneInOrder();
    void undoLeavesOtherChangesAlone();
    void mapThatShrankKeepsItsSize();
    void deletedMapIsSafe();

private:
    using Edit = std::function<void(Map &)>;

    static TileMap::TileData cell(int index) { return {.index = index, .rotate = true, .offset = 3, .used = true}; }

    static Map::PlacedSprite placed(int sprite)
    {
        Map::PlacedSprite result;
        result.sprite = sprite;
        result.x = 16;
        return result;
    }

    void edit(const Edit &change)
    {
        const Map::Snapshot before = m_map->snapshot();
        change(*m_map);
        m_stack->push(new MapEditCommand(QStringLiteral("Edit"), m_map.get(), before, m_map->snapshot()));
    }

    std::unique_ptr<TileMap> m_tiles;
    std::unique_ptr<TileMap> m_objects;
    std::unique_ptr<Map> m_map;
    std::unique_ptr<QUndoStack> m_stack;
};

void TestMapEditCommand::init()
{
    m_stack = std::make_unique<QUndoStack>();
    m_map = std::make_unique<Map>(QStringLiteral("Level"));
    m_tiles = std::make_unique<TileMap>(20, 10);
    m_objects = std::make_unique<TileMap>(20, 10);
    m_map->setLayers(m_tiles.get(), m_objects.get());
    for (int x = 0; x < 20; ++x)
        m_map->setTile({x, x / 2}, cell(x));
    m_map->animatedBlocks()->add(QRect(2, 2, 3, 3), QUuid::createUuid());
    m_map->addSprite(placed(1));
}

void TestMapEditCommand::undoAndRedoPutTheMapBack_data()
{
    QTest::addColumn<Edit>("change");
    const auto row = [](const char *name, const Edit &change) { QTest::newRow(name) << change; };

    row("nothing", [](Map &) {});
    row("corners", [](Map &map) {
        for (const QPoint corner : {QPoint(0, 0), QPoint(19, 0), QPoint(0, 9), QPoint(19, 9)})
            map.setTile(corner, cell(77));
    });
    row("every second cell of a row", [](Map &map) {
        for (int x = 0; x < 20; x += 2)
            map.setTile({x, 4}, cell(50 + x));
    });
    row("whole rows", [](Map &map) { map.setTiles(QRect(0, 2, 20, 3), 4, false, false, true, true); });
    row("object layer", [](Map &map) { map.objectLayer()->setCell({3, 3}, cell(8)); });
    row("column inserted", [](Map &map) { map.insertColumn(Quenmora::Begin); });
    row("row removed", [](Map &map) { map.removeRow(Quenmora::Begin); });
    row("shrunk to nothing and grown", [](Map &map) {
        map.resize({0, 0});
        map.resize({3, 30});
    });
    row("placement removed", [](Map &map) { map.removeAnimationAt(QRect(2, 2, 3, 3)); });
    row("placement moved", [](Map &map) { map.animatedBlocks()->list().first()->setArea(QRect(4, 4, 3, 3)); });
    row("sprite added", [](Map &map) { map.addSprite(placed(2)); });
    row("last sprite removed", [](Map &map) { map.removeSprite(0); });
}

void TestMapEditCommand::undoAndRedoPutTheMapBack()
{
    QFETCH(Edit, change);
    const Map::Snapshot before = m_map->snapshot();
    QSignalSpy restored(m_map.get(), &Map::restored);
    edit(change);
    QCOMPARE(restored.count(), 0);
    const Map::Snapshot after = m_map->snapshot();
    for (int round = 0; round < 2; ++round) {
        m_stack->undo();
        QVERIFY(m_map->snapshot() == before);
        m_stack->redo();
        QVERIFY(m_map->snapshot() == after);
    }
}

void TestMapEditCommand::manyRandomEditsAreUndoneInOrder()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);

    QList<Map::Snapshot> states{m_map->snapshot()};
    for (int step = 0; step < 60; ++step) {
        edit([&random](Map &map) {
            if (random.bounded(10) == 0)
                map.resize({1 + random.bounded(30), 1 + random.bounded(20)}, Qt::AlignRight | Qt::AlignBottom);
            for (int count = random.bounded(40); count > 0; --count)
                map.setTile({random.bounded(30), random.bounded(20)}, cell(random.bounded(4)));
            if (random.bounded(4) == 0)
                map.addSprite(placed(random.bounded(8)));
        });
        states.append(m_map->snapshot());
    }
    for (int walk = 0; walk < 300; ++walk) {
        m_stack->setIndex(random.bounded(m_stack->count() + 1));
        QVERIFY(m_map->snapshot() == states.at(m_stack->index()));
    }
}

void TestMapEditCommand::undoLeavesOtherChangesAlone()
{
    edit([](Map &map) { map.setTile({5, 5}, cell(9)); });
    m_map->setTile({6, 5}, cell(8));
    m_map->addSprite(placed(3));
    m_stack->undo();
    QCOMPARE(m_tiles->cellAt({5, 5}), TileMap::TileData());
    QCOMPARE(m_tiles->cellAt({6, 5}), cell(8));
    QCOMPARE(m_map->sprites().size(), 2);
}

void TestMapEditCommand::mapThatShrankKeepsItsSize()
{
    edit([](Map &map) { map.setTiles(QRect(3, 3, 10, 5), 4, false, false, false, true); });
    m_map->resize({5, 4});
    m_stack->undo();
    QCOMPARE(m_map->size(), QSize(5, 4));
    QVERIFY(!m_tiles->cellAt({4, 3}).used);
    m_stack->redo();
    QVERIFY(m_tiles->cellAt({4, 3}).used);
}

void TestMapEditCommand::deletedMapIsSafe()
{
    edit([](Map &map) { map.setTile({5, 5}, cell(9)); });
    m_map.reset();
    m_stack->undo();
    m_stack->redo();
    QCOMPARE(m_stack->index(), 1);
}

QUENMORA_TEST_MAIN(TestMapEditCommand)
#include "tst_mapeditcommand.moc"
