#pragma once

#include "editors/animation/animationview.h"
#include "model/mapobjects.h"

namespace BlockEditor {

class AnimationEditorWidget;

/// The tab of a block set: edits its tile animations.
class View : public AnimationEditor::AnimationView
{
    Q_OBJECT

public:
    explicit View(const QPointer<MapObjects> &blocks, QWidget *parent = nullptr);

    [[nodiscard]] MapObjects *blocks() const { return m_blocks; }
    [[nodiscard]] AnimationEditorWidget *editor() const { return m_editor; }

signals:
    /// A cell was double-clicked; index is the number of its tile counted from 1, as the tile editor takes it.
    void tileDoubleClicked(int index);
    /// Emitted before the animation is destroyed.
    void animationRemoved(TileAnimation *animation);
    void animationAdded(TileAnimation *animation);

protected:
    [[nodiscard]] QList<Animation *> animations() const override;
    [[nodiscard]] Animation *createAnimation() override;
    [[nodiscard]] Animation *copyAnimation(Animation &animation) override;
    void destroyAnimation(Animation &animation) override;
    [[nodiscard]] QImage cellPicture(const AnimationFrame::Cell &cell) const override;
    void announceActivated(int index) override { emit tileDoubleClicked(index + 1); }
    void announceAdded(Animation &animation) override;
    void announceRemoved(Animation &animation) override;

private:
    View(const QPointer<MapObjects> &blocks, AnimationEditorWidget *editor, QWidget *parent);

    void followTileSet();
    void showTiles();
    [[nodiscard]] TileSet *tileSet() const;

    QPointer<MapObjects> m_blocks;
    AnimationEditorWidget *m_editor;
};

} // namespace BlockEditor
