#include "editors/common/animationlistwidget.h"
#include "editors/map/blockselectorwindow.h"
#include "editors/map/mapspriteswindow.h"
#include "support/mapfixture.h"
#include "support/testmain.h"

#include <QtWidgets>

using List = AnimationEditor::AnimationListWidget;

namespace {

/// Block animations "Torch", "Door" and "Water", and the sprite animation "Run".
struct Fixture : MapAssets
{
    Fixture()
    {
        run->setName("Run");
        for (const auto *name : {"Door", "Water"})
            blocks->createBoundTileAnimation(name)->addFrame();
    }
    QPointer<TileAnimation> block(int row) const { return blocks->animations().at(row); }
    QPointer<SpriteBank> makeBank() { return project.createSpriteBank(Quenmora::FourBit, "Foes", palette->id()); }
};

QString names(const QWidget &parent)
{
    QStringList names;
    const auto *items = parent.findChild<QListWidget *>();
    for (int row = 0; row < items->count(); ++row)
        names.append(items->item(row)->text());
    return names.join(' ');
}

void click(QAbstractItemView *view, int row)
{
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(view->model()->index(row, 0)).center());
}

} // namespace

class TestMapDocks : public QObject
{
    Q_OBJECT

private slots:
    void listKeepsTheSelection()
    {
        const Fixture f;
        List list;
        list.setAnimations(f.blocks->animations());
        list.select(f.block(1));
        QSignalSpy changed(&list, &List::selectedItemChanged);
        list.setAnimations(QList{f.block(1), f.block(2)});
        QCOMPARE(list.selected(), f.block(1).data());
        list.setAnimations(QList{f.block(2)});
        list.select(f.block(2));
        list.removeAnimation(f.block(2));
        const auto none = QVariant::fromValue<Animation *>(nullptr);
        QCOMPARE(changed, (Signals{{none}, {QVariant::fromValue<Animation *>(f.block(2))}, {none}}));

        list.setAnimations(f.blocks->animations());
        f.block(1)->setName("Candle");
        QCOMPARE(names(list), "Torch Candle Water");
        const auto *items = list.findChild<QListWidget *>();
        const qint64 before = items->item(2)->icon().cacheKey();
        f.block(2)->frame(0)->setIndex(0, 0, 3);
        QTRY_VERIFY(items->item(2)->icon().cacheKey() != before);
        QVERIFY(!list.findChild<QToolButton *>() && items->actions().isEmpty());
    }

    void listOffersWhatItsFlagsSay()
    {
        const Fixture f;
        List list(List::Buttons | List::ContextMenu | List::Details);
        list.setAnimations(f.blocks->animations());
        QCOMPARE(list.findChildren<QToolButton *>().size(), 2);
        const auto *items = list.findChild<QListWidget *>();
        QCOMPARE(items->item(0)->text(), "Torch\n2 frame(s) [3x2]");
        QString asked;
        connect(&list, &List::addRequested, [&asked] { asked += "add "; });
        connect(&list, &List::removeRequested, [&asked] { asked += "remove "; });
        connect(&list, &List::cloneRequested, [&asked](Animation *animation) { asked += animation->name(); });
        for (const auto &selected : {QPointer<TileAnimation>(), f.block(2)}) {
            list.select(selected);
            for (QAction *action : items->actions())
                action->trigger();
        }
        QCOMPARE(asked, "add add remove Water");
    }

    void objectsAreThoseOfTheTileSet()
    {
        Fixture f;
        BlockSelectorWindow dock;
        QVERIFY(!dock.isActive());
        dock.setTileSet(f.tiles);
        dock.show();
        QCOMPARE(names(dock), "Torch Door Water");
        auto *items = dock.list()->findChild<QListWidget *>();
        QSignalSpy selected(&dock, &BlockSelectorWindow::animationSelected);
        click(items, 1);
        click(items, 1); // the tool may be another one meanwhile
        QTest::keyClick(items, Qt::Key_Down);
        dock.selectAnimation(f.block(0)->id());
        QCOMPARE(dock.list()->selected(), f.block(0).data());
        dock.selectAnimation(QUuid::createUuid());
        QVERIFY(!dock.list()->selected());
        const auto door = QVariant::fromValue(f.block(1));
        QCOMPARE(selected, (Signals{{door}, {door}, {QVariant::fromValue(f.block(2))}}));

        f.blocks->createBoundTileAnimation("Lift");
        f.blocks->removeAnimation(f.animation->id());
        QCOMPARE(names(dock), "Door Water Lift");
        dock.setTileSet(f.project.createTileSet("Others", f.palette->id(), 16));
        QCOMPARE(dock.placeholderText(), "The tile set has no map objects");
        f.blocks->createBoundTileAnimation("Unseen");
        QVERIFY(!dock.isActive() && names(dock).isEmpty());
        dock.setTileSet(f.tiles);
        delete f.blocks;
        QVERIFY(!dock.isActive());
        delete f.tiles;
        QCOMPARE(dock.placeholderText(), "No active tile set");
    }

    void spritesAreThoseOfTheBank()
    {
        auto f = std::make_unique<Fixture>();
        MapSpritesWindow dock;
        dock.resize(300, 400);
        dock.setProject(&f->project);
        dock.show();
        auto *sprites = dock.findChild<QListView *>("sprites");
        const auto *animations = dock.findChild<List *>();
        QSignalSpy single(&dock, &MapSpritesWindow::spriteSelected);
        QSignalSpy animated(&dock, &MapSpritesWindow::spriteAnimationSelected);
        const QUuid id = f->bank->id();
        click(sprites, 2);
        click(sprites, 2);
        click(dock.findChild<QListWidget *>(), 0);
        QVERIFY(!sprites->currentIndex().isValid() && !sprites->selectionModel()->hasSelection());
        click(sprites, 0);
        QVERIFY(!animations->selected());

        // what was chosen on the map is shown, not told
        const QPointer<SpriteBank> second = f->makeBank();
        second->addSprite();
        Map::PlacedSprite placed = f->sprite(1, {});
        placed.bank = second->id();
        dock.selectSprite(placed);
        QCOMPARE(dock.bank(), second);
        QCOMPARE(sprites->currentIndex().row(), 1);
        QCOMPARE(names(dock), "");
        dock.selectSprite(f->animated({}));
        QCOMPARE(animations->selected(), f->run.data());
        placed.bank = QUuid::createUuid(); // one that is gone
        dock.selectSprite(placed);
        QCOMPARE(dock.bank(), f->bank);
        QCOMPARE(single, (Signals{{id, 2}, {id, 2}, {id, 0}}));
        QCOMPARE(animated, (Signals{{QVariant::fromValue(f->run)}}));

        f->bank->addSprite();
        f->bank->newAnimation()->setName("Jump");
        QCOMPARE(sprites->model()->rowCount(), 5);
        QCOMPARE(names(dock), "Run Jump");
        dock.findChild<QComboBox *>()->setCurrentIndex(1);
        QCOMPARE(dock.bank(), second);
        f->project.deleteSpriteBank(second->id());
        QCOMPARE(dock.bank(), f->bank);
        f->project.deleteSpriteBank(id);
        QVERIFY(!dock.isActive() && !dock.bank());
        f->makeBank();
        QVERIFY(dock.isActive());
        f.reset();
        QVERIFY(!dock.isActive());
        dock.grab();
    }
};

QUENMORA_TEST_MAIN(TestMapDocks)
#include "tst_mapdocks.moc"
