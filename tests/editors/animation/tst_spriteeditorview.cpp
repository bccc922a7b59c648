#include "editors/animation/spriteeditorview.h"

#include "editors/animation/animationlistwidget.h"
#include "editors/animation/spriteanimationeditorwidget.h"
#include "editors/canvas/dragdata.h"
#include "model/project.h"
#include "undo/editrecorder.h"

#include "support/testmain.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QListWidget>
#include <QTest>
#include <QUndoStack>

#include <memory>

using SpriteEditor::View;
using Control = AnimationControlWidget;

namespace {

QImage filled(int index)
{
    QImage image(16, 16, QImage::Format_Indexed8);
    image.setColorTable(QList<QRgb>(256, 0));
    image.fill(uint(index));
    return image;
}

/// A bank of four sprites filled with the colours 0 to 3, with an animation "Run" of four frames that show
/// one sprite each.
struct Fixture
{
    Project project;
    QPointer<Palette> palette;
    QPointer<SpriteBank> bank;
    QPointer<SpriteAnim> run;
    QUndoStack stack;
    std::unique_ptr<EditRecorder> recorder;
    std::unique_ptr<View> view;

    Fixture()
    {
        palette = project.createPalette(CreateAction::DefaultNext, "Colours");
        bank = project.createSpriteBank(Quenmora::EightBit, "Bank", palette->id());
        while (bank->count() < 4)
            bank->addSprite();
        for (int sprite = 0; sprite < 4; ++sprite)
            bank->setImage(sprite, filled(sprite));
        run = bank->newAnimation();
        run->setName("Run");
        for (int frame = 1; frame < 4; ++frame)
            run->addFrame()->setIndex(0, 0, frame);
        recorder = std::make_unique<EditRecorder>(&project, [this](const QUuid &) { return &stack; });
        view = std::make_unique<View>(bank);
        view->setQuestion([](const QString &, const QString &) { return true; });
        view->resize(900, 500);
        view->show();
        view->list()->select(run);
    }
    auto *editor() const { return view->editor(); }
    auto *cells() const { return editor()->frameEditor(); }
    void press(Control::Action action) const { editor()->control()->action(action)->trigger(); }
    QStringList texts() const
    {
        QStringList texts;
        const auto *list = view->list()->findChild<QListWidget *>();
        for (int row = 0; row < list->count(); ++row)
            texts += list->item(row)->text();
        return texts;
    }
    QColor shownColour() const { return cells()->grab().toImage().pixelColor(1, 1); }
    /// The frames that follow one another when playing.
    QList<int> played(int count) const
    {
        QList<int> frames;
        const auto connection = QObject::connect(cells(), &AnimationEditor::FrameEditorWidget::currentFrameChanged,
                                                 cells(), [&](int frame) { frames += frame; });
        press(Control::Play);
        (void)QTest::qWaitFor([&] { return frames.size() >= count; });
        press(Control::Stop);
        QObject::disconnect(connection);
        return frames.first(std::min(count, int(frames.size())));
    }
};

} // namespace

class TestSpriteEditorView : public QObject
{
    Q_OBJECT

private slots:
    void showsSpritesAndFollowsTheirChanges();
    void dropIsOneUndoStep();
    void playsLoopsAndBackAndForth();
    void addsClonesAndDeletes();
    void assetsMayDie();
};

void TestSpriteEditorView::showsSpritesAndFollowsTheirChanges()
{
    Fixture f;
    QCOMPARE(f.texts(), QStringList("Run\n4 frame(s) [1x1]"));
    f.press(Control::Next);
    QCOMPARE(f.shownColour(), f.palette->colour(1));
    f.palette->setColour(1, Qt::green, false);
    QCOMPARE(f.shownColour(), f.palette->colour(1));
    f.bank->deleteSprite(0); // sprite 1 is now sprite 0
    QCOMPARE(f.shownColour(), f.palette->colour(1));
}

void TestSpriteEditorView::dropIsOneUndoStep()
{
    Fixture f;
    const std::unique_ptr<QMimeData> data(SpriteDrag{3}.toMimeData());
    QDragEnterEvent enter(QPoint(3, 3), Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(f.cells(), &enter); // or no drop is delivered
    QDropEvent dropped(QPoint(3, 3), Qt::MoveAction, data.get(), Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(f.cells(), &dropped);
    QCOMPARE(f.run->frame(0)->cell(0, 0).index, 3);
    QCOMPARE(f.stack.count(), 1);
    QCOMPARE(f.stack.text(0), "Edit Frames");
    f.stack.undo();
    QCOMPARE(f.run->frame(0)->cell(0, 0).index, 0);
    QCOMPARE(f.stack.count(), 1);
}

void TestSpriteEditorView::playsLoopsAndBackAndForth()
{
    Fixture f;
    QVERIFY(f.editor()->control()->action(Control::PingPong)->isEnabled());
    QCOMPARE(f.played(5), QList<int>({1, 2, 3, 0, 1}));
    f.press(Control::First);
    f.press(Control::PingPong);
    QCOMPARE(f.played(8), QList<int>({1, 2, 3, 2, 1, 0, 1, 2}));
    f.press(Control::Last);
    QCOMPARE(f.played(2), QList<int>({2, 1}));

    for (const bool playing : {true, false}) { // what was stopped does not go on after a pause
        f.press(playing ? Control::Play : Control::Stop);
        f.press(Control::Pause);
        f.press(Control::Pause);
        QCOMPARE(f.editor()->isPlaying(), playing);
    }
}

void TestSpriteEditorView::addsClonesAndDeletes()
{
    Fixture f;
    emit f.view->list()->cloneRequested(f.run);
    QCOMPARE(f.texts(), QStringList({"Run\n4 frame(s) [1x1]", "Run (copy)\n4 frame(s) [1x1]"}));
    QCOMPARE(f.editor()->control()->text(), "Frame 1 of 4");
    QVERIFY(f.bank->animations().last()->frame(1)->id() != f.run->frame(1)->id());
    emit f.view->list()->addRequested();
    QCOMPARE(f.view->title(), "Animation: New Sprite");
    QCOMPARE(f.bank->animations().size(), 3);
    emit f.view->list()->removeRequested();
    QCOMPARE(f.bank->animations().size(), 2);
    QCOMPARE(f.view->title(), "No animation selected");
    QCOMPARE(f.stack.count(), 0);
}

void TestSpriteEditorView::assetsMayDie()
{
    for (const QString what : {"palette", "bank", "animation"}) {
        Fixture f;
        f.press(Control::Play);
        const QHash<QString, QObject *> assets{{"palette", f.palette}, {"bank", f.bank}, {"animation", f.run}};
        delete assets.value(what);
        QCOMPARE(f.editor()->isPlaying(), what == "palette");
        f.view->grab();
        emit f.view->list()->addRequested();
        QCOMPARE(f.editor()->isEnabled(), what != "bank");
        f.press(Control::Next);
    }
}

QUENMORA_TEST_MAIN(TestSpriteEditorView)
#include "tst_spriteeditorview.moc"
