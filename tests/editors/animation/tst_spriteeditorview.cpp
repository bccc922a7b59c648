#include "editors/animation/spriteeditorview.h"

#include "editors/animation/spriteanimationeditorwidget.h"

#include "support/animationtab.h"
#include "support/modeltools.h"
#include "support/testmain.h"

using SpriteEditor::View;
using Control = AnimationControlWidget;

namespace {

/// A bank of four sprites filled with the colours 0 to 3, with an animation "Run" of four frames that show
/// one sprite each.
struct Fixture : AnimationTab<View>
{
    QPointer<SpriteBank> bank = project.createSpriteBank(Quenmora::EightBit, "Bank", palette->id());
    QPointer<SpriteAnim> run = bank->newAnimation();

    Fixture()
    {
        run->setName("Run");
        for (int sprite = 0; sprite < 4; ++sprite) {
            if (sprite > 0) {
                bank->addSprite();
                run->addFrame()->setIndex(0, 0, sprite);
            }
            bank->setImage(sprite, plainImage({16, 16}, sprite));
        }
        open(bank);
        list()->select(run);
    }
    QColor shownColour() const { return cells()->grab().toImage().pixelColor(1, 1); }
};

} // namespace

class TestSpriteEditorView : public QObject
{
    Q_OBJECT

private slots:
    void showsSpritesAndFollowsTheirChanges()
    {
        Fixture f;
        f.press(Control::Next);
        QCoreApplication::processEvents(); // the list has drawn its pictures
        const auto *items = f.list()->findChild<QListWidget *>();
        f.palette->setColour(0, Qt::green, false);
        QTRY_COMPARE(items->item(0)->icon().pixmap(32).toImage().pixelColor(1, 1), f.palette->colour(0));
        f.bank->deleteSprite(0); // sprite 1 is now sprite 0
        QCOMPARE(f.shownColour(), f.palette->colour(1));
    }

    void playsLoopsAndBackAndForth()
    {
        Fixture f;
        QCOMPARE(f.played(5), QList<int>({1, 2, 3, 0, 1}));
        f.press(Control::First);
        f.press(Control::PingPong);
        QCOMPARE(f.played(8), QList<int>({1, 2, 3, 2, 1, 0, 1, 2}));
        f.press(Control::Last);
        QCOMPARE(f.played(2), QList<int>({2, 1}));

        for (const bool playing : {true, false}) { // what was stopped does not go on after a pause
            f.press(playing ? Control::Play : Control::Stop);
            f.press(Control::Pause);
            QVERIFY(!f.editor()->isPlaying());
            f.press(Control::Pause);
            QCOMPARE(f.editor()->isPlaying(), playing);
        }
    }

    void addsClonesAndDeletes()
    {
        Fixture f;
        emit f.list()->cloneRequested(f.run);
        QCOMPARE(f.texts(), QStringList({"Run\n4 frame(s) [1x1]", "Run (copy)\n4 frame(s) [1x1]"}));
        emit f.list()->addRequested();
        QCOMPARE(f.view->title(), "Animation: New Sprite");
        emit f.list()->removeRequested();
        QVERIFY(f.bank->animations().size() == 2 && f.stack.count() == 0);
        QCOMPARE(f.view->title(), "No animation selected");
        f.list()->select(f.run);
        f.press(Control::Play);
        delete f.palette;
        QVERIFY(f.editor()->isPlaying());
        f.view->grab();
        delete f.bank;
        QVERIFY(!f.editor()->isPlaying() && f.texts().isEmpty());
        f.view->grab();
        emit f.list()->addRequested();
        QVERIFY(!f.editor()->isEnabled());
    }
};

QUENMORA_TEST_MAIN(TestSpriteEditorView)
#include "tst_spriteeditorview.moc"
