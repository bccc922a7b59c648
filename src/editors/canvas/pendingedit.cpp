#include "editors/canvas/pendingedit.h"

#include "editors/canvas/layer2image.h"

#include <utility>

QImage PendingEdit::end(const QImage &after)
{
    const QImage before = std::exchange(m_before, QImage());
    return Layer2Image::haveSameIndices(before, after) ? QImage() : before;
}
