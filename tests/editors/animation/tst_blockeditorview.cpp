#include "editors/animation/blockeditorview.h"

#include "editors/animation/animationeditorwidget.h"

#include "support/animationtab.h"
#include "support/testmain.h"

#include <QComboBox>
#include <QLineEdit>
#include <QSignalSpy>
#include <QSpinBox>

using BlockEditor::View;
using Control = AnimationControlWidget;
using namespace Quenmora::Ui;

namespace {

/// A block set with one block, "Door": 2×1 cells, three frames, delay 2.
struct Fixture : AnimationTab<View>
{
    QPointer<TileSet> tiles = project.createTileSet("Tiles", palette->id(), 8);
    QPointer<MapObjects> blocks = project.createBlockList("Blocks", tiles->id());
    QPointer<TileAnimation> door = blocks->createBoundTileAnimation("Door");

    Fixture()
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
        QList<int> numbers;
        for (const QString &name : names)
            numbers += field<QSpinBox>(name)->value();
        return numbers;
    }
};

} // namespace

class TestBlockEditorView : public QObject
{
    Q_OBJECT

private slots:
    void toolBarShowsAndSetsTheProperties()
    {
        Fixture f;
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
        QCOMPARE(f.view->title(), "Animation: Doors");
        QCOMPARE(f.field<QSpinBox>("Delay")->text(), "None");

        // a block that is not shown any more is left alone
        const auto other = f.blocks->createBoundTileAnimation("Lift");
        f.list()->select(other);
        f.setNumbers({{"Width", 7}});
        QVERIFY(f.door->size() == QSize(16, 3) && other->size() == QSize(7, 1));
    }

    void playsAtTheDelayAndWraps()
    {
        Fixture f;
        QCOMPARE(f.editor()->frameInterval(), 60);
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
    }

    void toolsChangeTheSelectedCell()
    {
        Fixture f;
        f.door->frame(0)->setCells({{{}, {1, 4, false, true, false}}});
        f.cells()->setSelectedCell({1, 0});
        QVERIFY(f.tool(Mirror)->isChecked() && !f.tool(Flip)->isChecked());
        QCOMPARE(f.numbers({"Index", "Palette offset"}), QList<int>({1, 4}));
        f.setNumbers({{"Palette offset", 16}, {"Index", 6}});
        for (const ToolButton button : {RotateCW, Flip, Mirror, ZoomIn})
            f.tool(button)->trigger();
        QCOMPARE(f.door->frame(0)->cell(0, 1), (AnimationFrame::Cell{6, 15, true, false, true}));
        QCOMPARE(f.cells()->zoom(), 16);

        const QSignalSpy edited(f.view.get(), &View::tileDoubleClicked);
        QTest::mouseDClick(f.cells(), Qt::LeftButton, Qt::NoModifier, f.cells()->cellRect({1, 0}).center());
        QCOMPARE(edited, (QList<QVariantList>{{7}})); // counted from 1

        f.press(Control::Next); // the buttons show the cell of that frame
        QVERIFY(!f.tool(Flip)->isChecked());
        f.tiles->setTileOffset(6, 2);
        QCOMPARE(f.tool(PaintPalette)->toolTip(), "Update palette offsets to default values");
        f.tool(PaintPalette)->trigger();
        QCOMPARE(f.door->frame(0)->cell(0, 1).offset, 2);
    }

    void addsClonesAndDeletesAnimations()
    {
        Fixture f;
        const QSignalSpy added(f.view.get(), &View::animationAdded);
        emit f.list()->addRequested();
        const auto *made = qobject_cast<TileAnimation *>(f.editor()->animation());
        QVERIFY(made->frameCount() == 1 && made->tileSet() == f.tiles);
        QCOMPARE(added.last().first().value<TileAnimation *>(), made);
        emit f.list()->cloneRequested(f.door);
        QCOMPARE(f.view->title(), "Animation: Door (Copy)");
        QCOMPARE(added.count(), 2);
        f.list()->select(f.door);
        f.blocks->createBoundTileAnimation("Lift"); // by others
        QCOMPARE(f.texts(), QStringList({"Door", "New Object", "Door (Copy)", "Lift"}));
        QCOMPARE(f.list()->selected(), f.door);

        bool removed = false;
        connect(f.view.get(), &View::animationRemoved, this, [&](TileAnimation *animation) {
            removed = animation == f.door && f.blocks->contains(animation->id()); // still there
        });
        f.answer = false;
        emit f.list()->removeRequested();
        QVERIFY(!removed && f.editor()->animation() == f.door);
        f.answer = true;
        f.list()->setFocus();
        QTest::keyClick(f.list()->focusProxy(), Qt::Key_Delete);
        QVERIFY(removed && !f.door && !f.editor()->isEnabled() && f.texts().size() == 3);
        f.list()->select(nullptr);
        emit f.list()->removeRequested();
        QCOMPARE(f.questions, QStringList(2, "Delete? Are you sure you want to remove this animation?"));
    }

    void tabLeadsFromTheListToTheCells()
    {
        Fixture f;
        f.list()->setFocus();
        for (int i = 0; i < 11; ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), f.cells());
    }

    void buttonsMoveAddAndDeleteFrames()
    {
        Fixture f;
        QStringList labels;
        for (const auto action : {Control::Previous, Control::Next, Control::Next, Control::Next, Control::Previous,
                                  Control::Last, Control::AddFrame, Control::DeleteFrame, Control::First,
                                  Control::DeleteFrame, Control::DeleteFrame, Control::DeleteFrame}) {
            f.press(action);
            QVERIFY(f.label().startsWith(QString::number(f.cells()->currentFrame() + 1)));
            labels += f.label();
        }
        QCOMPARE(labels.join(", "),
                 "1 of 3, 2 of 3, 3 of 3, 3 of 3, 2 of 3, 3 of 3, 4 of 4, 3 of 3, 1 of 3, 1 of 2, 1 of 1, 1 of 1");
        QCOMPARE(f.door->frame(0)->cell(0, 0), AnimationFrame::Cell()); // the last one became empty
    }

    void assetsMayDie()
    {
        for (const QString what : {"tile set", "block set", "animation", "animation, asking", "view, asking"}) {
            Fixture f;
            const auto remove = [&] {
                if (what == "view, asking")
                    f.view.reset();
                else
                    delete QHash<QChar, QObject *>{{u't', f.tiles}, {u'b', f.blocks}, {u'a', f.door}}.value(what[0]);
                return true;
            };
            f.cells()->setSelectedCell({0, 0});
            f.press(Control::Play);
            if (what.endsWith("asking")) { // whether it is to be deleted
                f.view->setQuestion([&](const QString &, const QString &) { return remove(); });
                emit f.list()->removeRequested();
            } else {
                remove();
            }
            if (!f.view)
                continue;
            QCOMPARE(f.editor()->isPlaying(), !f.door.isNull());
            QVERIFY(f.editor()->isEnabled() == !f.door.isNull() && f.texts().isEmpty() == f.door.isNull());
            f.view->grab();
            f.tool(PaintPalette)->trigger();
            f.press(Control::Next);
            emit f.list()->addRequested();
        }
    }
};

QUENMORA_TEST_MAIN(TestBlockEditorView)
#include "tst_blockeditorview.moc"
