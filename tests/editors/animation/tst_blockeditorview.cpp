#include "editors/animation/blockeditorview.h"

#include "editors/animation/animationeditorwidget.h"
#include "editors/animation/animationlistwidget.h"
#include "editors/animation/blockeditortoolbar.h"
#include "model/project.h"
#include "undo/editclock.h"
#include "undo/editrecorder.h"

#include "support/testmain.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QToolButton>
#include <QUndoStack>

#include <memory>

using AnimationEditor::AnimationListWidget;
using BlockEditor::View;
using Control = AnimationControlWidget;

namespace {

/// A block set with one block, "Door": 2×1 cells, three frames, delay 2; its tab and what records its edits.
struct Fixture
{
    Project project;
    QPointer<TileSet> tiles;
    QPointer<MapObjects> blocks;
    QPointer<TileAnimation> door;
    QUndoStack stack;
    std::unique_ptr<EditRecorder> recorder;
    std::unique_ptr<View> view;
    int questions = 0;
    bool answer = true;

    Fixture()
    {
        const auto palette = project.createPalette(CreateAction::DefaultNext, "Colours");
        tiles = project.createTileSet("Tiles", palette->id(), 8);
        blocks = project.createBlockList("Blocks", tiles->id());
        door = blocks->createBoundTileAnimation("Door");
        door->setSize({2, 1});
        for (int frame = 0; frame < 3; ++frame)
            door->addFrame()->setIndex(0, 0, frame);
        door->setDelay(2);
        recorder = std::make_unique<EditRecorder>(&project, [this](const QUuid &) { return &stack; });
        view = std::make_unique<View>(blocks);
        view->setQuestion([this](const QString &title, const QString &text) {
            ++questions;
            return answer && title == "Delete?" && text == "Are you sure you want to remove this animation?";
        });
        view->resize(900, 500);
        view->show();
    }
    auto *editor() const { return view->editor(); }
    auto *cells() const { return editor()->frameEditor(); }
    void press(Control::Action action) const { editor()->control()->action(action)->trigger(); }
    QString label() const { return editor()->control()->text(); }
    QStringList names() const
    {
        QStringList names;
        for (const auto &animation : view->list()->animations())
            names += animation->name();
        return names;
    }
    template <class Field>
    Field *field(const QString &name) const
    {
        for (Field *found : editor()->template findChildren<Field *>()) {
            if (found->accessibleName() == name)
                return found;
        }
        return nullptr;
    }
    void showDoor() const { view->list()->select(door); }
};

} // namespace

class TestBlockEditorView : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { EditClock::setSource({}); }

    void opensWithNothingSelected();
    void toolBarShowsAndSetsTheProperties();
    void playsAtTheDelayAndWraps();
    void toolsChangeTheSelectedCell();
    void undoRefreshesWhatIsShown();
    void addsClonesAndDeletesAnimations();
    void doubleClickTellsTheTileNumber();
    void buttonsMoveAddAndDeleteFrames();
    void assetsMayDie_data();
    void assetsMayDie();
};

void TestBlockEditorView::opensWithNothingSelected()
{
    Fixture f;
    QCOMPARE(f.names(), QStringList("Door"));
    QCOMPARE(f.view->list()->selected(), nullptr);
    QVERIFY(!f.editor()->isEnabled());
    QCOMPARE(f.view->title(), "No animation selected");
    f.showDoor();
    QVERIFY(f.editor()->isEnabled());
    QCOMPARE(f.view->title(), "Animation: Door");
    QCOMPARE(f.label(), "Frame 1 of 3");
    QCOMPARE(f.stack.count(), 0); // showing is no edit
    for (const QToolButton *button : f.view->findChildren<QToolButton *>()) {
        const bool isQtsOwn = button->objectName().startsWith("qt_");
        QVERIFY(isQtsOwn || !button->accessibleName().isEmpty() || !button->text().isEmpty());
    }
}

void TestBlockEditorView::toolBarShowsAndSetsTheProperties()
{
    Fixture f;
    f.door->setMapObjectType(MapObjectType::HorizontalPlatform);
    f.showDoor();
    auto *name = f.field<QLineEdit>("Name");
    auto *type = f.field<QComboBox>("Type");
    auto *width = f.field<QSpinBox>("Width");
    auto *height = f.field<QSpinBox>("Height");
    auto *delay = f.field<QSpinBox>("Delay");
    QCOMPARE(name->text(), "Door");
    QCOMPARE(type->currentText(), "Horizontal Platform");
    QCOMPARE(QList<int>({width->value(), height->value(), delay->value()}), QList<int>({2, 1, 2}));
    QCOMPARE(QList<int>({width->minimum(), width->maximum(), height->minimum(), height->maximum(), delay->maximum()}),
             QList<int>({1, 16, 1, 16, 50}));

    QTest::keyClicks(name, "s");
    type->setCurrentIndex(0);
    width->setValue(5);
    height->setValue(3);
    delay->setValue(0);
    QCOMPARE(f.door->name(), "Doors");
    QCOMPARE(f.view->title(), "Animation: Doors");
    QCOMPARE(f.door->type(), MapObjectType::Normal);
    QCOMPARE(f.door->size(), QSize(5, 3));
    QCOMPARE(f.door->delay(), 0);
    QCOMPARE(delay->text(), "None");
    QCOMPARE(f.cells()->size(), QSize(5, 3) * f.cells()->cellSize());

    // a block that is not shown any more is left alone
    const auto other = f.blocks->createBoundTileAnimation("Lift");
    f.view->list()->select(other);
    width->setValue(7);
    QCOMPARE(f.door->size(), QSize(5, 3));
    QCOMPARE(other->size(), QSize(7, 1));
}

void TestBlockEditorView::playsAtTheDelayAndWraps()
{
    Fixture f;
    f.showDoor();
    QCOMPARE(f.editor()->frameInterval(), 60);
    f.field<QSpinBox>("Delay")->setValue(0);
    QCOMPARE(f.editor()->frameInterval(), 20);
    QList<int> frames;
    connect(f.cells(), &AnimationEditor::FrameEditorWidget::currentFrameChanged, this,
            [&](int frame) { frames += frame; });
    f.press(Control::Play);
    QTRY_VERIFY(frames.size() >= 4);
    f.press(Control::Pause);
    QVERIFY(!f.editor()->isPlaying());
    QCOMPARE(frames.first(4), QList<int>({1, 2, 0, 1}));
    QCOMPARE(f.label(), QStringLiteral("Frame %1 of 3").arg(frames.last() + 1));
    f.press(Control::Play);
    QVERIFY(f.editor()->isPlaying());
    f.view->list()->select(nullptr);
    QVERIFY(!f.editor()->isPlaying());
    f.showDoor();
    f.press(Control::Play);
    f.view->hide();
    QVERIFY(!f.editor()->isPlaying());
}

void TestBlockEditorView::toolsChangeTheSelectedCell()
{
    Fixture f;
    f.showDoor();
    using namespace Quenmora::Ui;
    ToolPalette &tools = *f.editor()->tools();
    QVERIFY(!tools.action(Flip)->isEnabled());
    f.door->frame(0)->setMirror(0, 1, true);
    f.door->frame(0)->setOffset(0, 1, 4);
    f.cells()->setSelectedCell({1, 0});
    QVERIFY(tools.action(Mirror)->isChecked());
    QVERIFY(!tools.action(Flip)->isChecked());
    auto *offset = f.field<QSpinBox>("Palette offset");
    QCOMPARE(offset->value(), 4);
    offset->setValue(15);
    f.field<QSpinBox>("Tile")->setValue(6);
    for (const ToolButton button : {RotateCW, Flip, Mirror})
        tools.action(button)->trigger();
    QCOMPARE(f.door->frame(0)->cell(0, 1), (AnimationFrame::Cell{6, 15, true, false, true}));

    f.press(Control::Next); // the buttons show the cell of that frame
    QVERIFY(!tools.action(Flip)->isChecked());
    f.tiles->setTileOffset(6, 2);
    QCOMPARE(tools.action(PaintPalette)->toolTip(), "Update palette offsets to default values");
    tools.action(PaintPalette)->trigger();
    QCOMPARE(f.door->frame(0)->cell(0, 1).offset, 2);

    const int zoom = f.cells()->zoom();
    tools.action(ZoomIn)->trigger();
    QCOMPARE(f.cells()->zoom(), 2 * zoom);
}

void TestBlockEditorView::undoRefreshesWhatIsShown()
{
    Fixture f;
    qint64 now = 10'000;
    EditClock::setSource([&now] { return now += 1000; });
    f.showDoor();
    const auto before = f.door->state();
    f.field<QSpinBox>("Width")->setValue(4);
    f.field<QSpinBox>("Delay")->setValue(9);
    f.field<QComboBox>("Type")->setCurrentIndex(1);
    f.cells()->setSelectedCell({3, 0});
    f.editor()->tools()->action(Quenmora::Ui::Flip)->trigger();
    f.press(Control::AddFrame);
    const auto after = f.door->state();
    QCOMPARE(f.stack.count(), 5);

    f.stack.undo();
    QCOMPARE(f.label(), "Frame 3 of 3"); // the one shown has gone
    f.stack.setIndex(0);
    QVERIFY(f.door->state() == before);
    QCOMPARE(f.label(), "Frame 3 of 3");
    QCOMPARE(f.field<QSpinBox>("Width")->value(), 2);
    QCOMPARE(f.field<QSpinBox>("Delay")->value(), 2);
    QCOMPARE(f.field<QComboBox>("Type")->currentIndex(), 0);
    QCOMPARE(f.editor()->frameInterval(), 60);
    QCOMPARE(f.cells()->size(), QSize(2, 1) * f.cells()->cellSize());
    QCOMPARE(f.cells()->selectedCell(), AnimationEditor::FrameEditorWidget::NoCell);
    QVERIFY(!f.editor()->tools()->action(Quenmora::Ui::Flip)->isChecked());
    f.stack.setIndex(5);
    QVERIFY(f.door->state() == after);
    QCOMPARE(f.label(), "Frame 3 of 4");
    QCOMPARE(f.stack.count(), 5);
}

void TestBlockEditorView::addsClonesAndDeletesAnimations()
{
    Fixture f;
    QSignalSpy added(f.view.get(), &View::animationAdded);
    QString removed;
    connect(f.view.get(), &View::animationRemoved, this, [&](TileAnimation *animation) {
        removed = animation->name(); // still there
        QVERIFY(f.blocks->contains(animation->id()));
    });
    emit f.view->list()->addRequested();
    QCOMPARE(f.names(), QStringList({"Door", "New Object"}));
    QPointer<Animation> made = f.editor()->animation();
    QCOMPARE(f.view->list()->selected(), made);
    QCOMPARE(made->frameCount(), 1);
    QCOMPARE(qobject_cast<TileAnimation *>(made)->tileSet(), f.tiles);
    QCOMPARE(added.takeFirst().first().value<TileAnimation *>(), made);

    f.showDoor();
    emit f.view->list()->cloneRequested(f.door);
    QCOMPARE(f.names(), QStringList({"Door", "New Object", "Door (Copy)"}));
    QCOMPARE(f.view->title(), "Animation: Door (Copy)");
    QCOMPARE(f.label(), "Frame 1 of 3");
    QCOMPARE(added.count(), 1);

    f.view->list()->select(made);
    f.answer = false;
    emit f.view->list()->removeRequested();
    QVERIFY(made && removed.isEmpty());
    QCOMPARE(f.editor()->animation(), made);
    f.answer = true;
    emit f.view->list()->removeRequested();
    QCOMPARE(removed, "New Object");
    QVERIFY(!made);
    QCOMPARE(f.names(), QStringList({"Door", "Door (Copy)"}));
    QVERIFY(!f.editor()->isEnabled());
    emit f.view->list()->removeRequested(); // nothing is selected
    QCOMPARE(f.questions, 2);

    f.showDoor();
    const auto lift = f.blocks->createBoundTileAnimation("Lift"); // by others
    QCOMPARE(f.names().last(), "Lift");
    QCOMPARE(f.view->list()->selected(), f.door);
    f.blocks->removeAnimation(f.door->id());
    QVERIFY(!f.editor()->isEnabled());
    QCOMPARE(f.view->title(), "No animation selected");
}

void TestBlockEditorView::doubleClickTellsTheTileNumber()
{
    Fixture f;
    f.showDoor();
    f.press(Control::Last);
    const QSignalSpy clicked(f.view.get(), &View::tileDoubleClicked);
    const QPoint position = f.cells()->cellRect({0, 0}).center();
    QTest::mouseClick(f.cells(), Qt::LeftButton, Qt::NoModifier, position);
    QTest::mouseDClick(f.cells(), Qt::LeftButton, Qt::NoModifier, position);
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.first().first().toInt(), 3); // counted from 1
}

void TestBlockEditorView::buttonsMoveAddAndDeleteFrames()
{
    Fixture f;
    f.showDoor();
    QStringList labels;
    for (const auto action : {Control::Previous, Control::Next, Control::Next, Control::Next, Control::Previous,
                              Control::Last, Control::AddFrame, Control::DeleteFrame, Control::First,
                              Control::DeleteFrame, Control::DeleteFrame, Control::DeleteFrame}) {
        f.press(action);
        QCOMPARE(f.cells()->currentFrame(), f.editor()->currentFrame());
        QVERIFY(f.label().startsWith(QStringLiteral("Frame %1 ").arg(f.editor()->currentFrame() + 1)));
        labels += f.label().remove("Frame ");
    }
    QCOMPARE(labels.join(", "),
             "1 of 3, 2 of 3, 3 of 3, 3 of 3, 2 of 3, 3 of 3, 4 of 4, 3 of 3, 1 of 3, 1 of 2, 1 of 1, 1 of 1");
    QCOMPARE(f.door->frame(0)->cell(0, 0), AnimationFrame::Cell()); // the last one became empty
}

void TestBlockEditorView::assetsMayDie_data()
{
    QTest::addColumn<std::function<void(Fixture &)>>("remove");
    const auto row = [](const char *name, const std::function<void(Fixture &)> &remove) {
        QTest::newRow(name) << remove;
    };
    const auto whileAsking = [](Fixture &f, const std::function<void(Fixture &)> &remove) {
        f.view->setQuestion([&f, remove](const QString &, const QString &) {
            remove(f);
            return true;
        });
        emit f.view->list()->removeRequested();
    };
    row("tile set", [](Fixture &f) { delete f.tiles; });
    row("block set", [](Fixture &f) { delete f.blocks; });
    row("animation", [](Fixture &f) { delete f.door; });
    row("animation, asking", [=](Fixture &f) { whileAsking(f, [](Fixture &g) { delete g.door; }); });
    row("view, asking", [=](Fixture &f) { whileAsking(f, [](Fixture &g) { g.view.reset(); }); });
}

void TestBlockEditorView::assetsMayDie()
{
    QFETCH(std::function<void(Fixture &)>, remove);
    Fixture f;
    f.showDoor();
    f.cells()->setSelectedCell({0, 0});
    f.press(Control::Play);
    remove(f);
    if (!f.view)
        return;
    QCOMPARE(f.editor()->isPlaying(), !f.door.isNull());
    QCOMPARE(f.editor()->isEnabled(), !f.door.isNull());
    QCOMPARE(f.names().isEmpty(), f.door.isNull());
    f.view->grab();
    f.editor()->tools()->action(Quenmora::Ui::PaintPalette)->trigger();
    f.press(Control::Next);
    emit f.view->list()->addRequested();
}

QUENMORA_TEST_MAIN(TestBlockEditorView)
#include "tst_blockeditorview.moc"
