#pragma once

#include <QHash>
#include <QWidget>

class QAction;
class QLabel;

/// The playback controls of an animation editor: a row of buttons to move between frames, to play, and to
/// add and delete frames, and a label that says which frame is shown.
///
/// It plays nothing itself. Buttons that move to another frame move the label at once; the editor that
/// listens puts it right with setFrame().
class AnimationControlWidget : public QWidget
{
    Q_OBJECT

public:
    enum Action { First, Previous, Play, Pause, Stop, Next, Last, AddFrame, DeleteFrame, Loop, PingPong };
    Q_ENUM(Action)

    explicit AnimationControlWidget(QWidget *parent = nullptr);

    /// The frame shown by the label, counted from 1.
    [[nodiscard]] int frame() const { return m_frame; }
    [[nodiscard]] int frameCount() const { return m_frameCount; }
    /// Shows "Frame … of …"; frame is held within 1 … count.
    void setFrame(int frame, int count);

    /// The action behind a button.
    [[nodiscard]] QAction *action(Action action) const { return m_actions.value(action); }
    /// What the label says.
    [[nodiscard]] QString text() const;

signals:
    /// checked is false for buttons that cannot be checked.
    void buttonClicked(AnimationControlWidget::Action action, bool checked);

private:
    void trigger(Action action, bool checked);

    QHash<Action, QAction *> m_actions;
    QLabel *m_label;
    int m_frame = 1;
    int m_frameCount = 1;
};
