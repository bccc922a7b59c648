#include "editors/animation/spriteanimationeditorwidget.h"

#include "editors/animation/animationtoolbar.h"

#include <QAction>

namespace SpriteEditor {

using AnimationEditor::AnimationToolBar;

AnimationEditorWidget::AnimationEditorWidget(QWidget *parent)
    : EditorWidget(new AnimationToolBar(tr("Set the frame width in sprites"), tr("Set the frame height in sprites")),
                   parent)
{
    control()->action(AnimationControlWidget::PingPong)->setEnabled(true);
    buildPage();
}

void AnimationEditorWidget::togglePause(bool checked)
{
    if (checked) {
        m_wasPlaying = isPlaying();
        pause();
    } else if (m_wasPlaying) {
        play();
    }
}

int AnimationEditorWidget::nextFrame()
{
    const int last = animation()->frameCount() - 1;
    if (last < 1 || !control()->action(AnimationControlWidget::PingPong)->isChecked())
        return EditorWidget::nextFrame();
    if (currentFrame() <= 0)
        m_backwards = false;
    else if (currentFrame() >= last)
        m_backwards = true;
    return currentFrame() + (m_backwards ? -1 : 1);
}

} // namespace SpriteEditor
