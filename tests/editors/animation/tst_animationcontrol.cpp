#include "editors/animation/animationcontrolwidget.h"

#include "support/testmain.h"

#include <QAction>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

using Control = AnimationControlWidget;

class TestAnimationControl : public QObject
{
    Q_OBJECT

private slots:
    void buttonsAreTheOnesOfTheTable_data();
    void buttonsAreTheOnesOfTheTable();
    void labelStaysWithinTheFrames_data();
    void labelStaysWithinTheFrames();
    void labelMovesBeforeTheSignal();
    void playAndStopReleasePause();
    void loopAndPingPongExcludeEachOther();
};

void TestAnimationControl::buttonsAreTheOnesOfTheTable_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<bool>("checkable");
    const struct
    {
        const char *toolTip;
        bool checkable = false;
    } rows[] = {
        {"Goto first frame"}, {"Previous frame"},  {"Play"},        {"Pause playback", true}, {"Stop"},
        {"Next frame"},       {"Goto last frame"}, {"Add a frame"}, {"Delete current frame"}, {"Loop", true},
        {"Ping pong", true},
    };
    int action = 0;
    for (const auto &row : rows)
        QTest::newRow(row.toolTip) << action++ << QString(row.toolTip) << row.checkable;
}

void TestAnimationControl::buttonsAreTheOnesOfTheTable()
{
    QFETCH(int, action);
    QFETCH(QString, toolTip);
    Control control;
    const auto buttons = control.findChildren<QToolButton *>();
    QCOMPARE(buttons.size(), 11);
    const QToolButton *button = buttons.at(action);
    QCOMPARE(button->defaultAction(), control.action(Control::Action(action)));
    QCOMPARE(button->toolTip(), toolTip);
    QCOMPARE(button->accessibleName(), toolTip);
    QTEST(button->isCheckable(), "checkable");
    QCOMPARE(button->size(), QSize(34, 34));
    // an icon that is not there draws nothing
    const QImage icon = button->icon().pixmap(24, 24).toImage();
    QVERIFY(!icon.isNull());
    QVERIFY(icon != QImage(icon.size(), icon.format()));
}

void TestAnimationControl::labelStaysWithinTheFrames_data()
{
    QTest::addColumn<int>("frame");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("text");
    QTest::newRow("inside") << 2 << 3 << "Frame 2 of 3";
    QTest::newRow("below") << 0 << 3 << "Frame 1 of 3";
    QTest::newRow("above") << 9 << 3 << "Frame 3 of 3";
    QTest::newRow("no frames") << 1 << 0 << "Frame 0 of 0";
}

void TestAnimationControl::labelStaysWithinTheFrames()
{
    QFETCH(int, frame);
    QFETCH(int, count);
    Control control;
    QCOMPARE(control.text(), "Frame 1 of 1");
    control.setFrame(frame, count);
    QTEST(control.text(), "text");
}

void TestAnimationControl::labelMovesBeforeTheSignal()
{
    Control control;
    control.setFrame(2, 4);
    QStringList heard;
    connect(&control, &Control::buttonClicked, this, [&](Control::Action action, bool checked) {
        QVERIFY(!checked);
        heard += QStringLiteral("%1: %2").arg(action).arg(control.text());
    });
    for (const auto action : {Control::Next, Control::Last, Control::Next, Control::Previous, Control::First})
        control.action(action)->trigger();
    QCOMPARE(
        heard,
        QStringList({"5: Frame 3 of 4", "6: Frame 4 of 4", "5: Frame 4 of 4", "1: Frame 3 of 4", "0: Frame 1 of 4"}));
}

void TestAnimationControl::playAndStopReleasePause()
{
    Control control;
    QSignalSpy clicks(&control, &Control::buttonClicked);
    for (const auto action : {Control::Play, Control::Stop}) {
        control.action(Control::Pause)->trigger();
        QVERIFY(control.action(Control::Pause)->isChecked());
        QCOMPARE(clicks.takeLast().at(1).toBool(), true);
        control.action(action)->trigger();
        QVERIFY(!control.action(Control::Pause)->isChecked());
    }
}

void TestAnimationControl::loopAndPingPongExcludeEachOther()
{
    Control control;
    QVERIFY(control.action(Control::Loop)->isChecked());
    QVERIFY(!control.action(Control::PingPong)->isEnabled());
    control.action(Control::PingPong)->setEnabled(true);
    control.action(Control::PingPong)->trigger();
    QVERIFY(!control.action(Control::Loop)->isChecked());
}

QUENMORA_TEST_MAIN(TestAnimationControl)
#include "tst_animationcontrol.moc"
