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
    QPointer<SpriteBank> foes;

    Fixture()
    {
        run->setName("Run");
        for (const auto *name : {"Door", "Water"})
            blocks->createBoundTileAnimation(name)->addFrame();
        foes = project.createSpriteBank(Quenmora::FourBit, "Foes", palette->id());
    }
};

QString names(const QWidget &parent)
{
    return valuesOf(parent.findChild<List *>()->animations(), [](const auto &shown) { return shown->name(); })
        .join(' ');
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
    void objectsAreThoseOfTheTileSet()
    {
        Fixture f;
        BlockSelectorWindow dock;
        dock.setTileSet(f.tiles);
        dock.show();
        auto *items = dock.list()->findChild<QListWidget *>();
        QSignalSpy selected(&dock, &BlockSelectorWindow::animationSelected);
        click(items, 1);
        click(items, 1); // the tool may be another one meanwhile
        QTest::keyClick(items, Qt::Key_Down);
        dock.selectAnimation(f.animation->id()); // is shown, not told
        QCOMPARE(dock.list()->selected(), f.animation.data());
        const auto block = [&f](int row) { return QVariant::fromValue(f.blocks->animations().at(row)); };
        QCOMPARE(selected, (Signals{{block(1)}, {block(1)}, {block(2)}}));

        f.blocks->createBoundTileAnimation("Lift");
        f.blocks->removeAnimation(f.animation->id());
        QCOMPARE(names(dock), "Door Water Lift");
        dock.setTileSet(f.project.createTileSet("Others", f.palette->id(), 16));
        f.blocks->createBoundTileAnimation("Unseen");
        QVERIFY(!dock.isActive() && names(dock).isEmpty());
        dock.setTileSet(f.tiles);
        QVERIFY(dock.isActive());
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
        click(dock.findChild<QListWidget *>(), 0);
        QVERIFY(!sprites->currentIndex().isValid() && !sprites->selectionModel()->hasSelection());
        click(sprites, 0);
        click(sprites, 0);
        QVERIFY(!animations->selected());

        // what was chosen on the map is shown, not told
        Map::PlacedSprite placed = f->sprite(0, {});
        placed.bank = f->foes->id();
        dock.selectSprite(placed);
        QCOMPARE(dock.bank(), f->foes);
        QVERIFY(sprites->currentIndex().row() == 0 && names(dock).isEmpty());
        dock.selectSprite(f->animated({}));
        QCOMPARE(animations->selected(), f->run.data());
        placed.bank = QUuid::createUuid(); // one that is gone
        dock.selectSprite(placed);
        QCOMPARE(dock.bank(), f->bank);
        QCOMPARE(single, (Signals{{id, 2}, {id, 0}, {id, 0}}));
        QCOMPARE(animated, (Signals{{QVariant::fromValue(f->run)}}));

        f->bank->addSprite();
        f->bank->newAnimation()->setName("Jump");
        QVERIFY(sprites->model()->rowCount() == 5 && names(dock) == "Run Jump");
        dock.findChild<QComboBox *>()->setCurrentIndex(1);
        QCOMPARE(dock.bank(), f->foes);
        f->project.deleteSpriteBank(f->foes->id());
        QCOMPARE(dock.bank(), f->bank);
        f.reset();
        QVERIFY(!dock.isActive());
        dock.grab();
    }
};

QUENMORA_TEST_MAIN(TestMapDocks)
#include "tst_mapdocks.moc"
