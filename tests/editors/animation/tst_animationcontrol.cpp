#include "editors/animation/animationcontrolwidget.h"

#include "support/testmain.h"

#include <QAction>
#include <QTest>

using Control = AnimationControlWidget;

class TestAnimationControl : public QObject
{
    Q_OBJECT

private slots:
    void playsInALoopAtFirst()
    {
        const Control control;
        QVERIFY(control.action(Control::Loop)->isChecked() && !control.action(Control::PingPong)->isEnabled());
        control.action(Control::PingPong)->setChecked(true);
        QVERIFY(!control.action(Control::Loop)->isChecked());
    }

    void labelAndPauseChangeBeforeTheSignal()
    {
        Control control;
        QStringList heard(control.text());
        connect(&control, &Control::buttonClicked, this, [&](Control::Action action, bool checked) {
            heard += QStringLiteral("%1%2: %3").arg(action).arg(checked ? "+" : "").arg(control.text());
        });
        control.setFrame(2, 4);
        for (const auto action :
             {Control::Next, Control::Last, Control::Next, Control::Previous, Control::First, Control::Previous,
              Control::Pause, Control::Play, Control::Pause, Control::Stop, Control::Pause, Control::Pause})
            control.action(action)->trigger();
        QCOMPARE(
            heard,
            QStringList({"Frame 1 of 1", "5: Frame 3 of 4", "6: Frame 4 of 4", "5: Frame 4 of 4", "1: Frame 3 of 4",
                         "0: Frame 1 of 4", "1: Frame 1 of 4", "3+: Frame 1 of 4", "2: Frame 1 of 4",
                         "3+: Frame 1 of 4", "4: Frame 1 of 4", "3+: Frame 1 of 4", "3: Frame 1 of 4"}));
    }
};

QUENMORA_TEST_MAIN(TestAnimationControl)
#include "tst_animationcontrol.moc"
