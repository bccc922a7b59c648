#include "editors/common/animationlistwidget.h"

#include "model/tileanimation.h"
#include "support/paintwatch.h"
#include "support/testmain.h"

#include <QAction>
#include <QListWidget>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using List = AnimationEditor::AnimationListWidget;

namespace {

using Animations = QList<QPointer<Animation>>;

/// Three animations in a list.
struct Fixture
{
    TileAnimation torch;
    TileAnimation door;
    TileAnimation water;
    List list;
    QListWidget &items{*list.findChild<QListWidget *>()};

    explicit Fixture(List::Flags flags = List::PlainList) : list(flags)
    {
        torch.setName("Torch");
        door.setName("Door");
        water.setName("Water");
        water.addFrame();
        list.setAnimations(Animations{&torch, &door, &water});
    }
    QString text(int row) const { return items.item(row)->text(); }
};

} // namespace

class TestAnimationList : public QObject
{
    Q_OBJECT

private slots:
    void keepsTheSelectionWhileItCan()
    {
        Fixture f;
        f.list.select(&f.door);
        QSignalSpy changed(&f.list, &List::selectedItemChanged);
        f.list.setAnimations(Animations{&f.door, &f.water});
        QCOMPARE(f.list.selected(), &f.door);
        f.list.setAnimations(Animations{&f.water});
        f.list.select(&f.water);
        f.list.removeAnimation(&f.water);
        QList<Animation *> selected;
        for (const QVariantList &signal : changed)
            selected.append(signal.first().value<Animation *>());
        QCOMPARE(selected, (QList<Animation *>{nullptr, &f.water, nullptr}));
    }

    void followsItsAnimations()
    {
        Fixture f;
        f.door.setName("Candle");
        QCOMPARE(f.text(1), "Candle");
        f.list.show();
        PaintWatch watch(f.items.viewport());
        QVERIFY(!watch.after([&f] { f.water.frame(0)->setIndex(0, 0, 3); }).isEmpty());
    }

    void offersWhatItsFlagsSay()
    {
        const Fixture plain;
        QVERIFY(!plain.list.findChild<QToolButton *>() && plain.items.actions().isEmpty());
        Fixture f(List::Buttons | List::ContextMenu | List::Details);
        QCOMPARE(f.list.findChildren<QToolButton *>().size(), 2);
        QCOMPARE(f.text(2), "Water\n1 frame(s) [1x1]");
        QString asked;
        connect(&f.list, &List::addRequested, [&asked] { asked += "add "; });
        connect(&f.list, &List::removeRequested, [&asked] { asked += "remove "; });
        connect(&f.list, &List::cloneRequested, [&asked](Animation *animation) { asked += animation->name(); });
        for (TileAnimation *selected : {static_cast<TileAnimation *>(nullptr), &f.water}) {
            f.list.select(selected);
            for (QAction *action : f.items.actions())
                action->trigger();
        }
        QCOMPARE(asked, "add add remove Water");
    }
};

QUENMORA_TEST_MAIN(TestAnimationList)
#include "tst_animationlist.moc"
