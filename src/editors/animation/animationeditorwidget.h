#pragma once

#include "editors/animation/editorwidget.h"
#include "model/tileanimation.h"

class BlockEditorToolBar;

namespace BlockEditor {

/// The editor of a tile animation.
class AnimationEditorWidget : public AnimationEditor::EditorWidget
{
    Q_OBJECT

public:
    explicit AnimationEditorWidget(QWidget *parent = nullptr);

public slots:
    void setAnimation(TileAnimation *anim);

protected:
    void showProperties() override;
    void showCell(const std::optional<AnimationFrame::Cell> &cell) override;
    void changeTileState(Quenmora::Ui::ToolButton tool, bool checked) override;

private:
    [[nodiscard]] TileAnimation *tileAnimation() const;

    BlockEditorToolBar *m_properties;
    QSpinBox *m_offset = nullptr;
};

} // namespace BlockEditor
