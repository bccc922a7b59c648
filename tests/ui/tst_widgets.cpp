#include "support/testmain.h"
#include "ui/checklist.h"
#include "ui/expandablesection.h"
#include "ui/flowlayout.h"
#include "ui/numberstepper.h"
#include "ui/popover.h"
#include "ui/scrollbar.h"

#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using namespace Quenmora::Ui;

/// The small widgets of the kit.
class TestWidgets : public QObject
{
    Q_OBJECT

private slots:
    void popoverFindsRoom_data();
    void popoverFindsRoom();
    void popoverPointsAtItsTargetAndClosesOnEscape();
    void flowLayoutBreaksRows_data();
    void flowLayoutBreaksRows();
    void stepperStaysInItsRange();
    void scrollBarButtonsNameTheirEnd_data();
    void scrollBarButtonsNameTheirEnd();
    void checkListTicksByClickAndByKey();
    void sectionHidesItsContentWhileCollapsed();
};

void TestWidgets::popoverFindsRoom_data()
{
    QTest::addColumn<QRect>("target");
    QTest::addColumn<DialogPosition>("wanted");
    QTest::addColumn<QPoint>("corner");
    QTest::addColumn<DialogPosition>("position");
    // a popover of 100 x 50 on a screen that starts at (10, 20) and measures 400 x 300
    QTest::newRow("right") << QRect(100, 100, 20, 10) << RightOf << QPoint(120, 79) << RightOf;
    QTest::newRow("left") << QRect(200, 100, 20, 10) << LeftOf << QPoint(100, 79) << LeftOf;
    QTest::newRow("below") << QRect(100, 100, 20, 10) << Below << QPoint(59, 110) << Below;
    QTest::newRow("above") << QRect(100, 100, 20, 10) << Above << QPoint(59, 50) << Above;
    QTest::newRow("no room on the right") << QRect(300, 100, 20, 10) << RightOf << QPoint(200, 79) << LeftOf;
    QTest::newRow("just room on the right") << QRect(290, 100, 20, 10) << RightOf << QPoint(310, 79) << RightOf;
    QTest::newRow("no room above") << QRect(100, 60, 20, 10) << Above << QPoint(59, 70) << Below;
    QTest::newRow("too high up") << QRect(100, 20, 20, 10) << RightOf << QPoint(120, 20) << RightOf;
    QTest::newRow("too far down") << QRect(100, 310, 20, 10) << RightOf << QPoint(120, 270) << RightOf;
    QTest::newRow("no room on either side") << QRect(50, 100, 300, 10) << RightOf << QPoint(310, 79) << RightOf;
}

void TestWidgets::popoverFindsRoom()
{
    QFETCH(const QRect, target);
    QFETCH(DialogPosition, wanted);
    QFETCH(const QPoint, corner);
    QFETCH(const DialogPosition, position);
    QCOMPARE(Popover::place({100, 50}, target, {10, 20, 400, 300}, wanted), corner);
    QCOMPARE(wanted, position);
}

void TestWidgets::popoverPointsAtItsTargetAndClosesOnEscape()
{
    QWidget window;
    Popover popover(&window);
    popover.setContent(new QLabel("Sprite\nproperties\nof three lines"));
    QSignalSpy closed(&popover, &Popover::closed);
    const QRect target(200, 200, 10, 10);
    popover.showBeside(target);
    QCOMPARE(popover.arrow(), Quenmora::Ui::Left);
    QCOMPARE(popover.pos().x(), 210);
    QVERIFY(popover.mask().contains({1, target.center().y() - popover.y()}));
    popover.showBeside(target, Below);
    QCOMPARE(popover.arrow(), Quenmora::Ui::Up);
    QCOMPARE(popover.pos().y(), 210);
    QTest::keyClick(&popover, Qt::Key_Escape);
    QVERIFY(!popover.isVisible());
    QCOMPARE(closed.size(), 1);
}

void TestWidgets::flowLayoutBreaksRows_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    // five items of 20 x 10 with gaps of 2 and margins of 3
    QTest::addRow("all in one row") << 114 << 16;
    QTest::addRow("a pixel short") << 113 << 28;
    QTest::addRow("three and two") << 70 << 28;
    QTest::addRow("one a row") << 30 << 64;
    QTest::addRow("narrower than an item") << 5 << 64;
}

void TestWidgets::flowLayoutBreaksRows()
{
    QFETCH(const int, width);
    QFETCH(const int, height);
    QWidget window;
    auto *layout = new FlowLayout(&window);
    layout->setSpacing(2);
    layout->setContentsMargins(3, 3, 3, 3);
    auto *hidden = new QWidget(&window);
    hidden->setFixedSize(200, 100);
    layout->addWidget(hidden);
    hidden->hide();
    for (int i = 0; i < 5; ++i) {
        auto *item = new QWidget(&window);
        item->setFixedSize(20, 10);
        layout->addWidget(item);
    }
    QCOMPARE(layout->sizeHint(), QSize(114, 16));
    QCOMPARE(layout->heightForWidth(width), height);
    layout->setGeometry({0, 0, width, height});
    QCOMPARE(layout->itemAt(5)->geometry().bottom(), height - 3 - 1);
}

void TestWidgets::stepperStaysInItsRange()
{
    NumberStepper stepper;
    QSignalSpy changed(&stepper, &NumberStepper::valueChanged);
    stepper.setRange(1, 3);
    stepper.setValue(2);
    for (int i = 0; i < 3; ++i)
        stepper.stepForward();
    stepper.setRange(1, 1);
    stepper.stepBack();
    QCOMPARE(changed, (QList<QVariantList>{{2}, {3}, {1}}));
    for (const auto *button : stepper.findChildren<QToolButton *>())
        QVERIFY(!button->isEnabled());
}

void TestWidgets::scrollBarButtonsNameTheirEnd_data()
{
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QStringList>("names"); // from the beginning to the end
    QTest::addRow("horizontal") << Qt::Horizontal
                                << QStringList{"Add a column on the left", "Remove the column on the left",
                                               "Remove the column on the right", "Add a column on the right"};
    QTest::addRow("vertical") << Qt::Vertical
                              << QStringList{"Add a row at the top", "Remove the row at the top",
                                             "Remove the row at the bottom", "Add a row at the bottom"};
}

void TestWidgets::scrollBarButtonsNameTheirEnd()
{
    QFETCH(const Qt::Orientation, orientation);
    QFETCH(const QStringList, names);
    ScrollBar bar(orientation);
    bar.resize(300, 300);
    bar.show();
    QStringList heard;
    connect(&bar, &ScrollBar::add, this, [&](Quenmora::Position end) { heard << QString("add %1").arg(end); });
    connect(&bar, &ScrollBar::remove, this, [&](Quenmora::Position end) { heard << QString("remove %1").arg(end); });
    auto buttons = bar.findChildren<QToolButton *>();
    std::sort(buttons.begin(), buttons.end(),
              [](const QToolButton *a, const QToolButton *b) { return a->x() + a->y() < b->x() + b->y(); });
    QStringList found;
    for (QToolButton *button : buttons) {
        found << button->accessibleName();
        button->click();
    }
    QCOMPARE(found, names);
    QCOMPARE(heard, (QStringList{"add 0", "remove 0", "remove 1", "add 1"}));
    bar.setRemoveEnabled(false);
    buttons[1]->click();
    QCOMPARE(heard.size(), 4);
}

void TestWidgets::checkListTicksByClickAndByKey()
{
    CheckList list;
    for (const char *text : {"zero", "one", "two"})
        list.addCheck(QLatin1String(text), false, QByteArray(text));
    list.resize(200, 200);
    list.show();
    QSignalSpy changed(&list, &CheckList::checkChanged);
    const QRect row = list.visualItemRect(list.item(1));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, row.center());
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Space);
    QCOMPARE(list.checkedIndexes(), (QList<int>{1, 2}));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, {row.left() + 8, row.center().y()}); // on the box itself
    QCOMPARE(changed, (QList<QVariantList>{{1, true}, {2, true}, {1, false}}));
    list.setChecked(7, true);
    list.setAllChecked(true);
    QCOMPARE(list.checkedIndexes(), (QList<int>{0, 1, 2}));
    QCOMPARE(list.dataAt(2).toByteArray(), QByteArray("two"));
}

void TestWidgets::sectionHidesItsContentWhileCollapsed()
{
    ExpandableSection section("Attributes");
    auto *content = new QLabel("content");
    section.setContent(content);
    QSignalSpy changed(&section, &ExpandableSection::expandedChanged);
    QVERIFY(!content->isVisibleTo(&section));
    section.findChild<QToolButton *>()->click();
    QVERIFY(content->isVisibleTo(&section));
    section.setExpanded(false);
    QVERIFY(!content->isVisibleTo(&section));
    QCOMPARE(changed, (QList<QVariantList>{{true}, {false}}));
}

QUENMORA_TEST_MAIN(TestWidgets)
#include "tst_widgets.moc"
