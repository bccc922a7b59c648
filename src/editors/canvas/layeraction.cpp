#include "editors/canvas/layeraction.h"

#include "editors/canvas/layer2image.h"

using namespace Quenmora::Ui;

std::optional<LayerAction> LayerAction::of(ToolButton button)
{
    const auto scroll = [](void (Layer2Image::*shift)()) {
        return LayerAction{tr("Scroll"), PixelEditCommand::Scroll, shift};
    };
    const auto rotate = [](int degrees) {
        return LayerAction{tr("Rotate"), PixelEditCommand::None,
                           [degrees](Layer2Image &layer) { layer.rotate(degrees); }};
    };
    switch (button) {
    case RotateCW:
        return rotate(90);
    case RotateCCW:
        return rotate(270);
    case MoveUp:
        return scroll(&Layer2Image::shiftUp);
    case MoveDown:
        return scroll(&Layer2Image::shiftDown);
    case MoveLeft:
        return scroll(&Layer2Image::shiftLeft);
    case MoveRight:
        return scroll(&Layer2Image::shiftRight);
    case Flip:
        return LayerAction{tr("Flip"), PixelEditCommand::None, &Layer2Image::flip};
    case Mirror:
        return LayerAction{tr("Mirror"), PixelEditCommand::None, &Layer2Image::mirror};
    default:
        return std::nullopt;
    }
}
