#pragma once

#include "editors/animation/animationview.h"
#include "model/spritebank.h"

namespace SpriteEditor {

class AnimationEditorWidget;

/// The tab of a sprite bank: edits its animations. The sprites themselves are edited in the dock.
class View : public AnimationEditor::AnimationView
{
    Q_OBJECT

public:
    explicit View(const QPointer<SpriteBank> &bank, QWidget *parent = nullptr);

    [[nodiscard]] SpriteBank *sprites() const { return m_bank; }
    [[nodiscard]] AnimationEditorWidget *editor() const { return m_editor; }

signals:
    /// A cell that names this sprite was double-clicked.
    void spriteDoubleClicked(int index);

protected:
    [[nodiscard]] QList<Animation *> animations() const override;
    [[nodiscard]] Animation *createAnimation() override;
    [[nodiscard]] Animation *copyAnimation(Animation &animation) override;
    void destroyAnimation(Animation &animation) override;
    [[nodiscard]] QImage cellPicture(const AnimationFrame::Cell &cell) const override;
    void announceActivated(int index) override { emit spriteDoubleClicked(index); }

private:
    View(const QPointer<SpriteBank> &bank, AnimationEditorWidget *editor, QWidget *parent);

    void showSprites();

    QPointer<SpriteBank> m_bank;
    AnimationEditorWidget *m_editor;
};

} // namespace SpriteEditor
