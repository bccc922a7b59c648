#pragma once

#include "editors/animation/editorwidget.h"

namespace SpriteEditor {

/// The editor of a sprite animation. It can play back and forth as well as in a loop, and goes on after a
/// pause.
class AnimationEditorWidget : public AnimationEditor::EditorWidget
{
    Q_OBJECT

public:
    explicit AnimationEditorWidget(QWidget *parent = nullptr);

protected:
    void togglePause(bool checked) override;
    [[nodiscard]] int nextFrame() override;

private:
    bool m_backwards = false;
    bool m_wasPlaying = false; ///< when it was paused
};

} // namespace SpriteEditor
