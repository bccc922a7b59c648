#pragma once

#include "editors/animation/animationcontrolwidget.h"
#include "editors/animation/frameeditorwidget.h"
#include "ui/toolpalette.h"

class QAction;
class FlowLayout;
class QScrollArea;
class QSpinBox;
class QTimer;

namespace AnimationEditor {

class AnimationToolBar;

/// The editor of one animation: its properties, the cells of the current frame, tools for the selected cell,
/// and the controls that play it.
///
/// What is shown follows the animation, whoever changes it; without an animation the editor is disabled.
/// Subclasses add what only their kind of animation has. Playing stops when the editor is hidden.
class EditorWidget : public QWidget
{
    Q_OBJECT

public:
    [[nodiscard]] Animation *animation() const { return m_animation; }
    void setAnimation(Animation *animation);

    [[nodiscard]] int currentFrame() const { return m_current; }
    [[nodiscard]] bool isPlaying() const;
    /// Milliseconds from one frame to the next.
    [[nodiscard]] int frameInterval() const;

    [[nodiscard]] AnimationToolBar *toolBar() const { return m_toolBar; }
    [[nodiscard]] ToolPalette *tools() const { return m_tools; }
    [[nodiscard]] FrameEditorWidget *frameEditor() const { return m_frameEditor; }
    [[nodiscard]] QAction *onionSkin() const { return m_onionSkin; }
    [[nodiscard]] AnimationControlWidget *control() const { return m_control; }

    /// The number of tiles or sprites there are for the cells.
    void setIndexCount(int count);

public slots:
    void play();
    void pause();
    void stop();

protected:
    /// toolBar becomes part of the editor.
    EditorWidget(AnimationToolBar *toolBar, QWidget *parent);

    /// A field for a number of the selected cell, beside the tools.
    QSpinBox *addCellNumber(const QString &label, const QString &toolTip, int maximum);
    /// Lays the parts out. To be called once, by the subclass's constructor, when it has added its own.
    void buildPage();

    /// Shows all properties of the animation; called whenever one may have changed.
    virtual void showProperties();
    /// Shows the state of the selected cell; nothing when none is selected.
    virtual void showCell(const std::optional<AnimationFrame::Cell> &cell);
    /// The Pause button was checked or unchecked.
    virtual void togglePause(bool checked);
    /// The frame to play after the current one.
    [[nodiscard]] virtual int nextFrame();
    /// A tool was used.
    virtual void changeTileState(Quenmora::Ui::ToolButton tool, bool checked);

    void hideEvent(QHideEvent *event) override;

    /// Shows a number in a field without emitting anything.
    static void showNumber(QSpinBox *field, int number);

private:
    void connectParts();
    void refresh();
    void selectionChanged();
    void mediaControlButtonClicked(AnimationControlWidget::Action action, bool checked);
    void setCurrentFrame(int index);
    void animate();
    void setAnimationDelay(int delay);
    void updateInterval();
    /// The frame before is not shown in motion.
    void showOnionSkin();

    QPointer<Animation> m_animation;
    int m_current = 0;
    QTimer *m_timer;
    QAction *m_onionSkin;
    AnimationToolBar *m_toolBar;
    ToolPalette *m_tools;
    FlowLayout *m_cellTools;
    QSpinBox *m_index;
    FrameEditorWidget *m_frameEditor;
    QScrollArea *m_scroller;
    AnimationControlWidget *m_control;
};

} // namespace AnimationEditor
