#include "editors/animation/animationcontrolwidget.h"

#include "support/testmain.h"

#include <QAction>
#include <QTest>
#include <QToolButton>

using Control = AnimationControlWidget;

class TestAnimationControl : public QObject
{
    Q_OBJECT

private slots:
    void buttonsAreTheListedOnes();
    void labelMovesBeforeTheSignal();
    void oneStateExcludesAnother();
};

void TestAnimationControl::buttonsAreTheListedOnes()
{
    const QStringList toolTips{"Goto first frame", "Previous frame",  "Play",        "Pause playback",       "Stop",
                               "Next frame",       "Goto last frame", "Add a frame", "Delete current frame", "Loop",
                               "Ping pong"};
    const Control control;
    const auto buttons = control.findChildren<QToolButton *>();
    QCOMPARE(buttons.size(), toolTips.size());
    for (int i = 0; i < buttons.size(); ++i) {
        QCOMPARE(buttons.at(i)->defaultAction(), control.action(Control::Action(i)));
        QCOMPARE(buttons.at(i)->toolTip(), toolTips.at(i));
        QCOMPARE(buttons.at(i)->isCheckable(), i == Control::Pause || i >= Control::Loop);
        // an icon that is not there draws nothing
        const QImage icon = buttons.at(i)->icon().pixmap(24, 24).toImage();
        QVERIFY(!icon.isNull() && icon != QImage(icon.size(), icon.format()));
    }
}

void TestAnimationControl::labelMovesBeforeTheSignal()
{
    Control control;
    QCOMPARE(control.text(), "Frame 1 of 1");
    control.setFrame(1, 0);
    QCOMPARE(control.text(), "Frame 0 of 0");
    control.setFrame(2, 4);
    QStringList heard;
    connect(&control, &Control::buttonClicked, this, [&](Control::Action action, bool checked) {
        QVERIFY(!checked);
        heard += QStringLiteral("%1: %2").arg(action).arg(control.text());
    });
    for (const auto action :
         {Control::Next, Control::Last, Control::Next, Control::Previous, Control::First, Control::Previous})
        control.action(action)->trigger();
    QCOMPARE(heard,
             QStringList({"5: Frame 3 of 4", "6: Frame 4 of 4", "5: Frame 4 of 4", "1: Frame 3 of 4", "0: Frame 1 of 4",
                          "1: Frame 1 of 4"}));
}

void TestAnimationControl::oneStateExcludesAnother()
{
    Control control;
    for (const auto action : {Control::Play, Control::Stop}) {
        control.action(Control::Pause)->trigger();
        QVERIFY(control.action(Control::Pause)->isChecked());
        control.action(action)->trigger();
        QVERIFY(!control.action(Control::Pause)->isChecked());
    }
    QVERIFY(control.action(Control::Loop)->isChecked());
    QVERIFY(!control.action(Control::PingPong)->isEnabled());
    control.action(Control::PingPong)->setEnabled(true);
    control.action(Control::PingPong)->trigger();
    QVERIFY(!control.action(Control::Loop)->isChecked());
}

QUENMORA_TEST_MAIN(TestAnimationControl)
#include "tst_animationcontrol.moc"
