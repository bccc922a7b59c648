#include "editors/animation/animationlistwidget.h"
#include "editors/map/blockselectorwindow.h"
#include "editors/map/mapspriteswindow.h"
#include "model/palette.h"
#include "support/testmain.h"

#include <QAction>
#include <QComboBox>
#include <QListView>
#include <QListWidget>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using List = AnimationEditor::AnimationListWidget;

namespace {

QStringList names(const List &list)
{
    QStringList names;
    const auto *items = list.findChild<QListWidget *>();
    for (int row = 0; row < items->count(); ++row)
        names.append(items->item(row)->text());
    return names;
}

void click(QAbstractItemView *view, int row)
{
    const QRect cell = view->visualRect(view->model()->index(row, 0));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, cell.center());
}

} // namespace

class TestMapDocks : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void listKeepsTheSelection();
    void objectsAreThoseOfTheTileSet();
    void objectsAreChosen();
    void spritesAreThoseOfTheBank();
    void spritesAreChosen();
    void spritesFollowTheMap();
    void listOffersWhatItsFlagsSay();

private:
    std::unique_ptr<Project> m_project;
    QPointer<Palette> m_palette;
    QPointer<TileSet> m_tiles;
    QPointer<MapObjects> m_blocks;
    QPointer<SpriteBank> m_bank;
};

void TestMapDocks::init()
{
    m_project = std::make_unique<Project>();
    m_palette = m_project->createPalette(CreateAction::DefaultNext, "Colours");
    m_tiles = m_project->createTileSet("Tiles", m_palette->id(), 16);
    m_blocks = m_project->createBlockList("Blocks", m_tiles->id());
    for (const auto *name : {"Door", "Torch", "Water"})
        m_blocks->createBoundTileAnimation(name)->addFrame();
    m_bank = m_project->createSpriteBank(Quenmora::EightBit, "Heroes", m_palette->id());
    m_bank->addSprite();
    m_bank->addSprite();
    m_bank->newAnimation()->setName("Run");
}

void TestMapDocks::cleanup()
{
    m_project.reset();
}

void TestMapDocks::listKeepsTheSelection()
{
    List list;
    const QList<QPointer<TileAnimation>> animations = m_blocks->animations();
    list.setAnimations(animations);
    list.select(animations.at(1));
    QSignalSpy changed(&list, &List::selectedItemChanged);
    list.setAnimations(QList<QPointer<TileAnimation>>{animations.at(1), animations.at(2)});
    QCOMPARE(list.selected(), animations.at(1).data());
    QCOMPARE(changed.count(), 0);
    list.setAnimations(QList<QPointer<TileAnimation>>{animations.at(2)});
    QVERIFY(!list.selected());
    QCOMPARE(changed, (QList<QVariantList>{{QVariant::fromValue<Animation *>(nullptr)}}));

    list.select(animations.at(2));
    list.removeAnimation(animations.at(2));
    QCOMPARE(changed.count(), 3);
    QCOMPARE(list.animations().size(), 0);

    list.setAnimations(animations);
    animations.at(1)->setName("Candle");
    QCOMPARE(names(list), (QStringList{"Door", "Candle", "Water"}));
    const auto *items = list.findChild<QListWidget *>();
    const qint64 before = items->item(2)->icon().cacheKey();
    animations.at(2)->frame(0)->setIndex(0, 0, 3);
    QTRY_VERIFY(items->item(2)->icon().cacheKey() != before);
}

void TestMapDocks::objectsAreThoseOfTheTileSet()
{
    BlockSelectorWindow dock;
    QVERIFY(!dock.isActive());
    dock.setTileSet(m_tiles);
    QVERIFY(dock.isActive());
    QCOMPARE(names(*dock.list()), (QStringList{"Door", "Torch", "Water"}));
    m_blocks->createBoundTileAnimation("Lift");
    QCOMPARE(names(*dock.list()).last(), QStringLiteral("Lift"));

    dock.selectAnimation(m_blocks->animations().at(1)->id());
    m_blocks->removeAnimation(m_blocks->animations().at(1)->id());
    QCOMPARE(names(*dock.list()), (QStringList{"Door", "Water", "Lift"}));

    const QPointer<TileSet> others = m_project->createTileSet("Others", m_palette->id(), 16);
    dock.setTileSet(others);
    QVERIFY(!dock.isActive());
    QCOMPARE(dock.placeholderText(), QStringLiteral("The tile set has no map objects"));
    m_blocks->createBoundTileAnimation("Unseen");
    QCOMPARE(names(*dock.list()), QStringList());
    dock.setTileSet(m_tiles);
    m_project->deleteBlocks(m_blocks->id());
    QVERIFY(!dock.isActive());
    m_project->deleteTileSet(m_tiles->id());
    QCOMPARE(dock.placeholderText(), QStringLiteral("No active tile set"));
}

void TestMapDocks::objectsAreChosen()
{
    BlockSelectorWindow dock;
    dock.setTileSet(m_tiles);
    dock.show();
    auto *items = dock.list()->findChild<QListWidget *>();
    QSignalSpy selected(&dock, &BlockSelectorWindow::animationSelected);
    const auto chosen = [this](int row) { return QVariantList{QVariant::fromValue(m_blocks->animations().at(row))}; };
    click(items, 1);
    QCOMPARE(selected, (QList<QVariantList>{chosen(1)}));
    click(items, 1); // the tool may be another one meanwhile
    QTest::keyClick(items, Qt::Key_Down);
    QCOMPARE(selected, (QList<QVariantList>{chosen(1), chosen(1), chosen(2)}));

    selected.clear();
    dock.selectAnimation(m_blocks->animations().at(0)->id());
    QCOMPARE(dock.list()->selected(), m_blocks->animations().at(0).data());
    dock.selectAnimation(QUuid::createUuid());
    QVERIFY(!dock.list()->selected());
    QCOMPARE(selected.count(), 0);
}

void TestMapDocks::spritesAreThoseOfTheBank()
{
    MapSpritesWindow dock;
    dock.setProject(m_project.get());
    QVERIFY(dock.isActive());
    const auto *list = dock.findChild<List *>();
    const QAbstractItemModel *sprites = dock.findChild<QListView *>("sprites")->model();
    QCOMPARE(sprites->rowCount(), 3);
    QCOMPARE(names(*list), QStringList{"Run"});
    m_bank->addSprite();
    m_bank->newAnimation()->setName("Jump");
    QCOMPARE(sprites->rowCount(), 4);
    QCOMPARE(names(*list), (QStringList{"Run", "Jump"}));

    const QPointer<SpriteBank> second = m_project->createSpriteBank(Quenmora::FourBit, "Foes", m_palette->id());
    auto *banks = dock.findChild<QComboBox *>();
    QCOMPARE(banks->count(), 2);
    QCOMPARE(dock.bank(), m_bank);
    banks->setCurrentIndex(1);
    QCOMPARE(dock.bank(), second);
    QCOMPARE(names(*list), QStringList());

    m_project->deleteSpriteBank(second->id());
    QCOMPARE(dock.bank(), m_bank);
    m_project->deleteSpriteBank(m_bank->id());
    QVERIFY(!dock.isActive() && !dock.bank());
    m_project->createSpriteBank(Quenmora::FourBit, "New", m_palette->id());
    QVERIFY(dock.isActive());
    m_project.reset();
    QVERIFY(!dock.isActive());
    dock.grab();
}

void TestMapDocks::spritesAreChosen()
{
    MapSpritesWindow dock;
    dock.resize(300, 400);
    dock.setProject(m_project.get());
    dock.show();
    auto *animations = dock.findChild<QListWidget *>();
    auto *sprites = dock.findChild<QListView *>("sprites");
    QSignalSpy single(&dock, &MapSpritesWindow::spriteSelected);
    QSignalSpy animated(&dock, &MapSpritesWindow::spriteAnimationSelected);
    click(sprites, 2);
    click(sprites, 2);
    QCOMPARE(single, (QList<QVariantList>{{m_bank->id(), 2}, {m_bank->id(), 2}}));
    click(animations, 0);
    QCOMPARE(animated, (QList<QVariantList>{{QVariant::fromValue(m_bank->animations().at(0))}}));
    QVERIFY(!sprites->currentIndex().isValid() && !sprites->selectionModel()->hasSelection());
    click(sprites, 0);
    QCOMPARE(single.last(), (QVariantList{m_bank->id(), 0}));
    QVERIFY(!dock.findChild<List *>()->selected());
}

void TestMapDocks::spritesFollowTheMap()
{
    const QPointer<SpriteBank> second = m_project->createSpriteBank(Quenmora::FourBit, "Foes", m_palette->id());
    second->addSprite();
    MapSpritesWindow dock;
    dock.setProject(m_project.get());
    QSignalSpy single(&dock, &MapSpritesWindow::spriteSelected);
    QSignalSpy animated(&dock, &MapSpritesWindow::spriteAnimationSelected);
    Map::PlacedSprite placed;
    placed.bank = second->id();
    placed.sprite = 1;
    dock.selectSprite(placed);
    QCOMPARE(dock.bank(), second);
    QCOMPARE(dock.findChild<QListView *>("sprites")->currentIndex().row(), 1);
    placed.bank = m_bank->id();
    placed.animation = m_bank->animations().at(0)->id();
    dock.selectSprite(placed);
    QCOMPARE(dock.bank(), m_bank);
    QCOMPARE(dock.findChild<List *>()->selected(), m_bank->animations().at(0).data());
    placed.bank = QUuid::createUuid(); // one that is gone
    dock.selectSprite(placed);
    QCOMPARE(dock.bank(), m_bank);
    QCOMPARE(single.count() + animated.count(), 0);
}

void TestMapDocks::listOffersWhatItsFlagsSay()
{
    m_blocks->animations().at(0)->addFrame();
    m_blocks->animations().at(0)->setSize({3, 1});
    for (const int flags : {0, 1, 2, 1 | 2 | 4}) {
        List list{List::Flags(flags)};
        list.setAnimations(m_blocks->animations());
        QCOMPARE(list.findChildren<QToolButton *>().size(), flags & List::Buttons ? 2 : 0);
        const auto *items = list.findChild<QListWidget *>();
        QStringList menu;
        for (const QAction *action : items->actions())
            menu.append(action->text());
        QCOMPARE(menu.join(' '), flags & List::ContextMenu ? "Add Delete Clone" : "");
        QCOMPARE(items->item(0)->text(), flags & List::Details ? "Door\n2 frame(s) [3x1]" : "Door");
        QCOMPARE(items->item(0)->toolTip(), "Door");
        if (menu.isEmpty())
            continue;
        QVERIFY(items->actions().at(0)->isEnabled() && !items->actions().at(1)->isEnabled());
        QSignalSpy add(&list, &List::addRequested);
        QSignalSpy remove(&list, &List::removeRequested);
        QSignalSpy clone(&list, &List::cloneRequested);
        list.select(m_blocks->animations().at(2));
        for (QAction *action : items->actions())
            action->trigger();
        QCOMPARE(add.count() + remove.count(), 2);
        QCOMPARE(clone, (QList<QVariantList>{{QVariant::fromValue<Animation *>(m_blocks->animations().at(2))}}));
    }
}

QUENMORA_TEST_MAIN(TestMapDocks)
#include "tst_mapdocks.moc"
