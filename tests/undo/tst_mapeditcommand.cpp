#include "model/map.h"
#include "support/testmain.h"
#include "undo/mapeditcommand.h"

#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

#include <memory>

namespace {

TileMap::TileData cell(int index)
{
    return {.index = index, .rotate = true, .offset = 3, .used = true};
}

/// One edit of any kind that a map knows, at any place.
void editAnyhow(Map &map, QRandomGenerator &random)
{
    const QPoint at(random.bounded(-2, 25), random.bounded(-2, 15));
    const auto position = random.bounded(2) ? Quenmora::Begin : Quenmora::End;
    switch (random.bounded(12)) {
    case 0:
        return map.resize({random.bounded(30), random.bounded(20)}, Qt::AlignRight | Qt::AlignBottom);
    case 1:
        return map.insertColumn(position);
    case 2:
        return map.removeRow(position);
    case 3:
        return map.animatedBlocks()->add(QRect(at, QSize(2, 3)), QUuid::createUuid());
    case 4:
        if (!map.animatedBlocks()->list().isEmpty())
            map.removeAnimationAt(map.animatedBlocks()->list().first()->area());
        return;
    case 5:
        map.addSprite({.bank = {}, .animation = {}, .sprite = random.bounded(9), .x = at.x(), .name = "new"});
        return;
    case 6:
        map.removeSprite(0);
        return;
    case 7: // whole rows, which the command shares
        return map.setTiles(QRect(0, at.y(), map.size().width(), 2), random.bounded(4), false, true, false, true);
    case 8:
        map.objectLayer()->setCell(at, cell(random.bounded(4)));
        return;
    default:
        for (int x = 0; x < 20; x += 1 + random.bounded(4))
            map.setTile(QPoint(x, at.y()), cell(random.bounded(3)));
    }
}

} // namespace

class TestMapEditCommand : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void undoAndRedoGoBackToEveryState();
    void undoLeavesOtherChangesAlone();
    void mapThatShrankKeepsItsSize();
    void deletedMapIsSafe();

private:
    template <typename Edit>
    void edit(Edit change)
    {
        const Map::Snapshot before = m_map->snapshot();
        change(*m_map);
        m_stack->push(new MapEditCommand("Edit", m_map.get(), before, m_map->snapshot()));
    }

    std::unique_ptr<TileMap> m_tiles;
    std::unique_ptr<TileMap> m_objects;
    std::unique_ptr<Map> m_map;
    std::unique_ptr<QUndoStack> m_stack;
};

void TestMapEditCommand::init()
{
    m_stack = std::make_unique<QUndoStack>();
    m_map = std::make_unique<Map>("Level");
    m_tiles = std::make_unique<TileMap>(20, 10);
    m_objects = std::make_unique<TileMap>(20, 10);
    m_map->setLayers(m_tiles.get(), m_objects.get());
}

void TestMapEditCommand::undoAndRedoGoBackToEveryState()
{
    const quint32 seed = QRandomGenerator::global()->generate();
    qInfo("seed %u", seed);
    QRandomGenerator random(seed);
    QSignalSpy restored(m_map.get(), &Map::restored);
    QList<Map::Snapshot> states{m_map->snapshot()};
    for (int step = 0; step < 200; ++step) {
        edit([&random](Map &map) { editAnyhow(map, random); });
        states.append(m_map->snapshot());
    }
    QCOMPARE(restored.count(), 0);
    for (int walk = 0; walk < 100; ++walk) {
        m_stack->setIndex(random.bounded(m_stack->count() + 1));
        QVERIFY(m_map->snapshot() == states.at(m_stack->index()));
    }
}

void TestMapEditCommand::undoLeavesOtherChangesAlone()
{
    edit([](Map &map) { map.setTile({5, 5}, cell(9)); });
    m_map->setTile({6, 5}, cell(8));
    m_map->addSprite({});
    m_stack->undo();
    QCOMPARE(m_tiles->cellAt({5, 5}), TileMap::TileData());
    QCOMPARE(m_tiles->cellAt({6, 5}), cell(8));
    QCOMPARE(m_map->sprites().size(), 1);
}

void TestMapEditCommand::mapThatShrankKeepsItsSize()
{
    edit([](Map &map) { map.setTiles(QRect(3, 3, 10, 5), 4, false, false, false, true); });
    for (const int width : {10, 5}) { // as wide as the changed cells, and narrower
        m_map->resize({width, 4});
        m_stack->undo();
        QCOMPARE(m_map->size(), QSize(width, 4));
        QVERIFY(!m_tiles->cellAt({4, 3}).used);
        m_stack->redo();
        QVERIFY(m_tiles->cellAt({4, 3}).used && !m_tiles->cellAt({2, 3}).used);
    }
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
