#pragma once

#include "model/animation.h"

class SpriteBank;

/// A rectangle of sprites with frames, as placed sprites on maps play it. Its parent is the sprite bank
/// whose sprites the cells name; without one it draws nothing.
class SpriteAnim : public Animation
{
    Q_OBJECT

public:
    /// An animation of one empty frame.
    explicit SpriteAnim(QObject *parent = nullptr);

    /// Makes target a copy of this animation, named "… (copy)"; its frames get ids of their own.
    void copyTo(SpriteAnim &target) const;

    /// A frame as maps show it, with a palette offset (0–15) in 4-bit banks: the cells are put together,
    /// then the whole picture is turned clockwise, mirrored and flipped. Null for a frame that is not there.
    [[nodiscard]] QImage frameImage(int frame, int paletteOffset, bool rotate, bool flip, bool mirror) const;

    /// The first frame, scaled to fit into size; null without a bank.
    [[nodiscard]] QImage preview(const QSize &size) const override;

private:
    [[nodiscard]] const SpriteBank *bank() const;
};
