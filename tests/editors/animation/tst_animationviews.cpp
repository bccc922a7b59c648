// The tabs of block sets and of sprite banks: the list of animations, and the editor of the one that is chosen.

#include "editors/animation/animationeditorwidget.h"
#include "editors/animation/blockeditorview.h"
#include "editors/animation/spriteanimationeditorwidget.h"
#include "editors/animation/spriteeditorview.h"
#include "editors/common/animationlistwidget.h"
#include "model/project.h"
#include "undo/editrecorder.h"

#include "support/modeltools.h"
#include "support/paintwatch.h"
#include "support/testmain.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

using namespace Quenmora::Ui;
using AnimationEditor::AnimationListWidget;
using Control = AnimationControlWidget;

namespace {

/// A tab in a project whose edits are recorded on one stack.
template <typename View>
struct Tab
{
    Project project;
    QPointer<Palette> palette = project.createPalette(CreateAction::DefaultNext, "Colours");
    QUndoStack stack;
    std::unique_ptr<EditRecorder> recorder;
    std::unique_ptr<View> view;
    bool answer = true; ///< to the question whether an animation is to be deleted
    QStringList questions;

    template <typename Asset>
    void open(const QPointer<Asset> &asset)
    {
        recorder = std::make_unique<EditRecorder>(&project, [this](const QUuid &) { return &stack; });
        view = std::make_unique<View>(asset);
        view->setQuestion([this](const QString &title, const QString &text) {
            questions += title + " " + text;
            return answer;
        });
        view->resize(900, 500);
        view->show();
        view->activateWindow();
        (void)QTest::qWaitForWindowActive(view.get());
    }
    auto *editor() const { return view->editor(); }
    auto *cells() const { return editor()->frameEditor(); }
    auto *list() const { return view->list(); }
    void press(Control::Action action) const { editor()->control()->action(action)->trigger(); }
    /// "1 of 3"
    QString label() const { return editor()->control()->text().remove("Frame "); }
    QListWidgetItem *item(int row) const { return list()->template findChild<QListWidget *>()->item(row); }
    /// What the list says.
    QStringList texts() const
    {
        QStringList texts;
        for (int row = 0; item(row); ++row)
            texts += item(row)->text();
        return texts;
    }
    /// The frames that follow one another when playing.
    QList<int> played(int count) const
    {
        QSignalSpy frames(cells(), &AnimationEditor::FrameEditorWidget::currentFrameChanged);
        press(Control::Play);
        (void)QTest::qWaitFor([&] { return frames.size() >= count; });
        press(Control::Stop);
        return valuesOf(frames.mid(0, count), [](const QVariantList &arguments) { return arguments.first().toInt(); });
    }
};

/// A block set with one block, "Door": 2×1 cells, three frames, delay 2.
struct BlockTab : Tab<BlockEditor::View>
{
    QPointer<TileSet> tiles = project.createTileSet("Tiles", palette->id(), 8);
    QPointer<MapObjects> blocks = project.createBlockList("Blocks", tiles->id());
    QPointer<TileAnimation> door = blocks->createBoundTileAnimation("Door");

    BlockTab()
    {
        door->setSize({2, 1});
        for (int frame = 0; frame < 3; ++frame)
            door->addFrame()->setIndex(0, 0, frame);
        door->setDelay(2);
        open(blocks);
        list()->select(door);
    }
    QAction *tool(ToolButton button) const { return editor()->tools()->action(button); }
    template <class Field>
    Field *field(const QString &name) const
    {
        const QList<Field *> fields = editor()->template findChildren<Field *>();
        return *std::ranges::find(fields, name, &Field::accessibleName);
    }
    void setNumbers(const QList<std::pair<QString, int>> &numbers) const
    {
        for (const auto &[name, number] : numbers)
            field<QSpinBox>(name)->setValue(number);
    }
    QList<int> numbers(const QStringList &names) const
    {
        return valuesOf(names, [this](const QString &name) { return field<QSpinBox>(name)->value(); });
    }
};

/// A bank of four sprites filled with the colours 0 to 3, with an animation "Run" of four frames that show
/// one sprite each.
struct SpriteTab : Tab<SpriteEditor::View>
{
    QPointer<SpriteBank> bank = project.createSpriteBank(Quenmora::EightBit, "Bank", palette->id());
    QPointer<SpriteAnim> run = bank->newAnimation();

    SpriteTab()
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
};

} // namespace

class TestAnimationViews : public QObject
{
    Q_OBJECT

private slots:
    void toolBarShowsAndSetsTheProperties()
    {
        BlockTab f;
        f.door->setMapObjectType(MapObjectType::HorizontalPlatform);
        f.stack.clear();
        f.open(f.blocks);
        QVERIFY(!f.list()->selected() && !f.editor()->isEnabled());
        f.list()->select(f.door);
        QCOMPARE(f.stack.count(), 0); // showing is no edit
        auto *name = f.field<QLineEdit>("Name");
        auto *type = f.field<QComboBox>("Type");
        QVERIFY(name->text() == "Door" && type->currentText() == "Horizontal Platform");
        QCOMPARE(f.numbers({"Width", "Height", "Delay"}), QList<int>({2, 1, 2}));

        QTest::keyClicks(name, "s");
        type->setCurrentIndex(0);
        f.setNumbers({{"Width", 99}, {"Height", 3}, {"Delay", -1}});
        QVERIFY(f.door->type() == MapObjectType::Normal && f.door->delay() == 0);
        QVERIFY(f.view->title() == "Animation: Doors" && f.texts() == QStringList{"Doors"});
        QCOMPARE(f.field<QSpinBox>("Delay")->text(), "None");

        // a block that is not shown any more is left alone
        const auto other = f.blocks->createBoundTileAnimation("Lift");
        f.list()->select(other);
        f.setNumbers({{"Width", 7}});
        f.door->setName("Gate");
        QVERIFY(f.door->size() == QSize(16, 3) && other->size() == QSize(7, 1));
        QCOMPARE(f.view->title(), "Animation: Lift");
    }

    void toolsChangeTheSelectedCell()
    {
        BlockTab f;
        f.door->frame(0)->setCells({{{}, {1, 4, false, true, false}}});
        f.cells()->setSelectedCell({1, 0});
        QVERIFY(f.tool(Mirror)->isChecked() && !f.tool(Flip)->isChecked());
        QCOMPARE(f.numbers({"Index", "Palette offset"}), QList<int>({1, 4}));
        f.setNumbers({{"Palette offset", 16}, {"Index", 6}});
        for (const ToolButton button : {RotateCW, Flip, Mirror})
            f.tool(button)->trigger();
        QCOMPARE(f.door->frame(0)->cell(0, 1), (AnimationFrame::Cell{6, 15, true, false, true}));

        const QSignalSpy edited(f.view.get(), &BlockEditor::View::tileDoubleClicked);
        QTest::mouseDClick(f.cells(), Qt::LeftButton, Qt::NoModifier, f.cells()->cellRect({1, 0}).center());
        QCOMPARE(edited, (QList<QVariantList>{{7}})); // counted from 1

        f.press(Control::Next); // the buttons show the cell of that frame
        QVERIFY(!f.tool(Flip)->isChecked());
        f.tiles->setTileOffset(6, 2);
        f.tool(PaintPalette)->trigger();
        QCOMPARE(f.door->frame(0)->cell(0, 1).offset, 2);
    }

    void blocksAreAddedClonedAndDeleted()
    {
        BlockTab f;
        const QSignalSpy added(f.view.get(), &BlockEditor::View::animationAdded);
        f.list()->findChild<QToolButton *>()->click();
        const auto *made = qobject_cast<TileAnimation *>(f.editor()->animation());
        QVERIFY(made->frameCount() == 1 && made->tileSet() == f.tiles);
        QCOMPARE(added.last().first().value<TileAnimation *>(), made);
        f.list()->select(f.door);
        f.list()->findChild<QAction *>("animationList.clone")->trigger();
        QCOMPARE(f.view->title(), "Animation: Door (Copy)");
        QCOMPARE(added.count(), 2);
        f.list()->select(f.door);
        f.blocks->createBoundTileAnimation("Lift"); // by others
        QCOMPARE(f.texts(), QStringList({"Door", "New Object", "Door (Copy)", "Lift"}));
        QCOMPARE(f.list()->selected(), f.door);

        bool removed = false;
        connect(f.view.get(), &BlockEditor::View::animationRemoved, this, [&](TileAnimation *animation) {
            removed = animation == f.door && f.blocks->contains(animation->id()); // still there
        });
        f.answer = false;
        emit f.list()->removeRequested();
        QVERIFY(!removed && f.editor()->animation() == f.door);
        f.answer = true;
        f.list()->setFocus();
        QTest::keyClick(f.list()->focusProxy(), Qt::Key_Delete);
        QVERIFY(removed && !f.door && !f.editor()->isEnabled() && f.texts().size() == 3);
        QVERIFY(!f.list()->selected()); // and not what was beside it
        emit f.list()->removeRequested();
        QCOMPARE(f.questions, QStringList(2, "Delete? Are you sure you want to remove this animation?"));
    }

    void buttonsMoveAddAndDeleteFrames()
    {
        BlockTab f;
        QStringList labels;
        connect(f.editor()->control(), &Control::buttonClicked, this, [&] { labels += f.label(); });
        for (const auto action : {Control::Previous, Control::Next, Control::Next, Control::Next, Control::Previous,
                                  Control::Last, Control::AddFrame, Control::DeleteFrame, Control::First,
                                  Control::DeleteFrame, Control::DeleteFrame, Control::DeleteFrame}) {
            f.press(action);
            QCOMPARE(f.label().section(' ', 0, 0).toInt(), f.cells()->currentFrame() + 1);
        }
        QCOMPARE(labels.join(", "),
                 "1 of 3, 2 of 3, 3 of 3, 3 of 3, 2 of 3, 3 of 3, 4 of 4, 3 of 3, 1 of 3, 1 of 2, 1 of 1, 1 of 1");
        QCOMPARE(f.door->frame(0)->cell(0, 0), AnimationFrame::Cell()); // the last one became empty
        f.press(Control::AddFrame);
        f.door->deleteFrame(1); // by others
        QVERIFY(f.label() == "1 of 1" && f.cells()->currentFrame() == 0);
    }

    void playsAtTheDelay()
    {
        BlockTab f;
        QCOMPARE(f.editor()->frameInterval(), 60);
        QVERIFY(!f.editor()->control()->action(Control::PingPong)->isEnabled());
        f.setNumbers({{"Delay", 0}});
        QCOMPARE(f.editor()->frameInterval(), 20);
        QCOMPARE(f.played(4), QList<int>({1, 2, 0, 1}));
        const std::function<void()> ends[] = {[&] { f.list()->select(nullptr); }, [&] { f.view->hide(); }};
        for (const auto &end : ends) {
            f.list()->select(f.door);
            f.press(Control::Play);
            QVERIFY(f.editor()->isPlaying());
            end();
            QVERIFY(!f.editor()->isPlaying());
        }
        f.door->setDelay(std::numeric_limits<int>::max()); // as a file may have it
        QVERIFY(f.editor()->frameInterval() > 0);
    }

    void spritesPlayLoopsAndBackAndForth()
    {
        SpriteTab f;
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

    void picturesFollowTheSprites()
    {
        SpriteTab f;
        const auto listed = [&f] { return f.item(0)->icon().pixmap(32).toImage().pixelColor(1, 1); };
        f.press(Control::Next);
        f.view->show();
        PaintWatch watch(f.list()->findChild<QListWidget *>()->viewport());
        QVERIFY(!watch.after([&f] { f.palette->setColour(0, Qt::green, false); }).isEmpty());
        QCOMPARE(listed(), f.palette->colour(0));
        QVERIFY(!watch.after([&f] { f.run->frame(0)->setIndex(0, 0, 3); }).isEmpty());
        QCOMPARE(listed(), f.palette->colour(3));
        f.bank->deleteSprite(0); // sprite 1 is now sprite 0
        const auto shown = [&f] { return f.cells()->grab().toImage().pixelColor(1, 1); };
        QCOMPARE(shown(), f.palette->colour(1));
        f.editor()->findChild<QAction *>("animation.onionSkin")->trigger();
        QVERIFY(shown() != f.palette->colour(1));
        f.press(Control::Play); // in which the frame before is not to be seen
        QCOMPARE(shown(), f.palette->colour(1));
    }

    void spritesAreAddedClonedAndDeleted()
    {
        SpriteTab f;
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

    void everythingMayDieWhileItIsAsked()
    {
        for (const bool viewDies : {false, true}) {
            BlockTab f;
            f.view->setQuestion([&](const QString &, const QString &) {
                viewDies ? f.view.reset() : delete f.door;
                return true;
            });
            emit f.list()->removeRequested();
            QVERIFY(!f.view || (!f.editor()->isEnabled() && f.texts().isEmpty()));
        }
    }
};

QUENMORA_TEST_MAIN(TestAnimationViews)
#include "tst_animationviews.moc"
