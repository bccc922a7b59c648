#include "editors/animation/animationeditorwidget.h"

#include "editors/animation/blockeditortoolbar.h"

#include <QSpinBox>

namespace BlockEditor {

namespace {

constexpr int LastOffset = 15;

}

AnimationEditorWidget::AnimationEditorWidget(QWidget *parent)
    : EditorWidget(new BlockEditorToolBar, parent)
    , m_properties(static_cast<BlockEditorToolBar *>(toolBar()))
    , m_offset(addCellNumber(tr("Palette offset:"), tr("The palette offset of the selected cell"), LastOffset))
{
    ToolPalette::Entry updateOffsets = ToolPalette::entryOf(Quenmora::Ui::PaintPalette);
    updateOffsets.text = tr("Update palette offsets to default values");
    tools()->addEntry(updateOffsets);
    connect(m_offset, &QSpinBox::valueChanged, frameEditor(), &AnimationEditor::FrameEditorWidget::setOffset);
    connect(m_properties, &BlockEditorToolBar::blockTypeChanged, this, [this](MapObjectType type) {
        if (tileAnimation())
            tileAnimation()->setMapObjectType(type);
    });
    buildPage();
}

void AnimationEditorWidget::setAnimation(TileAnimation *anim)
{
    EditorWidget::setAnimation(anim);
}

TileAnimation *AnimationEditorWidget::tileAnimation() const
{
    return qobject_cast<TileAnimation *>(animation());
}

void AnimationEditorWidget::showProperties()
{
    EditorWidget::showProperties();
    if (tileAnimation())
        m_properties->setBlockType(tileAnimation()->type());
}

void AnimationEditorWidget::showCell(const std::optional<AnimationFrame::Cell> &cell)
{
    EditorWidget::showCell(cell);
    m_offset->setEnabled(cell.has_value());
    showNumber(m_offset, cell ? cell->offset : 0);
}

void AnimationEditorWidget::changeTileState(Quenmora::Ui::ToolButton tool, bool checked)
{
    if (tool != Quenmora::Ui::PaintPalette)
        EditorWidget::changeTileState(tool, checked);
    else if (tileAnimation())
        tileAnimation()->updateOffsets();
}

} // namespace BlockEditor
