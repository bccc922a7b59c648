#include "model/spriteanim.h"

#include "model/spritebank.h"
#include "model/transform.h"

#include <QPainter>

namespace {

/// A frame of an animation of this size, each cell as draw(cell) gives it; a null picture draws nothing.
template <typename Draw>
QImage composed(const AnimationFrame &frame, QSize size, int cellSize, Draw draw)
{
    QImage image(size * cellSize, QImage::Format_ARGB32);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    for (int row = 0; row < size.height(); ++row) {
        for (int column = 0; column < size.width(); ++column)
            painter.drawImage(QPoint(column, row) * cellSize, draw(frame.cell(row, column)));
    }
    return image;
}

} // namespace

SpriteAnim::SpriteAnim(QObject *parent) : Animation(Sprites, tr("New Sprite"), parent)
{
    addFrame();
}

const SpriteBank *SpriteAnim::bank() const
{
    return qobject_cast<const SpriteBank *>(parent());
}

void SpriteAnim::copyTo(SpriteAnim &target) const
{
    target.setName(tr("%1 (copy)").arg(name()));
    target.setDelay(delay());
    target.setSize(size());
    target.copyFrom(*this, false);
}

QImage SpriteAnim::frameImage(int frame, int paletteOffset, bool rotate, bool flip, bool mirror) const
{
    const SpriteBank *bank = this->bank();
    if (!bank || frame < 0 || frame >= frameCount())
        return {};
    const QImage image = composed(*this->frame(frame), size(), cellSize(), [&](const AnimationFrame::Cell &cell) {
        return bank->renderSprite(cell.index, paletteOffset, cell.rotate, cell.flip, cell.mirror);
    });
    return oriented(image, rotate, flip, mirror);
}

QImage SpriteAnim::preview(const QSize &size) const
{
    const SpriteBank *bank = this->bank();
    if (!bank || frameCount() == 0 || this->size().isEmpty())
        return {};
    const QImage image = composed(*frame(0), this->size(), cellSize(), [&](const AnimationFrame::Cell &cell) {
        return cell.index >= 0 && cell.index < bank->count()
            ? bank->shownSpriteImage(cell.index, cell.rotate, cell.flip, cell.mirror)
            : QImage();
    });
    return image.scaled(size, Qt::KeepAspectRatio, Qt::FastTransformation);
}
